#include "files/jobs/CopyJob.h"

#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/StandardMessages.h"
#include "context/exchange/CopyMoveRequest.h"
#include "controls/KeyEvent.h"
#include "dialogs/Questions.h"
#include "files/jobs/CopyWork.h"
#include "platform/FileSystem.h"

#include <utility>

namespace korvane {

CopyJob::CopyJob(App& app, Task task, CopyMoveRun& run, Host host)
    : app_(app),
      targetFolder_(task.targetFolder),
      run_(run),
      host_(std::move(host)),
      work_(std::make_shared<CopyWork>(std::move(task))) {}

std::size_t CopyJob::Number() const {
    return work_->TheSigns().number;
}

bool CopyJob::Step(std::size_t files) {
    if (ended_ || !GoOn(files)) return false;
    if (work_->WhyPaused() == CopyWork::Pause::Question) {
        host_.ask();
        if (!GoOn(1)) return false;
    }
    if (work_->WhyPaused() == CopyWork::Pause::DriveFull) ReportFullDrive();
    if (work_->WhyPaused() == CopyWork::Pause::CopyFailed)
        ShowCannotAccess(app_, work_->Target(), FileAccess::Save, work_->Reason());
    return !ended_;
}

/// False when the disk didn't answer until the user stopped it.
bool CopyJob::GoOn(std::size_t files) {
    work_->Run() = run_;
    Standstill standstill(app_);
    const bool answered = AskDisk(
        app_,
        [work = work_, files](FileSystem& disk, const korvane::StillWaits& stillWaits) {
            work->GoOn(disk, stillWaits, files);
        },
        [&] { return StillWaits(standstill); });
    if (answered) {
        TakeRun();
    } else {
        work_->TheSigns().abandoned = true;
        run_.FilesCopied = work_->TheSigns().copied;
        ended_ = true;
    }
    return answered;
}

bool CopyJob::StillWaits(Standstill& standstill) {
    host_.yield();
    CopyWork::Signs& signs = work_->TheSigns();
    signs.stops = run_.LastKey == Key::Escape;
    signs.cancels = run_.CancelPressed == 1;
    const bool silent = standstill.Lasts(signs.steps);
    return !(signs.stops || signs.cancels) || !silent;
}

/// The keys are the user's.
void CopyJob::TakeRun() {
    const std::int16_t lastKey = run_.LastKey;
    const std::int16_t cancelPressed = run_.CancelPressed;
    run_ = work_->Run();
    run_.LastKey = lastKey;
    run_.CancelPressed = cancelPressed;
    ended_ = work_->HasEnded();
    if (work_->HasBegun()) app_.Exchange<CopyMoveRequest>().LastCopyTarget = targetFolder_;
}

void CopyJob::ReportFullDrive() {
    Warn(app_, u"Target drive full !\r\n\r\nTarget drive\t" + work_->Drive() + u"\r\nTotal space\t" +
                   FormatGrouped(run_.DriveTotal) + u"\r\nFree space\t" + FormatGrouped(run_.DriveFree) +
                   u"\r\n\r\nHalted at\t" + ToUpper(work_->Source()) + u"\r\nSize\t" +
                   FormatGrouped(work_->SourceSize()));
}

bool AreSameFolder(const FileSystem& files, TextView a, TextView b) {
    return files.Style().SameName(a, b) || files.IsSame(a, b);
}

} // namespace korvane
