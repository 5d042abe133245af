#include "files/lists/frmFavouriteLocations.h"

#include "common/number/Number.h"
#include "common/path/DriveForms.h"
#include "common/text/CaseFold.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/StandardMessages.h"
#include "context/WindowFitting.h"
#include "context/exchange/ListerRequest.h"
#include "controls/KeyTable.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "files/lists/ChooseListFile.h"
#include "files/lists/FolderEntries.h"
#include "files/lists/ListFile.h"
#include "platform/FileSystem.h"
#include "platform/UserLocale.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::FavLeft, &Settings::FavTop, &Settings::FavWidth,
                             &Settings::FavHeight};

constexpr int kPercentOfMainWindow = 90;

/// What a separator that the user drew begins with. It goes without a question. Kept for compatibility:
/// drawn-separator-unasked.
constexpr char16_t kDash = u'\u2014';

bool IsComment(const Text& line) {
    return line.starts_with(u';');
}

/// Neither empty nor a separator.
bool NamesFolder(const Text& entry) {
    const std::size_t first = entry.find_first_not_of(u' ');
    return first != Text::npos && entry[first] != u'-';
}

} // namespace

struct frmFavouriteLocations::Tables {
    static constexpr MenuRow<frmFavouriteLocations> kMenu[] = {
        {0, "mnuMenu", u"&Menu", ""},
        {1, "mnuClose", u"&Close", "", &frmFavouriteLocations::Close},
        {1, "mnuExplorer", u"E&xplorer", "", &frmFavouriteLocations::Explore},
        {1, "mnuLoadList", u"&Load list", "", &frmFavouriteLocations::LoadList},
        {1, "mnuSaveList", u"&Save list", "", &frmFavouriteLocations::SaveList},
        {1, "mnuInfo", u"&Info", "", &frmFavouriteLocations::ShowInfo},
        {1, "mnuRemoveFolder", u"&Remove folder", "", &frmFavouriteLocations::RemoveFolder},
        {1, "mnuNewEntry", u"&New entry", "", &frmFavouriteLocations::NewEntry},
        {1, "mnuAddFolder", u"&Add current folder", "", &frmFavouriteLocations::AddFolder},
        {1, "mnuFindString", u"&Find string", "", &frmFavouriteLocations::FindString},
        {1, "mnuGotoFolder", u"&Goto folder", "", &frmFavouriteLocations::GotoFolder},
    };
    static constexpr WindowKey<frmFavouriteLocations> kListKeys[] = {
        {"Ctrl+D", &frmFavouriteLocations::MoveDown},
        {"Ctrl+U", &frmFavouriteLocations::MoveUp},
        {"Return", &frmFavouriteLocations::GotoFolder},
        {"Insert", &frmFavouriteLocations::AddFolder},
        {"Delete", &frmFavouriteLocations::RemoveFolder},
        {"Esc", &frmFavouriteLocations::Close},
        {"Ctrl+Shift+F2", &frmFavouriteLocations::CentreInMainWindow},
    };
    static constexpr WindowKey<frmFavouriteLocations> kFindKeys[] = {
        {"Return", &frmFavouriteLocations::FindString}};
};

