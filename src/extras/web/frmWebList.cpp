#include "extras/web/frmWebList.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/ProgramPicker.h"
#include "context/WindowFitting.h"
#include "context/exchange/ListerRequest.h"
#include "controls/KeyTable.h"
#include "controls/UpdateScope.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "extras/web/StartBrowser.h"
#include "extras/web/WebsiteFile.h"
#include "files/lists/ChooseListFile.h"
#include "files/lists/FolderEntries.h"
#include "files/lists/ListFile.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/UserLocale.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::WebListGeo2, &Settings::WebListGeo1, &Settings::WebListGeo4,
                             &Settings::WebListGeo3};
constexpr Text Settings::*kBrowserPaths[] = {&Settings::WebListA, &Settings::WebListB, &Settings::WebListC};

enum Column : int { kName = 1, kUrl };

constexpr Twips kNameWidth{2700};
constexpr Twips kUrlWidth{5400};
constexpr int kListMargin = 600;
constexpr int kPercentOfMainWindow = 90;
constexpr int kAsksFrom = 4;
constexpr std::size_t kLeastGroup = 2;
/// More than a hundred thousand websites.
constexpr std::int64_t kLargestFile = 16'000'000;

} // namespace

struct frmWebList::Tables {
    using Window = frmWebList;
    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuLoad", u"&Load checked items", "", &Window::LoadItems},
        {1, "mnuFileLine1", u"", ""},
        {1, "mnuOpenList", u"&Open list", "", &Window::OpenList},
        {1, "mnuSaveList", u"Sa&ve list", "", &Window::SaveList},
        {1, "mnuInfo", u"&Info about list", "", &Window::ShowInfo},
        {1, "mnuFileLine2", u"", ""},
        {1, "mnuExit", u"E&xit", "", &Window::Close},
        {0, "mnuEdit", u"&Edit", ""},
        {1, "mnuEditItem", u"&Edit item", "", &Window::EditItem},
        {1, "mnuEditLine1", u"", ""},
        {1, "mnuAddItem", u"&Add item", "", &Window::AddItem},
        {1, "mnuDuplicate", u"Du&plicate", "", &Window::Duplicate},
        {1, "mnuEditLine2", u"", ""},
        {1, "mnuDelete", u"De&lete", "", &Window::DeleteItems},
        {1, "mnuEditLine3", u"", ""},
        {1, "mnuInsertSeparator", u"&Insert separator", "", &Window::InsertSeparator},
        {1, "mnuMoveUp", u"Move item &up", "", &Window::MoveUp},
        {1, "mnuMoveDown", u"Move item &down", "", &Window::MoveDown},
        {0, "mnuGroup", u"&Group", ""},
        {1, "mnuAddToGroup", u"&Add to group", "", &Window::AddToGroup},
        {1, "mnuGroupWin", u"&Open group window", "", &Window::OpenGroups},
        {0, "mnuMisc", u"&Misc", ""},
        {1, "mnuCustomBrowser", u"Specify custom browser", "", &Window::SpecifyCustomBrowser},
    };
    static constexpr WindowKey<Window> kListKeys[] = {
        {"Return", &Window::LoadCurrent}, {"Delete", &Window::DeleteItems},
        {"Insert", &Window::AddItem},     {"Ctrl+D", &Window::MoveDown},
        {"Ctrl+U", &Window::MoveUp},      {"Ctrl+Shift+F2", &Window::CentreInMainWindow},
    };
    static constexpr WindowKey<Window> kFieldKeys[] = {{"Return", &Window::Accept}};
    static constexpr WindowKey<Window> kWindowKeys[] = {{"Esc", &Window::Leave}};
};

constexpr std::array<frmWebList::Browser, 3> frmWebList::kBrowsers{
    {{&frmWebList::Option1, &frmWebList::prgText1, &frmWebList::imgSet_1},
     {&frmWebList::Option2, &frmWebList::prgText2, &frmWebList::imgSet_2},
     {&frmWebList::Option3, &frmWebList::prgText3, &frmWebList::imgSet_3}}};

frmWebList::frmWebList(App& app, const Form& owner)
    : Form(app.Forms(), "frmWebList", {}),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      ListView1(*this, "ListView1", {{u"Name", kNameWidth}, {u"Website URL", kUrlWidth}}),
      app_(app),
      owner_(owner) {
    ListView1.MultiSelect = true;
    ListView1.CheckBoxes = true;
    frameGroup.Caption = u" Lists of websites for group loading ";
    Frame2.Caption = u" Select browser to use ";
    frameGroup.Visible = false;
    Frame1.Visible = false;
    Wire();
}

