#include "files/lister/frmGetFileFromTree.h"

#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/DiskQuestions.h"
#include "context/Launching.h"
#include "context/WindowFitting.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/MainWindow.h"
#include "controls/KeyTable.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "dialogs/Webmail.h"
#include "files/lister/rows/ListPatterns.h"
#include "files/names/FieldKeys.h"
#include "files/names/NameTyping.h"
#include "files/names/frmEnterFileName.h"
#include "files/viewing/StartIvrand.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr Twips kLeastWidth{8256};
constexpr Twips kLeastHeight{4000};
constexpr StoredPlace kPlace{&Settings::TreeFormLeft, &Settings::TreeFormTop, &Settings::TreeFormWidth,
                             &Settings::TreeFormHeight};

/// In pixels, from both edges of the window.
constexpr int kLeastFromEdge = 40;
/// What the list doesn't have of its side of the window: edges and the bar by which it is scrolled.
constexpr int kListMargin = 600;
constexpr Colour kSaveColour{0xF7FFFF};
constexpr int kPercentOfMainWindow = 95;

/// How long the window waits for its first folder.
constexpr std::chrono::milliseconds kPatienceAtStart{1000};

// What the windows answer that are opened here.
constexpr std::int16_t kSaveAtOnce = 9;
constexpr std::int16_t kCloseLister = 11;
constexpr std::int16_t kGoToHint = 99;

} // namespace

