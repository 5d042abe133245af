#include "files/jobs/CopyJob.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "context/App.h"
#include "context/StandardMessages.h"
#include "context/exchange/CopyMoveRequest.h"
#include "controls/KeyEvent.h"
#include "dialogs/Questions.h"
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

} // namespace

CopyJob::CopyJob(App& app, Task task, CopyMoveRun& run, Host host)
    : app_(app), task_(std::move(task)), run_(run), host_(std::move(host)) {
    const auto volume = app_.Files().Volume(task_.targetFolder);
    const bool hasDrives = app_.Files().Style().HasDrives();
    if (hasDrives) drive_ = ToUpper(Left(task_.targetFolder, 2)) + u"\\";
    if (!volume) return;
    if (!hasDrives) drive_ = volume->root;
    run_.DriveTotal = volume->totalBytes;
    run_.DriveFree = volume->freeBytes;
    driveKnown_ = volume->totalBytes > 0;
}

bool CopyJob::Step() {
    if (ended_ || next_ == task_.items.size() || StopsAtYield()) ended_ = true;
    if (ended_) return false;
    const Text& item = task_.items[next_++];
    if (!IsBlank(item)) Handle(item);
    return !ended_;
}

bool CopyJob::StopsAtYield() {
    host_.yield();
    return run_.LastKey == Key::Escape;
}

void CopyJob::Handle(const Text& item) {
    const FileSystem& files = app_.Files();
    const bool renamed = task_.items.size() == 1 && !IsBlank(task_.targetName);
    const Text source = files.Style().JoinPath(task_.sourceFolder, item);
    Text target = files.Style().JoinPath(task_.targetFolder, renamed ? task_.targetName : item);
    app_.Exchange<CopyMoveRequest>().LastCopyTarget = task_.targetFolder;
    Decide(source, target);
    if (run_.NoToAll == 1 && files.FileExists(target)) return;
    const bool wanted = run_.CopyThisFile == 1 || run_.YesToAll == 1;
    if (!wanted || !files.FileExists(source)) return;
    if (StopsAtYield()) {
        ended_ = true;
        return;
    }
    Transfer(source, target);
}

void CopyJob::Decide(const Text& source, Text& target) {
    const bool isThere = app_.Files().FileExists(target);
    run_.CopyThisFile = 1;
    if (run_.UpdateOnly == 1) {
        if (isThere && !IsNewer(source, target)) run_.CopyThisFile = 0;
    } else if (isThere && run_.NoToAll == 0 && run_.YesToAll == 0) {
        run_.AskSource = source;
        run_.AskTarget = target;
        run_.CopyThisFile = 0;
        host_.ask();
        target = run_.AskTarget;
    }
    if (run_.YesToAll == 1) run_.CopyThisFile = 1;
}

bool CopyJob::IsNewer(const Text& source, const Text& target) const {
    const FileSystem& files = app_.Files();
    return MinuteNumber(files.Modified(source)) > MinuteNumber(files.Modified(target));
}

void CopyJob::Transfer(const Text& source, const Text& target) {
    FileSystem& files = app_.Files();
    const std::int64_t needed = BytesNeeded(source, target);
    if (!HasRoomFor(needed)) return ReportFullDrive(source);
    // On one volume nothing has to be copied.
    const bool renamed = task_.move && !files.FileExists(target) && files.Rename(source, target);
    if (!renamed && !Copy(source, target)) return;
    run_.DriveFree -= needed;
    ++run_.FilesCopied;
    if (task_.move && !renamed) DeleteSource(source);
    if (run_.CancelPressed == 1) ended_ = true;
}

std::int64_t CopyJob::BytesNeeded(const Text& source, const Text& target) const {
    const FileSystem& files = app_.Files();
    const std::int64_t old = files.FileExists(target) ? files.Size(target).value_or(0) : 0;
    return std::max<std::int64_t>(files.Size(source).value_or(0) - old, 0);
}

bool CopyJob::HasRoomFor(std::int64_t bytes) const {
    return !driveKnown_ || run_.DriveFree >= bytes + kReserve;
}

bool CopyJob::Copy(const Text& source, const Text& target) {
    FileSystem& files = app_.Files();
    const CopyOptions options{.flush = task_.move, .betweenSteps = host_.yield};
    const CopyOutcome outcome = files.Copy(source, target, options);
    if (outcome == CopyOutcome::DiskFull) {
        // The estimate was wrong: a file takes whole blocks, and others write to the disk too.
        ReportFullDrive(source);
    } else if (outcome == CopyOutcome::Failed) {
        ShowCannotAccess(app_, target);
        // What failed once would fail for each further file.
        ended_ = !files.DirExists(task_.targetFolder);
    }
    return outcome == CopyOutcome::Copied;
}

void CopyJob::DeleteSource(const Text& source) {
    // What a link leads to wasn't to be moved.
    if (app_.Files().IsLink(source)) {
        app_.Files().RemoveLink(source);
    } else {
        DeleteFileQuietly(app_, source);
    }
}

void CopyJob::ReportFullDrive(const Text& source) {
    ended_ = true;
    Warn(app_, u"Target drive full !\r\n\r\nTarget drive\t" + drive_ + u"\r\nTotal space\t" +
                   FormatGrouped(run_.DriveTotal) + u"\r\nFree space\t" + FormatGrouped(run_.DriveFree) +
                   u"\r\n\r\nHalted at\t" + ToUpper(source) + u"\r\nSize\t" +
                   FormatGrouped(app_.Files().Size(source).value_or(0)));
}

bool AreSameFolder(const App& app, TextView a, TextView b) {
    const FileSystem& files = app.Files();
    return files.Style().SameName(a, b) || files.IsSame(a, b);
}

} // namespace korvane