void frmWebList::Wire() {
    const auto on = [this](CommandButton& button, Handler<frmWebList> starts) {
        button.Click = [this, starts] { starts.Run(*this); };
    };
    on(cmdCloseWindow, &frmWebList::Close);
    on(cmdOpenList, &frmWebList::OpenList);
    on(cmdSaveList, &frmWebList::SaveList);
    on(cmdInfo, &frmWebList::ShowInfo);
    on(cmdAddItem, &frmWebList::AddItem);
    on(cmdDuplicate, &frmWebList::Duplicate);
    on(cmdDelete, &frmWebList::DeleteItems);
    on(cmdAddToGroup, &frmWebList::AddToGroup);
    on(cmdGroupWin, &frmWebList::OpenGroups);
    on(cmdArrowUp, &frmWebList::MoveUp);
    on(cmdArrowDown, &frmWebList::MoveDown);
    on(cmdLoadItem, &frmWebList::LoadItems);
    on(btnEmptyList, &frmWebList::EmptyGroups);
    on(btnCloseGroup, &frmWebList::CloseGroups);
    on(btnAccept, &frmWebList::Accept);
    on(btnReject, &frmWebList::Reject);
    on(btnLoad, &frmWebList::LoadItems);
    on(btnCancel, &frmWebList::Close);
    for (std::size_t index = 0; index < kBrowsers.size(); ++index)
        (this->*kBrowsers[index].pick).Click = [this, index] { PickBrowser(index); };
    ListView1.DblClick = [this] { LoadCurrent(); };
    ListView1.KeyDown = [this](KeyEvent& key) { ListView1_KeyDown(key); };
    lstGroup.DblClick = [this] { LoadCurrent(); };
    lstGroup.KeyDown = KeysOf(*this, Tables::kListKeys);
    txtName.KeyDown = KeysOf(*this, Tables::kFieldKeys);
    txtSite.KeyDown = KeysOf(*this, Tables::kFieldKeys);
}

void frmWebList::Load() {
    RestorePlace(app_, *this, kPlace);
    LayOutColumns();
    if (app_.Settings.WebListFile.empty()) {
        ShowTitle();
    } else {
        ReadList();
    }
    ShowBrowsers();
    FocusList();
}

/// A cancelled save asks again. Kept for compatibility: cancelled-save-asks-again.
bool frmWebList::QueryUnload() {
    while (ListDirty == 1) {
        const Answer answer = app_.Messages().Show(
            {u"Save list before exiting this level ? ", MessageIcon::Question, MessageButtons::YesNoCancel});
        if (answer != Answer::Yes) return answer == Answer::No;
        SaveList();
    }
    return true;
}

void frmWebList::Unload() {
    StorePlace(app_, *this, kPlace);
    StoreBrowsers();
}

void frmWebList::Resize() {
    LayOutColumns();
}

void frmWebList::KeyDown(KeyEvent& key) {
    RunKey(Tables::kWindowKeys, *this, key);
}

void frmWebList::LayOutColumns() {
    const int width = Width.Get().Number() - kListMargin;
    if (width <= 0) return;
    ListView1.SetColumnWidth(kName, Twips{width / 3});
    ListView1.SetColumnWidth(kUrl, Twips{width * 3 / 5});
}

void frmWebList::ShowTitle() {
    Caption = u"Website list :  " + app_.Settings.WebListFile + u"  ( " + NumberText(ListView1.Count()) +
              u" entries )";
}

// ---- The browsers ---------------------------------------------------------------------------------------

void frmWebList::ShowBrowsers() {
    for (std::size_t index = 0; index < kBrowsers.size(); ++index)
        (this->*kBrowsers[index].path).Text = app_.Settings.*kBrowserPaths[index];
    const auto last = static_cast<std::int16_t>(kBrowsers.size());
    const std::int16_t chosen = std::clamp<std::int16_t>(app_.Settings.WebListD, 1, last);
    (this->*kBrowsers[static_cast<std::size_t>(chosen - 1)].option).Value = true;
}

void frmWebList::StoreBrowsers() {
    for (std::size_t index = 0; index < kBrowsers.size(); ++index) {
        app_.Settings.*kBrowserPaths[index] = (this->*kBrowsers[index].path).Text;
        if ((this->*kBrowsers[index].option).Value)
            app_.Settings.WebListD = static_cast<std::int16_t>(index + 1);
    }
}

