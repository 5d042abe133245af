#include "files/jobs/frmCopyMove.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/FileChooser.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FavouriteFolders.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "files/jobs/CopyJob.h"
#include "files/jobs/Explore.h"
#include "files/jobs/frmAskCopyMove.h"
#include "files/names/FieldKeys.h"
#include "files/names/frmNewDir.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr std::int16_t kMove = 2;
constexpr std::int16_t kForCopyWindow = 1;

/// From this time on a wait for the disk is seen.
constexpr std::chrono::milliseconds kLong{300};
/// So many files are worked on at a time, since each time costs a turn to another thread and back.
constexpr std::size_t kFilesInStep = 256;

constexpr Twips kLeastWidth{6576};
constexpr Twips kLeastHeight{6000};
constexpr Twips kOpeningWidth{6612};
constexpr Twips kOpeningHeight{8148};
constexpr int kSeenOnScreen = 240;
constexpr Twips kWhenNotSeen{360};

/// A stored place that isn't seen on a screen of this length is replaced.
Twips SeenPlace(std::int32_t stored, Twips screenLength) {
    return stored < screenLength.Number() - kSeenOnScreen ? Twips{stored} : kWhenNotSeen;
}

} // namespace

struct frmCopyMove::Tables {
    // By the buttons: they do nothing while a job runs.
    static constexpr MenuRow<frmCopyMove> kMenu[] = {
        {0, "mnuExit", u"E&xit", "", &frmCopyMove::Close},
        {0, "mnuDelete", u"&Delete", "", &frmCopyMove::cmdDelDir},
        {0, "mnuNewDir", u"&New folder", "", &frmCopyMove::cmdNewDir},
        {0, "mnuSource", u"&Source", "", &frmCopyMove::cmdExploreSource},
        {0, "mnuTarget", u"&Target", "", &frmCopyMove::cmdExploreTarget},
        {0, "mnuGetFromTarget", u"&Get from target list", "", &frmCopyMove::cmdGetFromTarget},
        {0, "mnuProceed", u"&Proceed", "", &frmCopyMove::cmdOk},
    };
    static constexpr WindowKey<frmCopyMove> kTreeKeys[] = {{"Ctrl+V", &frmCopyMove::cmdOk}};
    static constexpr WindowKey<frmCopyMove> kNameKeys[] = {{"Return", &frmCopyMove::cmdOk}};
    static constexpr WindowKey<frmCopyMove> kOkKeys[] = {{"Any+Esc", &frmCopyMove::Stop}};
};

frmCopyMove::frmCopyMove(App& app)
    : Form(app.Forms(), "frmCopyMove", u" Target for: "),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      folders_(app.Files(), TreeView1, FolderTimer) {
    txtFullPath.Locked = true;
    Wire();
}

void frmCopyMove::Wire() {
    const auto on = [this](CommandButton& button, Handler<frmCopyMove> starts) {
        button.Click = [this, starts] { starts.Run(*this); };
    };
    on(cmdOk, &frmCopyMove::Proceed);
    on(cmdNewDir, &frmCopyMove::NewFolder);
    on(cmdDelDir, &frmCopyMove::DeleteFolder);
    on(cmdExploreSource, &frmCopyMove::ExploreSource);
    on(cmdExploreTarget, &frmCopyMove::ExploreTarget);
    on(cmdGetFromTarget, &frmCopyMove::GetFromTarget);
    cmdCancel.Click = [this] { run_.CancelPressed = 1; };
    // Consumed, since a press of the button would end the job without the closing question.
    cmdCancel.KeyDown = [this](KeyEvent& key) {
        key.consumed = true;
        Stop();
    };
    cmdOk.KeyDown = [this](KeyEvent& key) {
        // In an idle window the key closes it.
        if (running_) RunKey(Tables::kOkKeys, *this, key);
    };
    folders_.Asks = [this](const DiskQuestion& question, const std::function<bool()>& wanted) {
        return Ask(question, wanted);
    };
    folders_.AsksUnseen = [this](const DiskQuestion& question) { return AskDiskUnseen(app_, question); };
    folders_.FolderChanged = [this] { txtFullPath.Text = folders_.Folder(); };
    TreeView1.KeyDown = KeysOf(*this, Tables::kTreeKeys);
    txtTargetName.KeyDown = [this](KeyEvent& key) { txtTargetName_KeyDown(key); };
}

void frmCopyMove::txtTargetName_KeyDown(KeyEvent& key) {
    if (!ChangeCaseByKey(txtTargetName, key)) RunKey(Tables::kNameKeys, *this, key);
}

CopyMoveRequest& frmCopyMove::Request() const {
    return app_.Exchange<CopyMoveRequest>();
}

// Opening and closing.

