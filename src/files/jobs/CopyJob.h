#pragma once

#include "files/jobs/CopyMoveRun.h"
#include "files/jobs/CopyTask.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace korvane {

class App;
class CopyWork;
class FileSystem;
class Standstill;

/// Copies or moves the files of one folder to another one, some files with each step. The work on the disk is
/// done where it can be left alone when the disk falls silent.
class CopyJob {
public:
    using Task = CopyTask;
    /// What the job leaves to whoever runs it.
    struct Host {
        /// Lets messages run, by which the job may be told to stop.
        std::function<void()> yield;
        /// Asks whether the target in `AskTarget` is to be overwritten, and leaves the answer in the run.
        std::function<void()> ask;
    };

    /// All outlive the job. `run` has its answers of earlier jobs cleared.
    CopyJob(App& app, Task task, CopyMoveRun& run, Host host);

    /// Handles the next file, or so many; false when the job has ended. A job that is stopped ends after the
    /// file at hand, or when the disk has done nothing for some seconds.
    bool Step(std::size_t files = 1);
    /// Which file is at hand, from 1 on.
    std::size_t Number() const;

private:
    bool GoOn(std::size_t files);
    bool StillWaits(Standstill& standstill);
    void TakeRun();
    void ReportFullDrive();

    App& app_;
    Text targetFolder_;
    CopyMoveRun& run_;
    Host host_;
    std::shared_ptr<CopyWork> work_;
    bool ended_ = false;
};

/// Whether both paths lead to one folder.
bool AreSameFolder(const FileSystem& files, TextView a, TextView b);

} // namespace korvane
