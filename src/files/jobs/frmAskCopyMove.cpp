#include "files/jobs/frmAskCopyMove.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "files/names/FieldKeys.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/PatientDisk.h"

#include <cstdint>
#include <optional>

namespace korvane {

namespace {

struct Facts {
    std::int64_t size = 0;
    std::optional<DateTime> modified;
};

} // namespace

frmAskCopyMove::frmAskCopyMove(App& app, CopyMoveRun& run)
    : Form(app.Forms(), "frmAskCopyMove", u"Please confirm . . ."), app_(app), run_(run) {
    Frame1.Caption = u" Overwrite existing file ? ";
    cmdYes.Click = [this] { cmdYes_Click(); };
    cmdNo.Click = [this] { cmdNo_Click(); };
    cmdYesToAll.Click = [this] { cmdYesToAll_Click(); };
    cmdNoToAll.Click = [this] { cmdNoToAll_Click(); };
    cmdRenameTarget.Click = [this] { cmdRenameTarget_Click(); };
    cmdAcceptRename.Click = [this] { cmdAcceptRename_Click(); };
    cmdReject.Click = [this] { cmdReject_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
    cmdReject.Cancel = true;
    cmdAcceptRename.Default = true;
    txtTarget.KeyDown = [this](KeyEvent& key) { ChangeCaseByKey(txtTarget, key); };
}

void frmAskCopyMove::Load() {
    lblSource.Caption = Text(app_.Files().Style().NamePart(run_.AskSource));
    lblSource.ToolTipText = run_.AskSource;
    lblSourceFacts.Caption = FactsOf(run_.AskSource);
    ShowTarget();
    SetRenaming(false);
    cmdYes.SetFocus();
}

void frmAskCopyMove::ShowTarget() {
    const PathStyle style = app_.Files().Style();
    lblTargetPath.Caption = style.DirectoryForChange(style.FolderPart(run_.AskTarget));
    txtTarget.Text = Text(style.NamePart(run_.AskTarget));
    lblTargetFacts.Caption = FactsOf(run_.AskTarget);
}

Text frmAskCopyMove::FactsOf(const Text& path) const {
    const auto facts =
        AnswerTo<Facts>([this](const DiskQuestion& question) { return AskDiskSoon(app_, question); },
                        [path](const FileSystem& files, const StillWaits&) {
                            return Facts{files.Size(path).value_or(0), files.Modified(path)};
                        })
            .value_or(Facts());
    return u"Size:  " + FormatGrouped(facts.size) + u"    Modified:  " +
           (facts.modified ? app_.Locale().GeneralDate(*facts.modified) : Text());
}

// Kept for compatibility: no-to-all-while-renaming.
void frmAskCopyMove::SetRenaming(bool renaming) {
    for (CommandButton* button : {&cmdYes, &cmdYesToAll, &cmdNo, &cmdCancel, &cmdRenameTarget})
        button->Visible = !renaming;
    for (CommandButton* button : {&cmdAcceptRename, &cmdReject})
        button->Visible = renaming;
    txtTarget.Locked = !renaming;
}

void frmAskCopyMove::cmdYes_Click() {
    run_.CopyThisFile = 1;
    Close();
}

void frmAskCopyMove::cmdNo_Click() {
    run_.CopyThisFile = 0;
    Close();
}

void frmAskCopyMove::cmdYesToAll_Click() {
    run_.YesToAll = 1;
    Close();
}

void frmAskCopyMove::cmdNoToAll_Click() {
    run_.NoToAll = 1;
    run_.CopyThisFile = 0;
    Close();
}

void frmAskCopyMove::cmdRenameTarget_Click() {
    SetRenaming(true);
    txtTarget.SelectAll();
    txtTarget.SetFocus();
}

void frmAskCopyMove::cmdAcceptRename_Click() {
    const Text target = app_.Files().Style().JoinPath(lblTargetPath.Caption.Get(), txtTarget.Text.Get());
    const auto there = AnswerTo<bool>(
        [this](const DiskQuestion& question) { return AskDiskSoon(app_, question); },
        [target](const FileSystem& files, const StillWaits&) { return files.FileExists(target); });
    if (!there) return;
    if (!*there) {
        run_.AskTarget = target;
        run_.CopyThisFile = 1;
        Close();
        return;
    }
    lblTargetFacts.Caption = FactsOf(target);
    const Answer answer = app_.Messages().Show(
        {u"Altered target already exists on disk !\r\n\r\nTry renaming it again or choose Cancel.",
         MessageIcon::Exclamation, MessageButtons::OkCancel});
    if (answer == Answer::Cancel) cmdReject_Click();
}

void frmAskCopyMove::cmdReject_Click() {
    ShowTarget();
    SetRenaming(false);
    cmdYes.SetFocus();
}

} // namespace korvane