void frmCopyMove::Load() {
    savedDir_ = app_.Files().CurrentDir();
    Place();
    ShowRequest();
    cmdCancel.Visible = false;
    frmCopying.Visible = false;
    folders_.Fill();
    GoToStart();
    TreeView1.SetFocus();
}

void frmCopyMove::Place() {
    const auto& settings = app_.Settings;
    const Rect screen = app_.Screen().WorkArea();
    Left = SeenPlace(settings.CopyMoveGeo1, screen.left + screen.width.Number());
    Top = SeenPlace(settings.CopyMoveGeo2, screen.top + screen.height.Number());
    Height = std::max(Twips{settings.CopyMoveGeo3}, kOpeningHeight);
    Width = std::max(Twips{settings.CopyMoveGeo4}, kOpeningWidth);
}

void frmCopyMove::ShowRequest() {
    const std::vector<Text>& marked = Request().lstMarkedFiles;
    lstMarkedFiles.Clear();
    for (const Text& name : marked)
        lstMarkedFiles.AddItem(name);
    const bool single = marked.size() == 1;
    Caption = u" Target for: " + (single ? marked.front() : NumberText(marked.size()) + u" file(s)") +
              (Request().CopyMoveKind == kMove ? u" [ Move ] " : u" [ Copy ] ");
    txtTargetName.Text = single ? marked.front() : Text();
    txtTargetName.Visible = single;
    lblNewName.Visible = single;
}

void frmCopyMove::GoToStart() {
    const Text& last = Request().LastCopyTarget;
    const bool there = HasFolderSoon(app_, last).value_or(false);
    const Text start = there ? last : app_.Files().CurrentDir();
    txtFullPath.Text = start;
    folders_.SetTreePath(start);
}

bool frmCopyMove::QueryUnload() {
    if (running_) run_.CancelPressed = 1;
    return !running_;
}

void frmCopyMove::Unload() {
    folders_.Abandon();
    GoBackTo(app_, savedDir_);
    if (State == FormState::Minimised) return;
    auto& settings = app_.Settings;
    settings.CopyMoveGeo1 = Left.Get().Number();
    settings.CopyMoveGeo2 = Top.Get().Number();
    settings.CopyMoveGeo3 = Height.Get().Number();
    settings.CopyMoveGeo4 = Width.Get().Number();
}

void frmCopyMove::Resize() {
    if (State == FormState::Minimised) return;
    Width = std::max(Width.Get(), kLeastWidth);
    Height = std::max(Height.Get(), kLeastHeight);
}

void frmCopyMove::KeyDown(KeyEvent& key) {
    if (running_ || !key.Is(Key::Escape, Mask::None)) return;
    key.consumed = true;
    Close();
}

// The disk.

/// A long wait is shown as a job is, with the same button to stop it.
bool frmCopyMove::Ask(const DiskQuestion& question, const std::function<bool()>& wanted) {
    if (running_) return false;
    // The window can't be seen yet.
    if (!Shown()) return AskDiskSoon(app_, question);
    const auto start = app_.Clock().Uptime();
    Control& focused = Focused() == nullptr ? TreeView1 : *Focused();
    run_ = {};
    const bool answered = AskDisk(app_, question, [&] {
        if (app_.Clock().Uptime() - start < kLong) return wanted();
        frmCopying.Caption = u" Waiting for the disk ";
        if (!running_) SetRunning(true);
        app_.Screen().Yield();
        return run_.LastKey != Key::Escape && run_.CancelPressed == 0 && wanted();
    });
    if (running_) {
        SetRunning(false);
        focused.SetFocus();
    }
    return answered;
}

/// Nothing when the user stopped the wait.
template <class AnswerT, class QuestionT>
std::optional<AnswerT> frmCopyMove::AnswerOf(QuestionT question) {
    return AnswerTo<AnswerT>([this](const DiskQuestion& asked) { return Ask(asked, [] { return true; }); },
                             [question](FileSystem& files, const StillWaits&) { return question(files); });
}

// The job.

void frmCopyMove::Proceed() {
    const auto same =
        AnswerOf<bool>([target = txtFullPath.Text.Get(), source = Request().CopySourceFolder](
                           const FileSystem& files) { return AreSameFolder(files, target, source); });
    if (!same) return;
    run_ = {};
    run_.UpdateOnly = chkUpdateOnly.Value;
    if (*same) return Warn(app_, u"Source and Target directories must be different!");
    {
        const Hourglass hourglass(app_.Screen());
        Run();
        // Kept for compatibility: copy-cancel-asks-nothing.
        if (run_.CancelPressed == 0) ReportEnd();
    }
    Close();
}