frmFavouriteLocations::frmFavouriteLocations(App& app, const Form& owner, TextView currentFolder)
    : Form(app.Forms(), "frmFavouriteLocations", u"Favourite locations"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      owner_(owner),
      currentFolder_(currentFolder) {
    Wire();
}

void frmFavouriteLocations::Wire() {
    cmdGotoFolder.Click = [this] { GotoFolder(); };
    cmdAddFolder.Click = [this] { AddFolder(); };
    cmdSeparator.Click = [this] { NewEntry(); };
    cmdRemoveFolder.Click = [this] { RemoveFolder(); };
    Image1.Click = [this] { MoveDown(); };
    Image2.Click = [this] { MoveUp(); };
    cmdExplorer.Click = [this] { Explore(); };
    cmdInfo.Click = [this] { ShowInfo(); };
    cmdSaveList.Click = [this] { SaveList(); };
    cmdLoadFile.Click = [this] { LoadList(); };
    cmdExit.Click = [this] { Close(); };
    cmdFind.Click = [this] { FindString(); };
    cmdExit.Cancel = true;
    List1.DblClick = [this] { GotoFolder(); };
    List1.KeyDown = [this](KeyEvent& key) { List1_KeyDown(key); };
    txtFindThisString.KeyDown = KeysOf(*this, Tables::kFindKeys);
}

void frmFavouriteLocations::Load() {
    outcome_ = 0;
    RestorePlace(app_, *this, kPlace);
    ApplyColours();
    ReadList();
    List1.SetFocus();
}

void frmFavouriteLocations::Unload() {
    WriteList();
    StorePlace(app_, *this, kPlace);
    app_.DialogResult = outcome_;
}

void frmFavouriteLocations::ApplyColours() {
    const Colour back{app_.Settings.FavGeoTree};
    if (back.value < 0) return;
    List1.BackColor = back;
    txtFindThisString.BackColor = back;
}

Text frmFavouriteLocations::FindListFile() const {
    const FileSystem& files = app_.Files();
    const Text& current = app_.Settings.FavCurrentFile;
    if (!current.empty() && files.FileExists(current)) return current;
    return files.Style().JoinPath(files.StateDir(), u"FavouriteLocations.lst");
}

void frmFavouriteLocations::ReadList() {
    listFile_ = FindListFile();
    const auto lines = ReadListFile(app_, listFile_);
    unreadable_ = !lines && app_.Files().FileExists(listFile_);
    if (unreadable_) ShowCannotLoad(app_, listFile_);
    ShowLines(lines.value_or(std::vector<Text>()));
}

void frmFavouriteLocations::ShowLines(const std::vector<Text>& lines) {
    List1.Clear();
    for (const Text& line : lines) {
        if (!IsComment(line)) List1.AddItem(line);
    }
    List1.SetListIndex(0);
    ShowCount();
}

void frmFavouriteLocations::WriteList() {
    const bool nothingToKeep = unreadable_ || !app_.Files().FileExists(listFile_);
    if (List1.ListCount() == 0 && nothingToKeep) return;
    // What couldn't be read may be a long list.
    if (unreadable_) return ShowCannotAccess(app_, listFile_);
    WriteListFile(app_, listFile_, EntriesOf(List1));
}

void frmFavouriteLocations::ShowCount() {
    const auto count = std::ranges::count_if(EntriesOf(List1), NamesFolder);
    Caption = u"Favourite locations; items in list: " + NumberText(count);
}

void frmFavouriteLocations::GotoFolder() {
    const Text entry = List1.List(List1.ListIndex());
    if (Trim(entry).empty()) return;
    const FileSystem& files = app_.Files();
    const auto isThere = [this](const Text& folder) { return HasFolderSoon(app_, folder).value_or(false); };
    const Text folder = isThere(entry) ? entry : OtherFolderForm(files.Style(), entry);
    if (!isThere(folder)) return TellError(app_, u"Cannot locate this directory:\r\n\r\n" + folder);
    ListerRequest& request = app_.Exchange<ListerRequest>();
    request.CurrentFolderHint = folder;
    request.ChosenFilePath = folder;
    outcome_ = 1;
    Close();
}

void frmFavouriteLocations::AddFolder() {
    AddFolderEntry(app_, List1, currentFolder_);
    ShowCount();
}

void frmFavouriteLocations::NewEntry() {
    InsertEntry(List1, List1.ListIndex() + 1, {});
    ShowCount();
}

void frmFavouriteLocations::RemoveFolder() {
    const int index = List1.ListIndex();
    if (index < 0) return;
    const Text entry = List1.List(index);
    if (!entry.starts_with(kDash) && !AskYesNo(app_, u"Remove this folder from list?\r\n\r\n" + entry))
        return;
    List1.RemoveItem(index);
    List1.SetFocus();
    ShowCount();
}

void frmFavouriteLocations::MoveDown() {
    MoveEntryDown(List1);
}

void frmFavouriteLocations::MoveUp() {
    MoveEntryUp(List1);
}

void frmFavouriteLocations::Explore() {
    ExploreEntry(app_, List1);
}

void frmFavouriteLocations::ShowInfo() {
    const FileSystem& files = app_.Files();
    const auto modified = files.Modified(listFile_);
    Inform(app_, u"File  " + listFile_ + u"\r\nArchived  " +
                     (modified ? app_.Locale().GeneralDate(*modified) : Text()) + u"\r\nSize  " +
                     FormatGrouped(files.Size(listFile_).value_or(0)));
}

void frmFavouriteLocations::LoadList() {
    const auto file = ChooseListFile(app_, {SystemFileDialog::Purpose::Open,
                                            Text(kListFiles),
                                            u"Get list of favourite locations",
                                            {},
                                            Text(kListExtension)});
    if (!file) return;
    const auto lines = ReadListFile(app_, *file);
    if (!lines) return ShowCannotLoad(app_, *file);
    UseListFile(*file);
    ShowLines(*lines);
}

void frmFavouriteLocations::SaveList() {
    const auto file = ChooseListFile(app_, {SystemFileDialog::Purpose::Save,
                                            Text(kListFiles),
                                            u"Save list of favourite locations",
                                            {},
                                            Text(kListExtension)});
    if (!file || !WriteListFile(app_, *file, EntriesOf(List1))) return;
    UseListFile(*file);
}

void frmFavouriteLocations::UseListFile(const Text& file) {
    app_.Settings.FavCurrentFile = file;
    listFile_ = file;
    unreadable_ = false;
}

void frmFavouriteLocations::FindString() {
    const Text& wanted = txtFindThisString.Text;
    for (int index = List1.ListIndex() + 1; index < List1.ListCount(); ++index) {
        if (ContainsIgnoringCase(List1.List(index), wanted)) return List1.SetListIndex(index);
    }
    Inform(app_, u"No (further) find for:\r\n\r\n" + wanted);
}

void frmFavouriteLocations::CentreInMainWindow() {
    CentreWithin(owner_, *this, kPercentOfMainWindow);
}

void frmFavouriteLocations::List1_KeyDown(KeyEvent& key) {
    if (!DockByKey(app_, owner_, *this, key)) RunKey(Tables::kListKeys, *this, key);
}

} // namespace korvane