Text frmWebList::ChosenBrowser() const {
    const auto chosen = std::ranges::find_if(
        kBrowsers, [this](const Browser& browser) { return (this->*browser.option).Value.Get(); });
    return (this->*chosen->path).Text;
}

void frmWebList::PickBrowser(std::size_t index) {
    Text& setting = app_.Settings.*kBrowserPaths[index];
    if (PickProgram(app_, u"Specify custom browser", setting)) (this->*kBrowsers[index].path).Text = setting;
}

void frmWebList::SpecifyCustomBrowser() {
    const bool use = AskYesNo(app_, u"Use selected browser below when clicking on hyperlink in text?");
    app_.Settings.UseCustomBrowser = use ? 1 : 0;
    app_.Settings.CustomBrowserPath = ChosenBrowser();
}

// ---- The file -------------------------------------------------------------------------------------------

void frmWebList::ReadList() {
    const Text& path = app_.Settings.WebListFile;
    const auto lines = ReadListFile(app_, path, kLargestFile);
    ShowLists(WebsitesOfLines(lines.value_or(std::vector<Text>())));
    if (!lines) Warn(app_, u"Can't open file: " + path);
}

void frmWebList::ShowLists(const WebsiteLists& lists) {
    Reject();
    {
        const UpdateScope update(ListView1);
        ListView1.Clear();
        for (const Website& website : lists.websites)
            ListView1.SetChecked(AddRow(website.name, website.url), website.checked);
        ListView1.SetCurrent(1);
    }
    {
        const UpdateScope update(lstGroup);
        lstGroup.Clear();
        for (const Text& group : lists.groups)
            lstGroup.AddItem(group);
    }
    ShowTitle();
}

WebsiteLists frmWebList::ShownLists() const {
    WebsiteLists lists;
    for (int row = 1; row <= ListView1.Count(); ++row)
        lists.websites.push_back(
            {Text(ListView1.TextAt(row, kName)), Text(ListView1.TextAt(row, kUrl)), ListView1.Checked(row)});
    lists.groups = EntriesOf(lstGroup);
    return lists;
}

void frmWebList::OpenList() {
    const KeepCurrentDir keep(app_);
    ShowFileChooser(app_, ChooserMode::Load, u"*.lst;*.txt;*.asc", {});
    const Text chosen = app_.Exchange<ListerRequest>().ChosenFilePath;
    if (chosen.empty()) return;
    app_.Settings.WebListFile = chosen;
    // Only a save ends the question about changes. Kept for compatibility: opened-websites-stay-changed.
    ReadList();
}

void frmWebList::SaveList() {
    if (ListView1.Count() == 0) return Warn(app_, u"Data grid contains no entries !");
    Text& path = app_.Settings.WebListFile;
    const auto file = ChooseListFile(app_, {SystemFileDialog::Purpose::Save,
                                            u"List of websites (*.lst)|*.lst|All files (*.*)|*.*",
                                            u"Save website list to disk", path, Text(kListExtension)});
    if (!file || file->empty()) return;
    path = *file;
    if (!WriteListFile(app_, path, LinesOfWebsites(ShownLists()))) return;
    ListDirty = 0;
    ShowTitle();
}

void frmWebList::ShowInfo() {
    const FileSystem& files = app_.Files();
    const Text& path = app_.Settings.WebListFile;
    const auto details = path.empty() ? std::nullopt : files.Details(path);
    if (!details) return Inform(app_, u"(not yet saved / not present on disk)");
    Inform(app_, Text(files.Style().NamePart(path)) + u"\r\n" + Text(files.Style().FolderPart(path)) +
                     u"\r\n" + app_.Locale().GeneralDate(details->modified) + u"\r\n" +
                     FormatGrouped(details->size) + u"\r\n    ( " + NumberText(ListView1.Count()) +
                     u" items )");
}

// ---- Loading --------------------------------------------------------------------------------------------

std::vector<int> frmWebList::CheckedWebsites() const {
    std::vector<int> rows;
    for (int row = 1; row <= ListView1.Count(); ++row) {
        // A deleted row that is checked counts too. Kept for compatibility: deleted-website-still-loads.
        if (ListView1.Checked(row) && !IsSeparator(ListView1.TextAt(row, kName))) rows.push_back(row);
    }
    return rows;
}

Text frmWebList::AddressesOf(const std::vector<int>& rows) const {
    Text urls;
    for (const int row : rows)
        (urls += ListView1.TextAt(row, kUrl)) += u' ';
    return urls;
}

