#include "files/lists/frmFoldersToday.h"

#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/DiskQuestions.h"
#include "context/StandardMessages.h"
#include "context/WindowFitting.h"
#include "context/exchange/FolderPick.h"
#include "context/exchange/SystemDirs.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "files/lists/ChooseListFile.h"
#include "files/lists/FolderEntries.h"
#include "files/lists/ListFile.h"
#include "platform/FileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::FoldersGeo2, &Settings::FoldersGeo1, &Settings::FoldersGeo4,
                             &Settings::FoldersGeo3};

// Of the side bar, in pixels.
constexpr int kBarWidth = 130;
constexpr int kBarRowHeight = 52;

} // namespace

struct frmFoldersToday::Tables {
    static constexpr MenuRow<frmFoldersToday> kMenu[] = {
        {0, "mnuMenu", u"&Menu", ""},
        {1, "mnuClose", u"&Close", "", &frmFoldersToday::Close},
        {1, "mnuDesktop", u"Des&ktop", "", &frmFoldersToday::ToggleDesktop},
        {1, "mnuExplorer", u"&Explorer", "", &frmFoldersToday::Explore},
        {1, "mnuDelete", u"&Delete", "", &frmFoldersToday::DeleteItem},
        {1, "mnuFileLorrit", u"&File Lorrit", "", &frmFoldersToday::StartLorrit},
        {1, "mnuLoadList", u"&Load list", "", &frmFoldersToday::LoadList},
        {1, "mnuSaveList", u"&Save list", "", &frmFoldersToday::SaveList},
        {1, "mnuAddFolder", u"&Add current folder", "", &frmFoldersToday::AddCurrentFolder},
        {1, "mnuGoto", u"&Goto folder", "", &frmFoldersToday::GotoFolder},
    };
    static constexpr WindowKey<frmFoldersToday> kListKeys[] = {
        {"Return", &frmFoldersToday::GotoFolder},   {"Delete", &frmFoldersToday::DeleteItem},
        {"Ctrl+S", &frmFoldersToday::SaveList},     {"Ctrl+L", &frmFoldersToday::LoadList},
        {"Ctrl+Alt+S", &frmFoldersToday::FocusBar}, {"Alt+X", &frmFoldersToday::FocusBar},
        {"Ctrl+D", &frmFoldersToday::MoveDown},     {"Ctrl+U", &frmFoldersToday::MoveUp},
        {"Esc", &frmFoldersToday::Close},           {"Insert", &frmFoldersToday::AddCurrentFolder},
    };
    static constexpr WindowKey<frmFoldersToday> kBarKeys[] = {
        {"Ctrl+Alt+S", &frmFoldersToday::FocusList},
        {"Alt+X", &frmFoldersToday::FocusList},
    };
    struct BarItem {
        TextView caption;
        Handler<frmFoldersToday> starts;
    };
    static constexpr BarItem kBar[] = {
        {u"Load list", &frmFoldersToday::LoadList},
        {u"Save list", &frmFoldersToday::SaveList},
        {u"Goto folder", &frmFoldersToday::GotoFolder},
        {u"Favourite Locations", &frmFoldersToday::GoToFavourites},
        {u"My Documents", &frmFoldersToday::GoToDocuments},
        {u"Downloads folder", &frmFoldersToday::GoToDownloads},
        {u"Desktop folder", &frmFoldersToday::GoToDesktop},
        {u"Close window", &frmFoldersToday::Close},
    };
};

frmFoldersToday::frmFoldersToday(App& app, TextView currentFolder)
    : Form(app.Forms(), "frmFoldersToday", u"Folders list"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      iGridListBar(*this, "iGridListBar", app.MakeGrid()),
      app_(app),
      currentFolder_(currentFolder),
      bar_(iGridListBar, [this](int index) { RunBarItem(index); }) {
    Wire();
    BuildBar();
}

void frmFoldersToday::Wire() {
    cmdGoto.Click = [this] { GotoFolder(); };
    cmdAddCurrentFolder.Click = [this] { AddCurrentFolder(); };
    cmdDelete.Click = [this] { DeleteItem(); };
    cmdExplorer.Click = [this] { Explore(); };
    cmdDesktop.Click = [this] { ToggleDesktop(); };
    cmdExit.Click = [this] { Close(); };
    cmdExit.Cancel = true;
    lstFoldersToday.DblClick = [this] { GotoFolder(); };
    lstFoldersToday.KeyDown = KeysOf(*this, Tables::kListKeys);
    iGridListBar.KeyDown = [this](KeyEvent& key) {
        if (!RunKey(Tables::kBarKeys, *this, key)) bar_.KeyDown(key);
    };
}

void frmFoldersToday::BuildBar() {
    std::vector<Text> captions;
    for (const Tables::BarItem& item : Tables::kBar)
        captions.emplace_back(item.caption);
    bar_.Build(captions, kBarWidth, kBarRowHeight);
    const FileSystem& files = app_.Files();
    iGridListBar.HandImage = files.Style().JoinPath(files.ProgramDir(), u"HandOpen.ico");
}

void frmFoldersToday::Load() {
    outcome_ = 0;
    WindowActivated = 0;
    RestorePlace(app_, *this, kPlace);
    lstFoldersToday.SetFocus();
}

void frmFoldersToday::Activate() {
    if (WindowActivated == 1) return;
    ReadList();
    ShowTitle();
    MergeTodaysFolders();
    lstFoldersToday.SetListIndex(lstFoldersToday.ListCount() - 1);
    WindowActivated = 1;
}

void frmFoldersToday::Unload() {
    const Text& file = app_.Settings.FoldersFile;
    // A window that was never seen has read nothing that it could write. What couldn't be read may be a long
    // list.
    if (WindowActivated == 1 && !file.empty() && !unreadable_) WriteListFile(app_, file, Folders());
    app_.Exchange<FolderPick>().FoldersListIndex = static_cast<std::int16_t>(lstFoldersToday.ListIndex());
    StorePlace(app_, *this, kPlace);
    app_.DialogResult = outcome_;
}

void frmFoldersToday::ReadList() {
    const Text& file = app_.Settings.FoldersFile;
    if (!app_.Files().FileExists(file)) return;
    const auto lines = ReadListFile(app_, file);
    unreadable_ = !lines;
    if (unreadable_) return ShowCannotLoad(app_, file);
    ShowLines(*lines);
}

void frmFoldersToday::ShowLines(const std::vector<Text>& lines) {
    lstFoldersToday.Clear();
    const auto there = HasFoldersSoon(app_, lines);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        // A folder on a disk that doesn't answer hasn't gone.
        if (!lines[index].empty() && there[index].value_or(true)) lstFoldersToday.AddItem(lines[index]);
    }
}

