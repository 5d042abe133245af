#pragma once

#include "files/jobs/CopyMoveRun.h"

#include <functional>
#include <vector>

namespace korvane {

class App;

/// Copies or moves the files of one folder to another one, a file with each step.
class CopyJob {
public:
    struct Task {
        bool move = false;
        Text sourceFolder;
        /// The files' names.
        std::vector<Text> items;
        Text targetFolder;
        /// Another name for the target of a single file; blank for the same one.
        Text targetName{};
    };
    /// What the job leaves to whoever runs it.
    struct Host {
        /// Lets messages run, by which the job may be told to stop.
        std::function<void()> yield;
        /// Asks whether the target in `AskTarget` is to be overwritten, and leaves the answer in the run.
        std::function<void()> ask;
    };

    /// All outlive the job. `run` has its answers of earlier jobs cleared.
    CopyJob(App& app, Task task, CopyMoveRun& run, Host host);

    /// Handles the next file; false when the job has ended.
    bool Step();

private:
    bool StopsAtYield();
    void Handle(const Text& item);
    void Decide(const Text& source, Text& target);
    bool IsNewer(const Text& source, const Text& target) const;
    void Transfer(const Text& source, const Text& target);
    std::int64_t BytesNeeded(const Text& source, const Text& target) const;
    bool HasRoomFor(std::int64_t bytes) const;
    bool Copy(const Text& source, const Text& target);
    void DeleteSource(const Text& source);
    void ReportFullDrive(const Text& source);

    App& app_;
    Task task_;
    CopyMoveRun& run_;
    Host host_;
    /// As the report of a full drive names it.
    Text drive_;
    bool driveKnown_ = false;
    std::size_t next_ = 0;
    bool ended_ = false;
};

/// Whether both paths lead to one folder.
bool AreSameFolder(const App& app, TextView a, TextView b);

} // namespace korvane
