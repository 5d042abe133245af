#pragma once

#include "platform/Screen.h"

#include <deque>
#include <functional>
#include <vector>

namespace korvane {

/// A screen in memory. It remembers the pointers, and runs what a test wants to happen while messages are
/// processed.
class MemoryScreen final : public Screen {
public:
    Rect WorkArea() const override { return workArea_; }
    void SetPointer(Pointer pointer) override { pointers_.push_back(pointer); }
    void ProcessMessages() override;
    bool IsDark() const override { return dark_; }

    void SetDark(bool dark) { dark_ = dark; }
    void SetWorkArea(const Rect& workArea) { workArea_ = workArea; }
    /// Runs `action` in one of the next calls of `ProcessMessages`. Each call runs one action, in the order
    /// of queuing.
    void QueueMessage(std::function<void()> action) { messages_.push_back(std::move(action)); }

    /// The pointer that shows now.
    Pointer CurrentPointer() const { return pointers_.empty() ? Pointer::Default : pointers_.back(); }
    /// Every pointer that was set, in order.
    const std::vector<Pointer>& Pointers() const { return pointers_; }
    int ProcessMessagesCount() const { return processMessagesCount_; }

private:
    // 1920 x 1040 pixels at 96 dpi: a usual screen less its task bar.
    Rect workArea_{Twips{0}, Twips{0}, Twips{28800}, Twips{15600}};
    bool dark_ = false;
    std::vector<Pointer> pointers_;
    std::deque<std::function<void()>> messages_;
    int processMessagesCount_ = 0;
};

} // namespace korvane
