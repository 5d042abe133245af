#include "testing/MemoryBackground.h"

#include <algorithm>
#include <utility>

namespace korvane {

void MemoryBackground::Do(Work work, AtEnd atEnd, Action then) {
    jobs_.push_back({std::move(work), atEnd, std::move(then)});
}

void MemoryBackground::After(std::chrono::milliseconds time, Action action) {
    due_.emplace(clock_.Uptime() + time, std::move(action));
}

bool MemoryBackground::DoNext() {
    if (jobs_.empty()) return false;
    const Job job = std::move(jobs_.front());
    jobs_.pop_front();
    job.work(files_);
    if (job.then) job.then();
    return true;
}

void MemoryBackground::DoAll() {
    while (DoNext()) {
    }
}

void MemoryBackground::Pass(std::chrono::milliseconds time) {
    const auto end = clock_.Uptime() + time;
    DoAll();
    while (!due_.empty() && due_.begin()->first <= end) {
        const auto next = due_.extract(due_.begin());
        clock_.Pass(std::max(next.key() - clock_.Uptime(), std::chrono::milliseconds(0)));
        next.mapped()();
        DoAll();
    }
    clock_.Pass(std::max(end - clock_.Uptime(), std::chrono::milliseconds(0)));
}

void MemoryBackground::End() {
    due_.clear();
    for (const Job& job : std::exchange(jobs_, {}))
        if (job.atEnd == AtEnd::Done) job.work(files_);
}

} // namespace korvane
