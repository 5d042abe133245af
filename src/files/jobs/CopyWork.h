#pragma once

#include "files/jobs/CopyMoveRun.h"
#include "files/jobs/CopyTask.h"
#include "platform/PatientDisk.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace korvane {

/// The part of a job that works on the disk, maybe in a thread of its own. It pauses where the user has to
/// say or to be told something.
class CopyWork {
public:
    explicit CopyWork(CopyTask task);
    CopyWork(const CopyWork&) = delete;
    CopyWork& operator=(const CopyWork&) = delete;

    /// What it shares at any time with those who wait for it.
    struct Signs {
        /// The job is to end at the next place where messages run.
        std::atomic<bool> stops = false;
        /// It is to end after the file at hand.
        std::atomic<bool> cancels = false;
        /// Nobody waits for the work any more.
        std::atomic<bool> abandoned = false;
        /// Which file is at hand, from 1 on.
        std::atomic<std::size_t> number = 1;
        std::atomic<std::int32_t> copied = 0;
        /// Grows as long as the disk does something.
        std::atomic<int> steps = 0;
    };
    Signs& TheSigns() { return signs_; }

    /// Goes on with so many files, or until it pauses.
    void GoOn(FileSystem& files, const StillWaits& stillWaits, std::size_t count);

    // What it is asked when it isn't at work.

    enum class Pause : std::uint8_t { None, Question, DriveFull, CopyFailed };
    Pause WhyPaused() const { return pause_; }
    bool HasEnded() const { return ended_; }
    /// Whether it has come to a file.
    bool HasBegun() const { return !source_.empty(); }
    /// The answers to its questions, and its counts.
    CopyMoveRun& Run() { return run_; }
    // Of the file at hand.
    const Text& Source() const { return source_; }
    const Text& Target() const { return target_; }
    std::int64_t SourceSize() const { return sourceSize_; }
    /// The system's words for why it couldn't be copied.
    const Text& Reason() const { return reason_; }
    /// As the report of a full drive names it.
    const Text& Drive() const { return drive_; }

private:
    void ReadDrive(const FileSystem& files);
    bool Begins(const FileSystem& files, const StillWaits& stillWaits);
    bool StopsAtYield(const StillWaits& stillWaits);
    void Decide(const FileSystem& files);
    bool IsNewer(const FileSystem& files) const;
    void Handle(FileSystem& files, const StillWaits& stillWaits);
    void Transfer(FileSystem& files, const StillWaits& stillWaits);
    bool HasRoomFor(std::int64_t bytes) const;
    bool Copy(FileSystem& files, const StillWaits& stillWaits);
    void DeleteSource(FileSystem& files) const;
    void EndFull(const FileSystem& files);

    CopyTask task_;
    CopyMoveRun run_;
    Signs signs_;
    Text drive_;
    bool driveRead_ = false;
    bool driveKnown_ = false;
    std::size_t next_ = 0;
    Pause pause_ = Pause::None;
    bool ended_ = false;
    Text source_;
    Text target_;
    std::int64_t sourceSize_ = 0;
    Text reason_;
};

} // namespace korvane