std::vector<Text> frmFoldersToday::Folders() const {
    std::vector<Text> folders = EntriesOf(lstFoldersToday);
    std::erase(folders, Text());
    return folders;
}

void frmFoldersToday::MergeTodaysFolders() {
    for (const Text& folder : app_.Exchange<FolderPick>().TodaysFolders) {
        if (!HasEntry(lstFoldersToday, folder)) lstFoldersToday.AddItem(folder);
    }
}

void frmFoldersToday::ShowTitle() {
    Caption = u"Folders list: " + app_.Settings.FoldersFile;
}

void frmFoldersToday::CloseWith(std::int16_t outcome, const Text& folder) {
    app_.Exchange<FolderPick>().FolderPicked = folder;
    outcome_ = outcome;
    Close();
}

void frmFoldersToday::GotoFolder() {
    CloseWith(1, lstFoldersToday.List(lstFoldersToday.ListIndex()));
}

void frmFoldersToday::AddCurrentFolder() {
    AddFolderEntry(app_, lstFoldersToday, currentFolder_);
}

void frmFoldersToday::DeleteItem() {
    lstFoldersToday.RemoveItem(lstFoldersToday.ListIndex());
}

void frmFoldersToday::MoveDown() {
    MoveEntryDown(lstFoldersToday);
}

void frmFoldersToday::MoveUp() {
    MoveEntryUp(lstFoldersToday);
}

void frmFoldersToday::LoadList() {
    const PathStyle style = app_.Files().Style();
    const Text& present = app_.Settings.FoldersFile;
    const auto file = ChooseListFile(app_, {SystemFileDialog::Purpose::Open,
                                            Text(kListFiles) + u"|All files (*.*)|*.*",
                                            u"Get list of work session folders",
                                            Text(style.NamePart(present)),
                                            {},
                                            style.DirectoryForChange(style.FolderPart(present))});
    if (!file) return;
    const auto lines = ReadListFile(app_, *file);
    if (!lines) return ShowCannotLoad(app_, *file);
    UseListFile(*file);
    ShowLines(*lines);
    lstFoldersToday.SetListIndex(lstFoldersToday.ListCount() - 1);
}

void frmFoldersToday::SaveList() {
    const auto file = ChooseListFile(app_, {SystemFileDialog::Purpose::Save,
                                            Text(kListFiles),
                                            u"Save list of work session folders",
                                            {},
                                            Text(kListExtension)});
    if (file && WriteListFile(app_, *file, Folders())) UseListFile(*file);
}

void frmFoldersToday::UseListFile(const Text& file) {
    app_.Settings.FoldersFile = file;
    unreadable_ = false;
    ShowTitle();
}

void frmFoldersToday::Explore() {
    ExploreEntry(app_, lstFoldersToday);
}

void frmFoldersToday::ToggleDesktop() {
    ShowDesktop(app_);
}

void frmFoldersToday::StartLorrit() {
    LaunchLorrit(app_, lstFoldersToday.List(lstFoldersToday.ListIndex()));
}

void frmFoldersToday::GoToFavourites() {
    outcome_ = kToFavourites;
    Close();
}

void frmFoldersToday::GoToDocuments() {
    CloseWith(1, app_.Exchange<SystemDirs>().DocumentsDir);
}

void frmFoldersToday::GoToDownloads() {
    GoBesideDocuments(u"Downloads");
}

void frmFoldersToday::GoToDesktop() {
    GoBesideDocuments(u"Desktop");
}

void frmFoldersToday::GoBesideDocuments(TextView name) {
    // As long as the usual folder's name and the separator after it. One of another length gives a wrong
    // folder, and the box then names it. Kept for compatibility: documents-cut-ten.
    constexpr std::size_t kNameLength = 10;
    const Text& documents = app_.Exchange<SystemDirs>().DocumentsDir;
    const std::size_t kept = documents.size() - std::min(documents.size(), kNameLength);
    const Text folder = documents.substr(0, kept) + Text(name);
    if (HasFolderSoon(app_, folder).value_or(false)) return CloseWith(1, folder);
    Warn(app_, u"Cannot change to:\r\n\r\n" + folder);
}

void frmFoldersToday::RunBarItem(int index) {
    Tables::kBar[index].starts.Run(*this);
}

void frmFoldersToday::FocusBar() {
    bar_.TakeFocus();
}

void frmFoldersToday::FocusList() {
    lstFoldersToday.SetFocus();
}

} // namespace korvane