struct frmGetFileFromTree::Tables {
    using Window = frmGetFileFromTree;

    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuFile_Proceed", u"&Proceed", "", &Window::cmdOk},
        {1, "mnuFile_Recent", u"Recent &files", "", &Window::RecentFiles},
        {1, "mnuFile_Refresh", u"Refres&h", "", &Window::Refresh},
        {1, "mnuFile_Line1", u"", ""},
        {1, "mnuFile_FindText", u"Find te&xt", "", &Window::FindText},
        {1, "mnuFile_FindFiles", u"&Find file(s)", "", &Window::FindFiles},
        {1, "mnuFile_Line2", u"", ""},
        {1, "mnuFile_Cancel", u"&Cancel", "", &Window::cmdCancel},
        {0, "mnuEdit", u"&Edit", ""},
        {1, "mnuEdit_View", u"&View file", "", &Window::cmdViewFile},
        {1, "mnuEdit_ViewWith", u"View &with user program", "", &Window::cmdViewWith},
        {1, "mnuEdit_FileInfo", u"&File info", "", &Window::cmdFileInfo},
        {1, "mnuEdit_Line1", u"", ""},
        {1, "mnuEdit_Copy", u"&Copy file(s)    ( Ctrl-C )", "", &Window::cmdCopyFile},
        {1, "mnuEdit_Move", u"&Move file(s)    ( Ctrl-X )", "", &Window::MoveFiles},
        {1, "mnuEdit_Line2", u"", ""},
        {1, "mnuEdit_Rename", u"Re&name file", "", &Window::cmdRename},
        {1, "mnuEdit_Duplicate", u"&Duplicate file", "", &Window::cmdDuplicate},
        {1, "mnuEdit_Delete", u"&Delete file(s)", "", &Window::cmdDelete},
        {0, "mnuFolders", u"&Folders", ""},
        {1, "mnuFolders_New", u"&New folder", "", &Window::NewFolder},
        {1, "mnuFolders_Delete", u"&Delete folder", "", &Window::DeleteFolder},
        {1, "mnuFolders_Rename", u"&Rename folder", "", &Window::RenameFolder},
        {1, "mnuFolders_Line1", u"", ""},
        // The key is Alt+Y. Kept for compatibility: todays-folders-caption-key.
        {1, "mnuFolders_Todays", u"&Todays folders    ( Alt-X )", "", &Window::TodaysFolders},
        {1, "mnuFolders_GetTarget", u"&Get target from list", "", &Window::cmdGetTarget},
        {0, "mnuMisc", u"&Misc", ""},
        {1, "mnuMisc_Explorer", u"&Explorer", "", &Window::cmdExplorer},
        {1, "mnuMisc_Line1", u"", ""},
        {1, "mnuMisc_Colours", u"&Background colour", "", &Window::ChooseColour},
        {1, "mnuMisc_Centre", u"&Centre on screen", "", &Window::cmdCentreOnScreen},
        {1, "mnuMisc_Line2", u"", ""},
        {1, "mnuMisc_Left", u"Move window to &Left", "", &Window::DockLeft},
        {1, "mnuMisc_Right", u"Move window to &Right", "", &Window::DockRight},
    };

    // The keys of the list and the tree, and those of the line of the name that aren't a text field's own.

    static constexpr WindowKey<Window> kCommonKeys[] = {
        {"Alt+Shift+X", &Window::StepFocusA},
        {"Alt+Shift+S", &Window::StepFocusA},
        {"Alt+X", &Window::StepFocusB},
        {"Ctrl+Alt+S", &Window::StepFocusB},
        {"Ctrl+Alt+Y", &Window::NoteTodaysFolder},
        {"Alt+Y", &Window::TodaysFolders},
        {"F1", &Window::cmdEnterFileName},
        {"Alt+S", &Window::FindFile},
        {"Alt+U", &Window::StartIvrandHere},
        {"Ctrl+Shift+F1", &Window::StartLorrit},
        {"Ctrl+Shift+L", &Window::DockLeftWithWidth},
        {"Ctrl+Alt+L", &Window::DockLeft},
        {"Ctrl+Shift+R", &Window::DockRightWithWidth},
        {"Ctrl+Alt+R", &Window::DockRight},
        {"Ctrl+Alt+D", &Window::ToggleDesktop},
        {"Ctrl+Alt+X", &Window::ExploreHere},
        {"Ctrl+Shift+F9", &Window::ExploreHere},
        {"Ctrl+Alt+F5", &Window::Webmail},
        {"Alt+B", &Window::StartBrowser},
        {"F11", &Window::StartTolmereSet},
        {"Any+F11", &Window::ShowClock},
    };
    static constexpr WindowKey<Window> kFileKeys[] = {
        {"Any+Space", &Window::cmdViewFile}, {"F3", &Window::NextPattern},   {"Ctrl+A", &Window::MarkAll},
        {"Ctrl+C", &Window::cmdCopyFile},    {"Ctrl+X", &Window::MoveFiles},
    };
    static constexpr WindowKey<Window> kListKeys[] = {
        {"Return", &Window::PickRow},
        {"F2", &Window::cmdRename},
        {"Delete", &Window::cmdDelete},
    };
    static constexpr WindowKey<Window> kTreeKeys[] = {
        {"Return", &Window::ReadFolderOfTree},
        {"F2", &Window::RenameFolder},
        {"Delete", &Window::DeleteFolder},
        {"Ctrl+Alt+X", &Window::NoteTodaysFolder},
    };
    static constexpr WindowKey<Window> kNameKeys[] = {
        {"F3", &Window::NextExtension},
        {"Ctrl+F3", &Window::MakeDocx},
        {"Ctrl+T", &Window::AddToday},
        {"Esc", &Window::Cancel},
    };
    static constexpr WindowKey<Window> kPatternKeys[] = {{"Return", &Window::ListAgain}};
    static constexpr WindowKey<Window> kStopKeys[] = {
        {"Esc", &Window::StopReading},
        {"Space", &Window::StopReading},
    };
};