void frmCopyMove::Run() {
    SetRunning(true);
    const auto ask = [this] { frmAskCopyMove(app_, run_).ShowModal(); };
    const CopyMoveRequest& request = Request();
    const CopyJob* running = nullptr;
    const auto yield = [this, &running] {
        ShowNumber(running->Number());
        app_.Screen().ProcessMessages();
    };
    CopyJob job(app_,
                {.move = request.CopyMoveKind == kMove,
                 .sourceFolder = request.CopySourceFolder,
                 .items = request.lstMarkedFiles,
                 .targetFolder = txtFullPath.Text,
                 .targetName = txtTargetName.Text},
                run_, {.yield = yield, .ask = ask});
    running = &job;
    while (job.Step(kFilesInStep)) {
    }
    SetRunning(false);
}

void frmCopyMove::ShowNumber(std::size_t number) {
    const Text all = NumberText(Request().lstMarkedFiles.size());
    frmCopying.Caption = u" File " + NumberText(number) + u" of " + all + u" ";
}

/// While a job runs, all it depends on is held still.
void frmCopyMove::SetRunning(bool running) {
    running_ = running;
    frmCopying.Visible = running;
    cmdCancel.Visible = running;
    if (running) cmdCancel.SetFocus();
    const std::array<Control*, 9> held{&cmdNewDir,        &cmdDelDir,     &cmdExploreSource,
                                       &cmdExploreTarget, &TreeView1,     &cmdGetFromTarget,
                                       &txtTargetName,    &chkUpdateOnly, &cmdOk};
    for (Control* control : held)
        control->Enabled = !running;
}

void frmCopyMove::ReportEnd() {
    // Kept for compatibility: move-told-as-copied.
    const bool view =
        AskYesNo(app_, NumberText(run_.FilesCopied) + u" file(s) copied to this folder:\r\n\r\n" +
                           txtFullPath.Text.Get() + u"\r\n\r\nView folder with Windows Explorer?");
    if (view) ExploreTarget();
}

void frmCopyMove::Stop() {
    run_.LastKey = Key::Escape;
}

// Folders.

void frmCopyMove::ShowFolder(const Text& folder) {
    folders_.Fill();
    folders_.SetTreePath(folder);
}

void frmCopyMove::NewFolder() {
    const Text folder = txtFullPath.Text;
    // The window makes the folder in the current directory.
    const auto entered = AnswerOf<bool>([folder](FileSystem& files) { return files.ChangeDir(folder); });
    if (!entered) return;
    if (!*entered) return TellError(app_, u"Cannot locate this directory:\r\n\r\n" + folder);
    app_.DialogResult = 0;
    frmNewDir(app_).ShowModal();
    ShowFolder(app_.DialogResult == 1 ? app_.Exchange<FileOperation>().NewFolderResult : folder);
}

void frmCopyMove::DeleteFolder() {
    const Text folder = txtFullPath.Text;
    if (app_.Files().Style().IsRoot(folder)) {
        return TellError(app_, u"You cannot delete the root directory!");
    }
    const auto names = AnswerOf<std::vector<Text>>(
        [folder](const FileSystem& files) { return files.FileNames(folder, u"*.*"); });
    if (!names) return;
    if (!names->empty()) return Warn(app_, u"You can only delete an empty directory!");
    const Answer answer = app_.Messages().Show({u"Do you wish to delete this directory ?\r\n\r\n" + folder,
                                                MessageIcon::Exclamation, MessageButtons::YesNo, 2});
    if (answer == Answer::Yes) RemoveFolder(folder);
}

void frmCopyMove::RemoveFolder(const Text& folder) {
    const PathStyle style = app_.Files().Style();
    const Text parent = style.DirectoryForChange(style.FolderPart(folder));
    const auto removed = AnswerOf<bool>([folder, parent](FileSystem& files) {
        files.ChangeDir(parent);
        return files.RemoveDir(folder);
    });
    if (!removed) return;
    if (!*removed) {
        Warn(app_, u"There was an error attempting to remove the following directory.\r\n\r\n" + folder +
                       u"\r\n\r\nMaybe it is not a terminal node in the drive tree ?");
    }
    ShowFolder(parent);
}

void frmCopyMove::ExploreSource() {
    Explore(app_, Request().CopySourceFolder);
}

void frmCopyMove::ExploreTarget() {
    Explore(app_, txtFullPath.Text);
}

void frmCopyMove::GetFromTarget() {
    auto* favourites = app_.Port<FavouriteFolders>();
    if (favourites == nullptr) return;
    auto& mode = app_.Exchange<FolderPick>().FavouritePickMode;
    auto& lister = app_.Exchange<ListerRequest>();
    mode = kForCopyWindow;
    lister.ChosenFilePath.clear();
    app_.DialogResult = 0;
    favourites->Show();
    mode = 0;
    if (app_.DialogResult != 1 || lister.ChosenFilePath.empty()) return;
    lister.ListerFolder = lister.ChosenFilePath;
    txtFullPath.Text = lister.ChosenFilePath;
    folders_.SetTreePath(lister.ChosenFilePath);
}

} // namespace korvane
