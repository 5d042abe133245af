#include "files/jobs/CopyWork.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "context/StandardMessages.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

/// So many bytes have to stay free on the target drive by the job's own estimate. Kept for compatibility:
/// free-space-read-once.
constexpr std::int64_t kReserve = 4096;

bool IsBlank(TextView text) {
    return Trim(text).empty();
}

/// The time to the minute as a number, 0 for a file that has none. Kept for compatibility:
/// update-compares-minutes.
double MinuteNumber(const std::optional<DateTime>& time) {
    return time ? Val(FormatDate(*time, u"yyyymmddhhmm")) : 0;
}

std::int64_t BytesNeeded(const FileSystem& files, const Text& source, const Text& target) {
    const std::int64_t old = files.FileExists(target) ? files.Size(target).value_or(0) : 0;
    return std::max<std::int64_t>(files.Size(source).value_or(0) - old, 0);
}

} // namespace

CopyWork::CopyWork(CopyTask task) : task_(std::move(task)) {}

void CopyWork::GoOn(FileSystem& files, const StillWaits& stillWaits, std::size_t count) {
    if (!driveRead_) ReadDrive(files);
    if (std::exchange(pause_, Pause::None) == Pause::Question) {
        Handle(files, stillWaits);
        --count;
    }
    for (; count > 0 && pause_ == Pause::None && !ended_; --count) {
        if (!Begins(files, stillWaits)) continue;
        Decide(files);
        if (pause_ == Pause::None) Handle(files, stillWaits);
    }
}

void CopyWork::ReadDrive(const FileSystem& files) {
    driveRead_ = true;
    const auto volume = files.Volume(task_.targetFolder);
    const bool hasDrives = files.Style().HasDrives();
    if (hasDrives) drive_ = ToUpper(Left(task_.targetFolder, 2)) + u"\\";
    if (!volume) return;
    if (!hasDrives) drive_ = volume->root;
    run_.DriveTotal = volume->totalBytes;
    run_.DriveFree = volume->freeBytes;
    driveKnown_ = volume->totalBytes > 0;
}

/// Takes the next file; false if there is none to be handled.
bool CopyWork::Begins(const FileSystem& files, const StillWaits& stillWaits) {
    signs_.number = next_ + 1;
    if (next_ == task_.items.size() || StopsAtYield(stillWaits)) {
        ended_ = true;
        return false;
    }
    const Text& item = task_.items[next_++];
    if (IsBlank(item)) return false;
    const bool renamed = task_.items.size() == 1 && !IsBlank(task_.targetName);
    source_ = files.Style().JoinPath(task_.sourceFolder, item);
    target_ = files.Style().JoinPath(task_.targetFolder, renamed ? task_.targetName : item);
    return true;
}

bool CopyWork::StopsAtYield(const StillWaits& stillWaits) {
    ++signs_.steps;
    const bool waits = stillWaits();
    return signs_.stops || !waits;
}

void CopyWork::Decide(const FileSystem& files) {
    const bool isThere = files.FileExists(target_);
    run_.CopyThisFile = 1;
    if (run_.UpdateOnly == 1) {
        if (isThere && !IsNewer(files)) run_.CopyThisFile = 0;
    } else if (isThere && run_.NoToAll == 0 && run_.YesToAll == 0) {
        run_.AskSource = source_;
        run_.AskTarget = target_;
        run_.CopyThisFile = 0;
        pause_ = Pause::Question;
    }
}

bool CopyWork::IsNewer(const FileSystem& files) const {
    return MinuteNumber(files.Modified(source_)) > MinuteNumber(files.Modified(target_));
}

/// The file, when it is known what the user wants.
void CopyWork::Handle(FileSystem& files, const StillWaits& stillWaits) {
    if (!run_.AskTarget.empty()) target_ = std::exchange(run_.AskTarget, {});
    if (run_.YesToAll == 1) run_.CopyThisFile = 1;
    if (run_.NoToAll == 1 && files.FileExists(target_)) return;
    if (run_.CopyThisFile == 0 || !files.FileExists(source_)) return;
    if (StopsAtYield(stillWaits)) {
        ended_ = true;
        return;
    }
    Transfer(files, stillWaits);
}

void CopyWork::Transfer(FileSystem& files, const StillWaits& stillWaits) {
    const std::int64_t needed = BytesNeeded(files, source_, target_);
    if (!HasRoomFor(needed)) return EndFull(files);
    // On one volume nothing has to be copied.
    const bool renamed = task_.move && !files.FileExists(target_) && files.Rename(source_, target_);
    if (!renamed && !Copy(files, stillWaits)) return;
    run_.DriveFree -= needed;
    signs_.copied = ++run_.FilesCopied;
    // The user has been told that the job ended before this file.
    if (task_.move && !renamed && !signs_.abandoned) DeleteSource(files);
    if (signs_.cancels) ended_ = true;
}

bool CopyWork::HasRoomFor(std::int64_t bytes) const {
    return !driveKnown_ || run_.DriveFree >= bytes + kReserve;
}

bool CopyWork::Copy(FileSystem& files, const StillWaits& stillWaits) {
    const auto step = [this, &stillWaits] {
        ++signs_.steps;
        stillWaits();
    };
    const CopyOutcome outcome = files.Copy(source_, target_, {.flush = task_.move, .betweenSteps = step});
    if (outcome == CopyOutcome::DiskFull) {
        // The estimate was wrong: a file takes whole blocks, and others write to the disk too.
        EndFull(files);
    } else if (outcome == CopyOutcome::Failed) {
        pause_ = Pause::CopyFailed;
        reason_ = files.LastErrorText();
        // What failed once would fail for each further file.
        ended_ = !files.DirExists(task_.targetFolder);
    }
    return outcome == CopyOutcome::Copied;
}

void CopyWork::DeleteSource(FileSystem& files) const {
    // What a link leads to wasn't to be moved.
    if (files.IsLink(source_)) {
        files.RemoveLink(source_);
    } else {
        DeleteFileQuietly(files, source_);
    }
}

void CopyWork::EndFull(const FileSystem& files) {
    pause_ = Pause::DriveFull;
    ended_ = true;
    sourceSize_ = files.Size(source_).value_or(0);
}

} // namespace korvane