frmWebList::Choice frmWebList::Chosen() const {
    if (InGroups()) {
        const Text group = lstGroup.List(lstGroup.ListIndex());
        return {IsSeparator(group) ? Text() : group, 0};
    }
    const std::vector<int> checked = CheckedWebsites();
    const int current = ListView1.Current();
    const bool onWebsite = current != 0 && !IsSeparator(ListView1.TextAt(current, kName));
    // Return is for the current row, and a separator has nothing to load.
    if (LoadByEnter == 1 && current != 0 && !onWebsite) return {};
    const bool currentAlone = onWebsite && (checked.empty() || LoadByEnter == 1);
    // The number is that of the checked websites, also where the current one alone is loaded. Kept for
    // compatibility: question-counts-checked-websites.
    return {currentAlone ? Text(ListView1.TextAt(current, kUrl)) : AddressesOf(checked),
            static_cast<int>(checked.size())};
}

void frmWebList::LoadItems() {
    const Choice choice = Chosen();
    const bool agreed = choice.count < kAsksFrom || AskYesNo(app_, u"Load " + NumberText(choice.count) +
                                                                       u" selected websites from list?");
    LoadByEnter = 0;
    if (!agreed || choice.urls.empty()) return;
    StoreBrowsers();
    StartBrowser(app_, ChosenBrowser(), choice.urls);
}

void frmWebList::LoadCurrent() {
    LoadByEnter = 1;
    LoadItems();
}

// ---- Editing --------------------------------------------------------------------------------------------

int frmWebList::AddRow(TextView name, TextView url) {
    const int row = ListView1.Count() + 1;
    ListView1.Add({.key = u"K_ " + NumberText(row), .texts = {Text(name), Text(url)}});
    return row;
}

void frmWebList::SetTexts(int row, TextView name, TextView url) {
    ListView1.SetText(row, kName, name);
    ListView1.SetText(row, kUrl, url);
}

bool frmWebList::RefusedInGroups() {
    if (InGroups()) Inform(app_, u"Add items to group list by selecting them from the main list");
    return InGroups();
}

void frmWebList::EditItem() {
    const bool group = InGroups();
    const int row = ListView1.Current();
    if (group ? lstGroup.ListIndex() < 0 : row == 0) return;
    Frame1.Caption = group ? u" Edit group of websites " : u" Text for name && website ";
    Label1.Visible = !group;
    txtName.Visible = !group;
    txtName.Text = Text(ListView1.TextAt(row, kName));
    txtSite.Text = group ? lstGroup.List(lstGroup.ListIndex()) : Text(ListView1.TextAt(row, kUrl));
    ShowFields(true);
    TextBox& first = group ? txtSite : txtName;
    first.SetFocus();
    first.SelectAll();
}

void frmWebList::Accept() {
    if (InGroups()) {
        lstGroup.SetList(lstGroup.ListIndex(), txtSite.Text.Get());
    } else {
        SetTexts(ListView1.Current(), txtName.Text.Get(), txtSite.Text.Get());
    }
    ListDirty = 1;
    Reject();
}

void frmWebList::Reject() {
    if (!Frame1.Visible) return;
    ShowFields(false);
    FocusList();
}

/// They take the place of the list or the groups, so that no other row can become the current one.
void frmWebList::ShowFields(bool shown) {
    Frame1.Visible = shown;
    ListView1.Visible = !shown && !InGroups();
    frameGroup.Visible = !shown && InGroups();
}

/// Check marks stay in their places. Kept for compatibility: website-moves-leave-checks.
void frmWebList::MoveTextsDownFrom(int row) {
    for (int to = ListView1.Count(); to > row; --to)
        SetTexts(to, Text(ListView1.TextAt(to - 1, kName)), Text(ListView1.TextAt(to - 1, kUrl)));
    SetTexts(row, {}, {});
}

void frmWebList::AddItem() {
    if (RefusedInGroups()) return;
    Reject();
    {
        const UpdateScope update(ListView1);
        const int added = AddRow({}, {});
        const int current = ListView1.Current() == 0 ? added : ListView1.Current();
        MoveTextsDownFrom(current);
        ListView1.SetCurrent(current);
        ListView1.EnsureVisible(current);
    }
    ListDirty = 1;
    ShowTitle();
    EditItem();
}

void frmWebList::Duplicate() {
    if (RefusedInGroups()) return;
    const int row = ListView1.Current();
    if (row != 0) AddAtEnd(Text(ListView1.TextAt(row, kName)), Text(ListView1.TextAt(row, kUrl)));
}

void frmWebList::InsertSeparator() {
    if (!RefusedInGroups()) AddAtEnd(kSeparatorMarker, {});
}

