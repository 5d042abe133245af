#include "shell/recent/frmFileList.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/StandardMessages.h"
#include "context/StoredPaths.h"
#include "context/WindowFitting.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FileViewer.h"
#include "context/ports/FontPicker.h"
#include "controls/KeyTable.h"
#include "controls/UpdateScope.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "shell/recent/RecentRecord.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr Twips kMinWidth{7000};
constexpr Twips kMinHeight{5688};
constexpr Twips kFileWidth{2400};
constexpr Twips kLocationWidth{3600};
// The column is so narrow that it shows the number and hides the date, which comes after it in the same text.
constexpr Twips kOffsetWidth{500};
constexpr Twips kDateWidth{2000};
constexpr int kListMargin = 600;

enum Column : std::size_t { kFile, kLocation, kOffset, kDate };

constexpr std::int16_t kLoad = 1;
constexpr std::int16_t kNewText = 11;
constexpr std::int16_t kGoToFolder = 99;

TextView Behind(TextView entry, TextView mark) {
    const std::size_t found = InStr(entry, mark);
    return found == 0 ? TextView() : Mid(entry, found + 1);
}

ListRow LostRow(TextView file, TextView folder) {
    ListRow row;
    row.texts = {Text(file), Text(folder), {}, {}};
    row.icon = frmFileList::kLostIcon;
    return row;
}

Twips WidthOr(std::int32_t stored, Twips usual) {
    return stored > 0 ? Twips{stored} : usual;
}

} // namespace

struct frmFileList::Tables {
    static constexpr MenuRow<frmFileList> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuLoad", u"&Load item", "", &frmFileList::LoadFiles},
        {1, "mnuNewText", u"Start &new text", "", &frmFileList::NewText},
        {1, "mnuViewFile", u"&View file", "", &frmFileList::ViewFile},
        {1, "mnuExternalEdit", u"E&xternal edit", "", &frmFileList::ExternalEdit},
        {1, "mnuFile_FileFolder", u"&Goto file folder", "", &frmFileList::GotoFileFolder},
        {1, "mnuInfo", u"&Info on item", "", &frmFileList::ShowInfo},
        {1, "mnuExit", u"E&xit", "", &frmFileList::Close},
        {0, "mnuEdit", u"&Edit", ""},
        {1, "mnuDelete", u"&Delete item", "", &frmFileList::DeleteItem},
        {1, "mnuEmpty", u"&Empty grid", "", &frmFileList::EmptyList},
        {1, "mnuWhenToEmpty", u"&When to empty", "", &frmFileList::WhenToEmpty},
        {0, "mnuView", u"&View", ""},
        {1, "mnuFileFolder", u"&Cols to view", "", &frmFileList::ToggleColumns},
        {1, "mnuFont", u"Font for grid", "", &frmFileList::ChooseFont},
        {1, "mnuColour", u"Grid colo&ur", "", &frmFileList::ChooseColour},
    };
    static constexpr WindowKey<frmFileList> kListKeys[] = {
        {"Esc", &frmFileList::Close},
        {"Return", &frmFileList::LoadFiles},
        {"Delete", &frmFileList::DeleteItem},
        {"Space", &frmFileList::ViewFile},
        {"Alt+Backspace", &frmFileList::ExternalEdit},
        {"Ctrl+Shift+F1", &frmFileList::LaunchLorritHere},
    };
};

