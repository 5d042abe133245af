#include "testing/MemoryScreen.h"

namespace korvane {

void MemoryScreen::ProcessMessages() {
    ++processMessagesCount_;
    if (messages_.empty()) return;
    // Taken out first: the action may process messages in its turn.
    const auto action = std::move(messages_.front());
    messages_.pop_front();
    action();
}

} // namespace korvane