void frmWebList::AddAtEnd(TextView name, TextView url) {
    Reject();
    ListView1.SetCurrent(AddRow(name, url));
    ListDirty = 1;
    ShowTitle();
}

void frmWebList::DeleteItems() {
    const std::vector<int> groups = SelectedGroups();
    const int count = InGroups() ? static_cast<int>(groups.size()) : ListView1.SelectedCount();
    if (count == 0) return Inform(app_, u"No items checked.");
    if (!AskYesNo(app_, u"Delete " + NumberText(count) + u" items from list ? ", YesNoDefault::No)) return;
    // What is in the fields must not be written over another entry.
    Reject();
    ListDirty = 1;
    if (InGroups()) return DeleteGroups(groups);
    const UpdateScope update(ListView1);
    for (const int row : ListView1.SelectedRows())
        SetTexts(row, kDeletedWebsite, kDeletedWebsite);
}

void frmWebList::DeleteGroups(const std::vector<int>& groups) {
    const UpdateScope update(lstGroup);
    std::for_each(groups.rbegin(), groups.rend(), [this](int index) { lstGroup.RemoveItem(index); });
    SelectGroup(std::min(groups.front(), lstGroup.ListCount() - 1));
}

/// Check marks stay in their places. Kept for compatibility: website-moves-leave-checks.
void frmWebList::SwapCurrentWith(int neighbour) {
    const int current = ListView1.Current();
    if (current == 0 || neighbour < 1 || neighbour > ListView1.Count()) return;
    const Text name(ListView1.TextAt(current, kName));
    const Text url(ListView1.TextAt(current, kUrl));
    SetTexts(current, Text(ListView1.TextAt(neighbour, kName)), Text(ListView1.TextAt(neighbour, kUrl)));
    SetTexts(neighbour, name, url);
    ListView1.SetCurrent(neighbour);
    ListDirty = 1;
}

void frmWebList::MoveUp() {
    if (!InGroups()) return SwapCurrentWith(ListView1.Current() - 1);
    if (lstGroup.ListIndex() <= 0) return;
    MoveEntryUp(lstGroup);
    SelectGroup(lstGroup.ListIndex());
    ListDirty = 1;
}

void frmWebList::MoveDown() {
    if (!InGroups()) return SwapCurrentWith(ListView1.Current() + 1);
    if (lstGroup.ListIndex() < 0 || lstGroup.ListIndex() >= lstGroup.ListCount() - 1) return;
    MoveEntryDown(lstGroup);
    SelectGroup(lstGroup.ListIndex());
    ListDirty = 1;
}

// ---- Groups ---------------------------------------------------------------------------------------------

std::vector<int> frmWebList::SelectedGroups() const {
    std::vector<int> groups;
    for (int index = 0; index < lstGroup.ListCount(); ++index)
        if (lstGroup.Selected(index)) groups.push_back(index);
    return groups;
}

void frmWebList::SelectGroup(int index) {
    for (int each = 0; each < lstGroup.ListCount(); ++each)
        lstGroup.SetSelected(each, each == index);
    lstGroup.SetListIndex(index);
}

void frmWebList::AddToGroup() {
    const std::vector<int> rows = CheckedWebsites();
    if (rows.size() < kLeastGroup)
        return Warn(app_, u"You must select at least two items for a group list entry!");
    ListDirty = 1;
    lstGroup.AddItem(AddressesOf(rows));
    SelectGroup(lstGroup.ListCount() - 1);
    OpenGroups();
}

void frmWebList::OpenGroups() {
    ShowGroups(true);
}

void frmWebList::CloseGroups() {
    ShowGroups(false);
}

void frmWebList::ShowGroups(bool shown) {
    inGroups_ = shown;
    ShowFields(false);
    FocusList();
}

void frmWebList::EmptyGroups() {
    if (!AskYesNo(app_, u"Empty list now?")) return;
    Reject();
    lstGroup.Clear();
}

// ---- Keys and places ------------------------------------------------------------------------------------

void frmWebList::FocusList() {
    if (InGroups()) {
        lstGroup.SetFocus();
    } else {
        ListView1.SetFocus();
    }
}

void frmWebList::CentreInMainWindow() {
    CentreWithin(owner_, *this, kPercentOfMainWindow);
}

void frmWebList::Leave() {
    if (Frame1.Visible) return Reject();
    if (InGroups()) return CloseGroups();
    Close();
}

void frmWebList::ListView1_KeyDown(KeyEvent& key) {
    if (!DockByKey(app_, owner_, *this, key)) RunKey(Tables::kListKeys, *this, key);
}

} // namespace korvane
