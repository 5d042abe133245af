#pragma once

#include <chrono>
#include <optional>

namespace korvane {

/// When the changes of a table are to be kept next. Times are those of `Clock::Uptime`.
class DraftPace {
public:
    using Time = std::chrono::milliseconds;
    /// So long after the last change, since the next key often follows at once.
    static constexpr Time kAfterLastChange{2000};
    /// Whoever types without a pause isn't waited for longer than this. It is also the least time between
    /// two drafts.
    static constexpr Time kBetween{5000};
    /// A draft follows the last one at least this many times the last one's work later. So drafts take at
    /// most two parts in a hundred of the time.
    static constexpr int kLeastRest = 50;

    void Changed(Time now);
    /// The changes are in the file, or were taken back.
    void NothingChanged() { firstChange_.reset(); }
    /// A draft of all changes so far begins.
    void Begin(Time now);
    /// How much time it took, on both threads together.
    void Took(Time work);
    /// Nothing when nothing changed since the last draft.
    std::optional<Time> Due() const;

private:
    std::optional<Time> firstChange_;
    Time lastChange_{0};
    Time lastDraft_{0};
    Time notBefore_{0};
};

} // namespace korvane