frmGetFileFromTree::frmGetFileFromTree(App& app)
    : Form(app.Forms(), "frmGetFileFromTree", u"Get file"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      ListView1(*this, "ListView1", {{u"Name", {}}, {u"Size", {}, ColumnAlign::Right}, {u"mm/dd/yyyy", {}}}),
      app_(app),
      wait_(app, {ListView1, ProgressBar1, cmdEscape}),
      tree_(app.Files(), TreeView1, FolderTimer),
      rows_(app, {ListView1, ProgressBar1, cmdEscape}, wait_),
      folder_(app, {txtFullPath, txtSearchSpec, tree_, rows_, wait_}),
      fileCommands_(app, folder_, rows_, wait_),
      folderCommands_(app, folder_, tree_, wait_),
      proceeding_(app, folder_, rows_, wait_),
      focus_({txtSearchSpec, txtFileName, TreeView1,
              [this] {
                  rows_.TakeFocus();
                  // In an empty list the name that was typed stays.
                  if (rows_.Current() > 0) ShowCurrentName();
              },
              [this] { rows_.TakeFocus(); }}),
      find_(app, [this](const DiskQuestion& question) { return wait_.AskForCommand(question); }) {
    ListView1.MultiSelect = true;
    ListView1.GridLines = true;
    txtFullPath.Locked = true;
    txtSearchSpec.Items = OfferedPatterns();
    ProgressBar1.Visible = false;
    cmdEscape.Visible = false;
    WireButtons();
    WireParts();
}

void frmGetFileFromTree::WireButtons() {
    cmdOk.Click = [this] { Proceed(); };
    cmdEnterFileName.Click = [this] { EnterFileName(); };
    cmdViewFile.Click = [this] { fileCommands_.View(); };
    cmdViewWith.Click = [this] { fileCommands_.ViewWith(); };
    cmdFileInfo.Click = [this] { fileCommands_.ShowInfo(); };
    cmdCopyFile.Click = [this] { fileCommands_.Copy(); };
    cmdRename.Click = [this] { Rename(); };
    cmdDuplicate.Click = [this] { fileCommands_.Duplicate(); };
    cmdDelete.Click = [this] { fileCommands_.Delete(); };
    cmdGetTarget.Click = [this] { folderCommands_.GetTarget(); };
    cmdExplorer.Click = [this] { folderCommands_.Explore(); };
    cmdCentreOnScreen.Click = [this] { CentreOnScreen(); };
    cmdCancel.Click = [this] { Cancel(); };
    cmdEscape.Click = [this] { wait_.Stop(); };
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
}

void frmGetFileFromTree::WireParts() {
    tree_.FolderChanged = [this] { FolderChanged(); };
    tree_.Asks = [this](const DiskQuestion& question, const std::function<bool()>& wanted) {
        return wait_.AskBetween(question, wanted, Focused() == nullptr ? TreeView1 : *Focused());
    };
    tree_.AsksUnseen = [this](const DiskQuestion& question) { return AskDiskUnseen(app_, question); };
    folder_.Listing = [this] {
        find_.Reset();
        LayOutColumns();
    };
    imgSplitV.Moved = [this] { HoldSplitter(); };
    ListView1.ItemClick = [this] { ItemChosen(); };
    ListView1.DblClick = [this] { PickRow(); };
    ListView1.RightClick = [this] { cmdFileInfo.Press(); };
    ListView1.ColumnClick = [this](int column) { folder_.SortBy(column); };
    ListView1.FilesToDrag = [this] { return MarkedPaths(); };
    ListView1.GotFocus = [this] { ListFocused(); };
    txtSearchSpec.Click = [this] { folder_.ListAgain(); };
    txtSearchSpec.KeyDown = KeysOf(*this, Tables::kPatternKeys);
    cmdEscape.KeyDown = KeysOf(*this, Tables::kStopKeys);
    const auto keys = [this](Control& control, std::span<const KeyTable<frmGetFileFromTree>> tables) {
        control.KeyDown = [this, tables](KeyEvent& key) {
            for (const KeyTable<frmGetFileFromTree>& table : tables)
                if (RunKey(table, *this, key)) return;
        };
    };
    static constexpr std::array<KeyTable<frmGetFileFromTree>, 3> kInList{Tables::kListKeys, Tables::kFileKeys,
                                                                         Tables::kCommonKeys};
    static constexpr std::array<KeyTable<frmGetFileFromTree>, 3> kInTree{Tables::kTreeKeys, Tables::kFileKeys,
                                                                         Tables::kCommonKeys};
    keys(ListView1, kInList);
    keys(TreeView1, kInTree);
    txtFileName.KeyDown = [this](KeyEvent& key) { txtFileName_KeyDown(key); };
}

ListerRequest& frmGetFileFromTree::Request() const {
    return app_.Exchange<ListerRequest>();
}

bool frmGetFileFromTree::Saves() const {
    return Request().ListerMode == 1;
}

// Opening and its place.

void frmGetFileFromTree::Load() {
    const ListerRequest& request = Request();
    WindowLoading = 1;
    outcome_ = 0;
    if (!request.FileDialogCaption.empty()) Caption = request.FileDialogCaption;
    Place();
    folder_.TakePath(StartFolder());
    txtFileName.Text = Text(app_.Files().Style().NamePart(request.FileDialogDefaultName));
    txtSearchSpec.Text = request.FileDialogFilter;
    imgSplitV.Position = app_.Settings.TreeFormWidthB;
    HoldSplitter();
}

Text frmGetFileFromTree::StartFolder() const {
    const Text& hint = Request().CurrentFolderHint;
    if (Saves() && !hint.empty()) return hint;
    const Text& last = app_.Settings.TreeFormLastPath;
    return !last.empty() && AnswersSoon(last) ? last : app_.Files().CurrentDir();
}

/// Whether there is such a folder. One on a disk that doesn't answer is none, because the window can't be
/// seen yet while it is waited for.
bool frmGetFileFromTree::AnswersSoon(const Text& folder) const {
    const auto start = app_.Clock().Uptime();
    return AnswerTo<bool>(
               [&](const DiskQuestion& question) {
                   return AskDisk(app_, question,
                                  [&] { return app_.Clock().Uptime() - start < kPatienceAtStart; });
               },
               [folder](const FileSystem& files, const StillWaits&) { return files.DirExists(folder); })
        .value_or(false);
}

void frmGetFileFromTree::Place() {
    RestorePlace(app_, *this, kPlace);
    Width = std::max(Width.Get(), kLeastWidth);
    Height = std::max(Height.Get(), kLeastHeight);
}

void frmGetFileFromTree::Activate() {
    if (WindowLoading == 0) return;
    WindowLoading = 0;
    ApplyColours();
    tree_.Fill();
    folder_.GoTo(Text(folder_.Path()));
    if (!Saves()) return;
    txtFileName.BackColor = kSaveColour;
    SelectStem(txtFileName);
    txtFileName.SetFocus();
}

void frmGetFileFromTree::Resize() {
    if (State == FormState::Minimised) return;
    Width = std::max(Width.Get(), kLeastWidth);
    Height = std::max(Height.Get(), kLeastHeight);
    HoldSplitter();
}

void frmGetFileFromTree::HoldSplitter() {
    const int widthInPixels = Width.Get().Number() / kTwipsPerPixel;
    imgSplitV.Position = std::clamp(imgSplitV.Position.Get(), kLeastFromEdge,
                                    std::max(widthInPixels - kLeastFromEdge, kLeastFromEdge));
    app_.Settings.TreeFormWidthB = imgSplitV.Position;
    LayOutColumns();
}

void frmGetFileFromTree::LayOutColumns() {
    const int listWidth =
        std::max(Width.Get().Number() - imgSplitV.Position * kTwipsPerPixel - kListMargin, 0);
    std::vector<ListColumn> columns = ListView1.Columns;
    columns[0].width = Twips{listWidth * 27 / 48};
    columns[1].width = Twips{listWidth / 10};
    columns[2].width = Twips{listWidth / 5};
    ListView1.Columns = std::move(columns);
}

void frmGetFileFromTree::Unload() {
    rows_.Abandon();
    tree_.Abandon();
    wait_.Abandon();
    app_.Settings.TreeFormLastPath = txtFullPath.Text;
    // Nothing reads it. Kept for compatibility: lister-pattern-is-forgotten.
    app_.Settings.TreeFormPathB = txtSearchSpec.Text;
    if (State != FormState::Minimised) StorePlace(app_, *this, kPlace);
    if (outcome_ == 0) Request().ChosenFilePath.clear();
    app_.DialogResult = outcome_;
}

void frmGetFileFromTree::FilesDropped(const std::vector<Text>& paths) {
    const FileSystem& files = app_.Files();
    const Text& path = paths.front();
    const std::optional<bool> isFolder = folderCommands_.IsThere(path);
    if (!isFolder) return;
    if (*isFolder) return folder_.GoTo(path);
    folder_.GoTo(files.Style().DirectoryForChange(files.Style().FolderPart(path)));
    rows_.GoToName(files.Style().NamePart(path));
}

void frmGetFileFromTree::ApplyColours() {
    const Colour back{app_.Settings.FavGeoTree};
    if (back < Colour{0}) return;
    const std::array<const Control*, 3> plain{&cmdOk, &cmdCancel, &cmdEnterFileName};
    for (Control* control : Controls()) {
        if (std::ranges::count(plain, control) > 0) continue;
        if (auto* button = dynamic_cast<CommandButton*>(control)) button->BackColor = back;
        if (auto* field = dynamic_cast<TextBox*>(control)) field->BackColor = back;
        if (auto* label = dynamic_cast<Label*>(control)) label->BackColor = back;
    }
}

void frmGetFileFromTree::ChooseColour() {
    auto* picker = app_.Port<ColourPicker>();
    if (picker == nullptr) return;
    const auto colour = picker->Choose(Colour{app_.Settings.FavGeoTree}, ColourPicker::Extent::Simple);
    if (!colour) return;
    app_.Settings.FavGeoTree = colour->value;
    ApplyColours();
}

void frmGetFileFromTree::CentreOnScreen() {
    auto* main = app_.Port<MainWindow>();
    if (main == nullptr) return;
    State = FormState::Normal;
    CentreWithin(main->Window(), *this, kPercentOfMainWindow);
}

void frmGetFileFromTree::DockLeft() {
    if (auto* main = app_.Port<MainWindow>()) DockLeftOf(app_, main->Window(), *this, Stretch::FillSpace);
}

void frmGetFileFromTree::DockRight() {
    if (auto* main = app_.Port<MainWindow>()) DockRightOf(app_, main->Window(), *this, Stretch::FillSpace);
}

void frmGetFileFromTree::DockLeftWithWidth() {
    if (auto* main = app_.Port<MainWindow>()) DockLeftOf(app_, main->Window(), *this, Stretch::KeepWidth);
}

void frmGetFileFromTree::DockRightWithWidth() {
    if (auto* main = app_.Port<MainWindow>()) DockRightOf(app_, main->Window(), *this, Stretch::KeepWidth);
}

// The tree, the list and the line of the name.

void frmGetFileFromTree::FolderChanged() {
    folder_.TakePath(tree_.Folder());
    // The list would take the keyboard at each step through the tree.
    if (!folder_.IsGoing() && !TreeView1.ByKeys) folder_.List();
}

void frmGetFileFromTree::ReadFolderOfTree() {
    folder_.TakePath(tree_.Folder());
    folder_.ListAgain();
}

void frmGetFileFromTree::ListFocused() {
    if (WindowLoading == 1 || folder_.IsListing() || folder_.IsGoing() || folder_.IsGivenUp()) return;
    folder_.List();
}

void frmGetFileFromTree::ItemChosen() {
    if (rows_.Choosing()) return;
    rows_.NoteChoice();
    ShowCurrentName();
}

void frmGetFileFromTree::ShowCurrentName() {
    txtFileName.Text = rows_.CurrentName();
}

std::vector<Text> frmGetFileFromTree::MarkedPaths() const {
    std::vector<Text> paths = rows_.MarkedNames();
    std::ranges::transform(paths, paths.begin(), [this](const Text& name) { return folder_.PathOf(name); });
    return folder_.IsListed() ? paths : std::vector<Text>();
}

void frmGetFileFromTree::PickRow() {
    if (!folder_.IsListed()) return folder_.List();
    if (rows_.Current() == 0) return;
    rows_.NoteChoice();
    ShowCurrentName();
    if (!Saves()) Proceed();
}

void frmGetFileFromTree::MarkAll() {
    rows_.MarkAll();
}

void frmGetFileFromTree::NextPattern() {
    const Text pattern = korvane::NextPattern(txtSearchSpec.Text.Get());
    if (pattern == txtSearchSpec.Text.Get()) return;
    txtSearchSpec.Text = pattern;
    folder_.ListAgain();
}

void frmGetFileFromTree::ListAgain() {
    folder_.ListAgain();
}

void frmGetFileFromTree::FindFile() {
    find_.Run(folder_.Path(), txtSearchSpec.Text);
}

void frmGetFileFromTree::StopReading() {
    wait_.Stop();
}

void frmGetFileFromTree::StepFocusA() {
    focus_.StepA();
}

void frmGetFileFromTree::StepFocusB() {
    focus_.StepB();
}

// The name.

void frmGetFileFromTree::NextExtension() {
    txtFileName.Text = WithNextExtension(txtFileName.Text.Get());
}

void frmGetFileFromTree::MakeDocx() {
    txtFileName.Text = AsDocx(txtFileName.Text.Get());
    txtSearchSpec.Text = Text(PatternOf(txtFileName.Text.Get()));
}

void frmGetFileFromTree::AddToday() {
    AddDate(app_, txtFileName);
}

void frmGetFileFromTree::txtFileName_KeyDown(KeyEvent& key) {
    if (ChangeCaseByKey(txtFileName, key) || RunKey(Tables::kNameKeys, *this, key)) return;
    RunKey(Tables::kCommonKeys, *this, key);
}

// Commands.

void frmGetFileFromTree::Proceed() {
    if (!proceeding_.Run(txtFileName.Text)) return;
    outcome_ = 1;
    Close();
}

void frmGetFileFromTree::Cancel() {
    outcome_ = 0;
    Close();
}

void frmGetFileFromTree::EnterFileName() {
    if (!Saves()) return Inform(app_, u"Only available when saving files.");
    frmEnterFileName window(app_, *this);
    if (ShowForResult(app_, window) == kSaveAtOnce) Proceed();
}

void frmGetFileFromTree::Rename() {
    const Text old = rows_.CurrentName();
    // The line goes on naming the file.
    if (fileCommands_.Rename() && txtFileName.Text.Get() == old) ShowCurrentName();
}

void frmGetFileFromTree::RecentFiles() {
    auto* main = app_.Port<MainWindow>();
    if (main == nullptr) return;
    app_.DialogResult = 0;
    Request().CurrentFolderHint.clear();
    main->ShowFileList();
    if (app_.DialogResult == kGoToHint) return folder_.GoTo(Text(Request().CurrentFolderHint));
    if (app_.DialogResult == kCloseLister) Cancel();
    if (app_.DialogResult == 1) LoadRecentFile();
}

void frmGetFileFromTree::LoadRecentFile() {
    Request().ListerMode = 0;
    folder_.TakePath(Text(Request().ListerFolder));
    txtFileName.Text = app_.Exchange<FileOperation>().FileOpName;
    Proceed();
}

void frmGetFileFromTree::MoveFiles() {
    fileCommands_.Move();
}

void frmGetFileFromTree::NewFolder() {
    folderCommands_.NewFolder();
}

void frmGetFileFromTree::RenameFolder() {
    folderCommands_.RenameFolder();
}

void frmGetFileFromTree::DeleteFolder() {
    folderCommands_.DeleteFolder();
    TreeView1.SetFocus();
}

void frmGetFileFromTree::Refresh() {
    folderCommands_.Refresh();
}

void frmGetFileFromTree::TodaysFolders() {
    folderCommands_.ShowTodaysFolders(FolderCommands::NoteFolder::No);
}

void frmGetFileFromTree::NoteTodaysFolder() {
    folderCommands_.ShowTodaysFolders(FolderCommands::NoteFolder::Yes);
    rows_.TakeFocus();
}

void frmGetFileFromTree::ExploreHere() {
    ExploreFolder(app_, folder_.Path());
}

void frmGetFileFromTree::StartIvrandHere() {
    StartIvrand(app_, folder_.Path());
}

void frmGetFileFromTree::StartLorrit() {
    folderCommands_.StartLorrit();
}

void frmGetFileFromTree::StartTolmereSet() {
    LaunchCompanion(app_, Companion::TolmereSet);
}

void frmGetFileFromTree::FindText() {
    LaunchCompanion(app_, Companion::Ostrel);
}

void frmGetFileFromTree::FindFiles() {
    LaunchCompanion(app_, Companion::Veldan);
}

void frmGetFileFromTree::ToggleDesktop() {
    ShowDesktop(app_);
}

void frmGetFileFromTree::ShowClock() {
    if (auto* main = app_.Port<MainWindow>()) main->RunCommand(CommandName::mnuMisc_Clock);
}

void frmGetFileFromTree::Webmail() {
    OpenWebmail(app_);
}

void frmGetFileFromTree::StartBrowser() {
    LaunchProgram(app_, app_.Settings.CustomBrowserPath);
}

} // namespace korvane