frmFileList::frmFileList(App& app, RecentRecord& recents, const Form& owner)
    : Form(app.Forms(), "frmFileList", u"Recent files list"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      ListView1(*this, "ListView1",
                {{u"File", kFileWidth},
                 {u"Location", kLocationWidth},
                 {u"Offset", kOffsetWidth},
                 {u"Date", kDateWidth}}),
      app_(app),
      recents_(recents),
      owner_(owner) {
    ListView1.MultiSelect = true;
    Wire();
}

void frmFileList::Wire() {
    const auto on = [this](CommandButton& button, Handler<frmFileList> starts) {
        button.Click = [this, starts] { starts.Run(*this); };
    };
    on(cmdLoad, &frmFileList::LoadFiles);
    on(cmdNewText, &frmFileList::NewText);
    on(cmdViewFile, &frmFileList::ViewFile);
    on(cmdInfo, &frmFileList::ShowInfo);
    on(cmdGotoFileFolder, &frmFileList::GotoFileFolder);
    on(cmdDelete, &frmFileList::DeleteItem);
    on(cmdEmptyList, &frmFileList::EmptyList);
    on(cmdFileFolder, &frmFileList::ToggleColumns);
    on(cmdFont, &frmFileList::ChooseFont);
    on(cmdColour, &frmFileList::ChooseColour);
    on(cmdCancel, &frmFileList::Close);
    cmdCancel.Cancel = true;
    ListView1.DblClick = [this] { LoadFiles(); };
    ListView1.ColumnClick = [this](int column) { ListView1_ColumnClick(column); };
    ListView1.KeyDown = [this](KeyEvent& key) { ListView1_KeyDown(key); };
}

void frmFileList::Load() {
    recents_.RecentPicks.clear();
    recents_.RecentOffsets.clear();
    Width = std::max(Twips{app_.Settings.FileListWidth}, kMinWidth);
    Height = std::max(Twips{app_.Settings.FileListHeight}, kMinHeight);
    Rect place{Left, Top, Width, Height};
    FitWindowToWorkArea(app_.Screen().WorkArea(), *this, place);
    ApplyLook();
    LayOutColumns();
    FillList();
    ListView1.SetFocus();
}

void frmFileList::Resize() {
    if (app_.Settings.FileListAllColumns != 1) LayOutColumns();
}

void frmFileList::Unload() {
    app_.Settings.FileListWidth = Width.Get().Number();
    app_.Settings.FileListHeight = Height.Get().Number();
    KeepColumnWidths();
}

void frmFileList::ApplyLook() {
    const Settings& settings = app_.Settings;
    if (settings.FileListColour >= 0) ListView1.BackColor = Colour{settings.FileListColour};
    if (!settings.FileListFontName.empty() && settings.FileListFontSize > 0) {
        ListView1.Font = FontSpec{settings.FileListFontName, settings.FileListFontSize};
    }
}

void frmFileList::LayOutColumns() {
    const Settings& settings = app_.Settings;
    std::vector<ListColumn> columns = ListView1.Columns;
    const bool all = settings.FileListAllColumns == 1;
    columns[kFile].width = all ? WidthOr(settings.FileListColA, kFileWidth) : Width.Get() - kListMargin;
    columns[kLocation].width = all ? WidthOr(settings.FileListColB, kLocationWidth) : Twips{};
    columns[kOffset].width = all ? kOffsetWidth : Twips{};
    columns[kDate].width = all ? kDateWidth : Twips{};
    ListView1.Columns = std::move(columns);
}

void frmFileList::KeepColumnWidths() {
    if (app_.Settings.FileListAllColumns != 1) return;
    app_.Settings.FileListColA = ListView1.Columns.Get()[kFile].width.Number();
    app_.Settings.FileListColB = ListView1.Columns.Get()[kLocation].width.Number();
}

void frmFileList::FillList() {
    const UpdateScope update(ListView1);
    ListView1.Clear();
    recents_.CutWhenFull();
    for (int number = 1; number <= RecentRecord::kEntries; ++number) {
        const Text& entry = recents_.RecentEntries[static_cast<std::size_t>(number)];
        if (!entry.empty()) ListView1.Add(RowOf(entry));
    }
    if (sortColumn_ > 0) ListView1.SortBy(sortColumn_, sortOrder_);
    ListView1.SetCurrent(1);
    ShowCount();
}

ListRow frmFileList::RowOf(const Text& entry) const {
    if (InStr(entry, u"|") == 0) return LostRow(entry, {});
    const FileSystem& files = app_.Files();
    Text path(PathInRecord(entry));
    bool found = !path.empty() && files.FileExists(path);
    if (!found) {
        const Text other = SwapDriveForm(files, path);
        found = !other.empty() && files.FileExists(other);
        if (found) path = other;
    }
    ListRow row = LostRow(files.Style().NamePart(path), files.Style().FolderPart(path));
    if (!found) return row;
    row.icon = kFoundIcon;
    // The offset is followed by the date. Kept for compatibility: offset-column-shows-date.
    row.texts[kOffset] = Text(Behind(entry, u"|"));
    row.texts[kDate] = Text(Behind(entry, u"*"));
    return row;
}

void frmFileList::ShowCount() {
    Label2.Caption = u"Files:  " + NumberText(ListView1.Count());
}

std::optional<ListRow> frmFileList::CurrentRow() const {
    if (ListView1.Current() == 0) return std::nullopt;
    return ListView1.RowAt(ListView1.Current());
}

Text frmFileList::PathOf(const ListRow& row) const {
    const char16_t separator = app_.Files().Style().Separator();
    Text path = row.texts[kLocation];
    if (!path.empty() && !path.ends_with(separator)) path += separator;
    return path + row.texts[kFile];
}

void frmFileList::LoadFiles() {
    ListerRequest& request = app_.Exchange<ListerRequest>();
    if (const auto row = CurrentRow()) {
        request.ListerFolder = row->texts[kLocation];
        request.CurrentFolderHint = row->texts[kLocation];
        app_.Exchange<FileOperation>().FileOpName = row->texts[kFile];
    }
    for (const int index : ListView1.SelectedRows())
        TakePick(ListView1.RowAt(index));
    if (!recents_.RecentPicks.empty()) app_.DialogResult = kLoad;
    Close();
}

void frmFileList::TakePick(const ListRow& row) {
    // Nothing writes this text. Kept for compatibility: lost-rows-by-text.
    if (InStr(row.texts[kLocation], u"found !") > 0) return;
    // Nothing uses the offset. Kept for compatibility: record-offset-unused.
    int offset = 0;
    ReadNumber(TextView(row.texts[kOffset]), offset);
    recents_.RecentPicks.push_back(PathOf(row));
    recents_.RecentOffsets.push_back(offset);
}

void frmFileList::NewText() {
    app_.DialogResult = kNewText;
    Close();
}

void frmFileList::DeleteItem() {
    const auto row = CurrentRow();
    if (!row) return;
    const int place = ListView1.Current();
    ListView1.Remove(place);
    ShowCount();
    ListView1.SetCurrent(std::min(place, ListView1.Count()));
    // The record may have the path in its other form. Kept for compatibility: delete-by-shown-path.
    recents_.Forget(PathOf(*row));
}

void frmFileList::EmptyList() {
    if (!AskYesNo(app_, u"Clear all entries in recent files list?", YesNoDefault::No)) return;
    recents_.Empty();
    ListView1.Clear();
    ShowCount();
}

void frmFileList::WhenToEmpty() {
    const Text question = u"Empty list when full ?  (16 of 72 items retained )\r\n\r\nCurrent value: ";
    const Text value = recents_.EmptyWhenFull == 1 ? u"YES" : u"NO";
    recents_.EmptyWhenFull = AskYesNo(app_, question + value) ? 1 : 0;
}

void frmFileList::ViewFile() {
    const auto row = CurrentRow();
    if (!row) return;
    Text path = PathOf(*row);
    if (row->icon == kLostIcon) return ShowCannotLocate(app_, path);
    if (auto* fileViewer = app_.Port<FileViewer>()) fileViewer->View(path);
}

void frmFileList::ShowInfo() {
    const auto row = CurrentRow();
    if (!row) return;
    const FileSystem& files = app_.Files();
    const Text path = PathOf(*row);
    const auto modified = files.Modified(path);
    const DateTime now = app_.Clock().Now();
    const std::array<Text, 7> lines{
        u"File  " + row->texts[kFile],
        u"Dir.:  " + row->texts[kLocation],
        u"Size  " + FormatGrouped(files.Size(path).value_or(0)),
        u"Archived  " + (modified ? app_.Locale().GeneralDate(*modified) : Text()),
        u"Time  " + FormatDate(now, u"hh:mm:ss"),
        u"Date  " + FormatDate(now, u"dddd, mmm d yyyy", app_.Locale().Names()),
        u"Current Dir. :  " + files.CurrentDir(),
    };
    Text text;
    for (const Text& line : lines)
        text += (text.empty() ? Text() : Text(kCrLf)) + line;
    Inform(app_, text);
}

void frmFileList::GotoFileFolder() {
    const auto row = CurrentRow();
    if (!row) return;
    const Text folder = app_.Files().Style().DirectoryForChange(row->texts[kLocation]);
    if (!app_.Files().ChangeDir(folder)) {
        Warn(app_, u"Cannot change to this folder:\r\n\r\n" + folder);
        return;
    }
    app_.Exchange<ListerRequest>().CurrentFolderHint = folder;
    app_.DialogResult = kGoToFolder;
    Close();
}

void frmFileList::ToggleColumns() {
    KeepColumnWidths();
    std::int16_t& all = app_.Settings.FileListAllColumns;
    all = all == 1 ? 0 : 1;
    LayOutColumns();
}

void frmFileList::ChooseFont() {
    auto* fontPicker = app_.Port<FontPicker>();
    if (fontPicker == nullptr) return;
    const auto font = fontPicker->Choose(ListView1.Font);
    if (!font) return;
    app_.Settings.FileListFontName = font->name;
    app_.Settings.FileListFontSize = static_cast<std::int16_t>(font->size);
    ApplyLook();
}

void frmFileList::ChooseColour() {
    auto* colourPicker = app_.Port<ColourPicker>();
    if (colourPicker == nullptr) return;
    const auto colour =
        colourPicker->Choose(Colour{app_.Settings.FileListColour}, ColourPicker::Extent::Simple);
    if (!colour) return;
    app_.Settings.FileListColour = colour->value;
    ApplyLook();
}

void frmFileList::ExternalEdit() {
    const auto row = CurrentRow();
    if (!row) return;
    const Text path = PathOf(*row);
    if (row->icon == kLostIcon) {
        Warn(app_, u"This item is not a valid file:\r\n\r\n" + path);
    } else if (auto* fileViewer = app_.Port<FileViewer>()) {
        fileViewer->OpenWith(path);
    }
}

void frmFileList::LaunchLorritHere() {
    LaunchLorrit(app_, app_.Files().CurrentDir());
}

void frmFileList::ListView1_ColumnClick(int column) {
    if (ListView1.Count() < 2) return;
    sortColumn_ = column;
    ListView1.SortBy(column, sortOrder_);
    sortOrder_ = sortOrder_ == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
}

void frmFileList::ListView1_KeyDown(KeyEvent& key) {
    if (!DockByKey(app_, owner_, *this, key)) RunKey(Tables::kListKeys, *this, key);
}

} // namespace korvane
