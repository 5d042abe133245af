#include "platform/qt/services/QtBackground.h"

#include <QMetaObject>
#include <QTimer>
#include <exception>
#include <utility>

namespace korvane {

QtBackground::~QtBackground() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void QtBackground::Do(Work work, AtEnd atEnd, Action then) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back({std::move(work), atEnd, std::move(then)});
    }
    if (!thread_.joinable()) thread_ = std::thread([this] { RunJobs(); });
    changed_.notify_one();
}

void QtBackground::After(std::chrono::milliseconds time, Action action) {
    QTimer::singleShot(time, &context_, std::move(action));
}

void QtBackground::RunJobs() {
    for (Job job; TakeJob(job);)
        Perform(std::move(job));
}

bool QtBackground::TakeJob(Job& job) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
    while (!jobs_.empty()) {
        job = std::move(jobs_.front());
        jobs_.pop_front();
        if (!ending_ || job.atEnd == AtEnd::Done) return true;
    }
    return false;
}

void QtBackground::Perform(Job job) {
    try {
        job.work(files_);
    } catch (const std::exception& error) {
        // What follows from the work finds that nothing was done.
        qWarning("Work in the background failed: %s", error.what());
    }
    if (job.then) QMetaObject::invokeMethod(&context_, std::move(job.then), Qt::QueuedConnection);
}

} // namespace korvane
