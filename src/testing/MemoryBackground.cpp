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

bool MemoryBackground::CallNext(std::chrono::milliseconds until) {
    const bool calls = !due_.empty() && due_.begin()->first <= until;
    const auto time = calls ? due_.begin()->first : until;
    clock_.Pass(std::max(time - clock_.Uptime(), std::chrono::milliseconds(0)));
    if (calls) due_.extract(due_.begin()).mapped()();
    return calls;
}

void MemoryBackground::Pass(std::chrono::milliseconds time) {
    const auto end = clock_.Uptime() + time;
    DoAll();
    while (CallNext(end))
        DoAll();
}

void MemoryBackground::PassWithoutWork(std::chrono::milliseconds time) {
    const auto end = clock_.Uptime() + time;
    while (CallNext(end)) {
    }
}

void MemoryBackground::End() {
    due_.clear();
    for (const Job& job : std::exchange(jobs_, {}))
        if (job.atEnd == AtEnd::Done) job.work(files_);
}

} // namespace korvane
