#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace korvane {

class FileSystem;

/// What becomes of work that hasn't begun when the program ends.
enum class AtEnd : std::uint8_t { Done, LeftOut };

/// Work on the disk beside the program, for which nobody waits.
class Background {
public:
    /// Gets a disk of its own, since the program uses its disk at the same time.
    using Work = std::function<void(FileSystem&)>;
    using Action = std::function<void()>;

    virtual ~Background() = default;

    /// Does the work after all earlier work. Then, when messages run, calls `then` in the program's thread,
    /// unless the program has ended.
    virtual void Do(Work work, AtEnd atEnd, Action then) = 0;
    /// Calls the action once after this time, when messages run.
    virtual void After(std::chrono::milliseconds time, Action action) = 0;
};

} // namespace korvane
