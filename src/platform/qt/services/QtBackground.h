#pragma once

#include "platform/Background.h"

#include <QObject>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace korvane {

/// Work in a thread of its own, and calls from the event loop. The thread begins with the first work. At the
/// end the destructor waits for the work that mustn't be left out.
class QtBackground final : public Background {
public:
    /// The disk is for the thread alone, and outlives the object.
    explicit QtBackground(FileSystem& files) : files_(files) {}
    QtBackground(const QtBackground&) = delete;
    QtBackground& operator=(const QtBackground&) = delete;
    ~QtBackground() override;

    void Do(Work work, AtEnd atEnd, Action then) override;
    void After(std::chrono::milliseconds time, Action action) override;

private:
    struct Job {
        Work work;
        AtEnd atEnd = AtEnd::Done;
        Action then;
    };

    void RunJobs();
    /// Waits for the next job; false at the end.
    bool TakeJob(Job& job);
    void Perform(Job job);

    FileSystem& files_;
    /// Calls that wait for the event loop go with it.
    QObject context_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Job> jobs_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace korvane
