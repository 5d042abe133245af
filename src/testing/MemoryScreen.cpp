#include "testing/MemoryScreen.h"

namespace korvane {

void MemoryScreen::ProcessMessages() {
    ++processMessagesCount_;
    if (messages_.empty()) return;
    // It is taken out first, because the action may process messages itself.
    const auto action = std::move(messages_.front());
    messages_.pop_front();
    action();
}

} // namespace korvane
