#pragma once

#include "platform/Background.h"
#include "testing/MemoryClock.h"

#include <cstddef>
#include <deque>
#include <map>

namespace korvane {

/// Work that is done step by step, when the test says so, on the disk that the program uses too.
class MemoryBackground final : public Background {
public:
    /// Both outlive the object.
    MemoryBackground(FileSystem& files, MemoryClock& clock) : files_(files), clock_(clock) {}

    void Do(Work work, AtEnd atEnd, Action then) override;
    void After(std::chrono::milliseconds time, Action action) override;

    std::size_t Waiting() const { return jobs_.size(); }
    /// Does the work that waits longest and what follows from it; false when none waits.
    bool DoNext();
    void DoAll();
    /// Lets the time go by: what is due is called at its time, and all work is done that waits before and
    /// after it.
    void Pass(std::chrono::milliseconds time);
    /// Calls what is due now or in that time, and leaves all work waiting.
    void PassWithoutWork(std::chrono::milliseconds time);
    /// The program ends: only the work is done that mustn't be left out, and nothing follows.
    void End();

private:
    struct Job {
        Work work;
        AtEnd atEnd;
        Action then;
    };

    /// Calls what is due next, if it is due until then.
    bool CallNext(std::chrono::milliseconds until);

    FileSystem& files_;
    MemoryClock& clock_;
    std::deque<Job> jobs_;
    std::multimap<std::chrono::milliseconds, Action> due_;
};

} // namespace korvane
