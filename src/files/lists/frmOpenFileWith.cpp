#include "files/lists/frmOpenFileWith.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/ProgramPicker.h"
#include "context/StandardMessages.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/OpenWithRequest.h"
#include "context/exchange/SystemDirs.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/TextFileViewer.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "files/lists/ChooseListFile.h"
#include "files/lists/FindListedProgram.h"
#include "files/lists/ListFile.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

constexpr Twips kLeastStoredHeight{7000};
constexpr int kListMargin = 600;

enum Column : int { kProgram = 1, kLocation };

} // namespace

struct frmOpenFileWith::Tables {
    static constexpr MenuRow<frmOpenFileWith> kMenu[] = {
        {0, "mnuMenu", u"&Menu", ""},
        {1, "mnuClose", u"&Close", "", &frmOpenFileWith::Close},
        {1, "mnuGetList", u"&Get list", "", &frmOpenFileWith::GetList},
        {1, "mnuEditList", u"&Edit list", "", &frmOpenFileWith::EditList},
        {1, "mnuToggle", u"&Toggle \"x86\"", "", &frmOpenFileWith::Toggle},
        {1, "mnuDelete", u"&Delete item", "", &frmOpenFileWith::DeleteItems},
        {1, "mnuAddProgram", u"&Add program", "", &frmOpenFileWith::AddProgram},
        {1, "mnuInternalViewer", u"&Internal viewer", "", &frmOpenFileWith::UseInternalViewer},
        {1, "mnuLoadFile", u"&Load file", "", &frmOpenFileWith::LoadFile},
    };
    static constexpr WindowKey<frmOpenFileWith> kListKeys[] = {
        {"Return", &frmOpenFileWith::LoadFile},   {"Space", &frmOpenFileWith::UseInternalViewer},
        {"Esc", &frmOpenFileWith::Close},         {"Delete", &frmOpenFileWith::DeleteItems},
        {"Insert", &frmOpenFileWith::AddProgram}, {"Ctrl+D", &frmOpenFileWith::MoveDown},
        {"Ctrl+U", &frmOpenFileWith::MoveUp},
    };
};

frmOpenFileWith::frmOpenFileWith(App& app)
    : Form(app.Forms(), "frmOpenFileWith", u"Open file with"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      ListView1(*this, "ListView1", {{u"Program", Twips{2400}}, {u"Location", Twips{4080}}}),
      app_(app) {
    ListView1.MultiSelect = true;
    Wire();
}

void frmOpenFileWith::Wire() {
    cmdInternalViewer.Click = [this] { UseInternalViewer(); };
    cmdToggle.Click = [this] { Toggle(); };
    cmdEditList.Click = [this] { EditList(); };
    cmdLoadFile.Click = [this] { LoadFile(); };
    cmdGetList.Click = [this] { GetList(); };
    cmdExit.Click = [this] { Close(); };
    cmdDelete.Click = [this] { DeleteItems(); };
    cmdAddProgram.Click = [this] { AddProgram(); };
    Image1.Click = [this] { MoveDown(); };
    Image2.Click = [this] { MoveUp(); };
    cmdExit.Cancel = true;
    ListView1.DblClick = [this] { LoadFile(); };
    ListView1.KeyDown = KeysOf(*this, Tables::kListKeys);
}

void frmOpenFileWith::Load() {
    outcome_ = 0;
    const Twips height{app_.Settings.OpenWithHeight};
    if (height > kLeastStoredHeight) Height = height;
    LayOutColumns();
    ReadList();
    ListView1.SetCurrent(app_.Settings.OpenWithOption);
    ShowFile();
    Propose();
    ListView1.SetFocus();
}

void frmOpenFileWith::Resize() {
    LayOutColumns();
}

void frmOpenFileWith::Unload() {
    app_.Settings.OpenWithHeight = Height.Get().Number();
    app_.Settings.OpenWithOption = static_cast<std::int16_t>(ListView1.Current());
    if (ListChanged == 1) WriteList();
    // A window in between may have left another outcome.
    app_.DialogResult = outcome_;
}

void frmOpenFileWith::LayOutColumns() {
    const int width = Width.Get().Number() - kListMargin;
    if (width <= 0) return;
    ListView1.SetColumnWidth(kProgram, Twips{width / 3});
    ListView1.SetColumnWidth(kLocation, Twips{width * 17 / 30});
}

void frmOpenFileWith::ShowFile() {
    const PathStyle style = app_.Files().Style();
    const Text& file = app_.Exchange<OpenWithRequest>().ViewWithFile;
    lblFiletoLoad.Caption = Text(style.NamePart(file));
    lblDirectory.Caption = style.DirectoryForChange(style.FolderPart(file));
}

void frmOpenFileWith::ReadList() {
    Text path = app_.Settings.OpenWithListFile;
    if (app_.Files().FileExists(path)) return ReadOpenFilesWithList();
    ShowCannotLocate(app_, path);
}

void frmOpenFileWith::ReadOpenFilesWithList() {
    ListView1.Clear();
    ListChanged = 0;
    const Text& path = app_.Settings.OpenWithListFile;
    const auto lines = ReadListFile(app_, path);
    unreadable_ = !lines;
    if (unreadable_) return Warn(app_, u"Can't open file: " + path);
    for (const ListedProgram& program : ProgramsOfLines(*lines))
        AddRow(program);
    ListView1.SetCurrent(1);
}

void frmOpenFileWith::WriteList() {
    Text& path = app_.Settings.OpenWithListFile;
    // What couldn't be read may be a long list.
    if (unreadable_) return ShowCannotAccess(app_, path);
    // Without a list there is no dialog that would name one.
    if (path.empty()) path = app_.Files().Style().JoinPath(app_.Files().StateDir(), u"OpenWith.lst");
    WriteListFile(app_, path, LinesOfPrograms(Programs()));
}

void frmOpenFileWith::Propose() {
    const auto place = ProposedProgram(app_.Exchange<OpenWithRequest>().ViewWithFile, Programs());
    if (place) ListView1.SetCurrent(static_cast<int>(*place) + 1);
}

ListedProgram frmOpenFileWith::ProgramAt(int row) const {
    return {Text(ListView1.TextAt(row, kProgram)), Text(ListView1.TextAt(row, kLocation))};
}

std::vector<ListedProgram> frmOpenFileWith::Programs() const {
    std::vector<ListedProgram> programs;
    for (int row = 1; row <= ListView1.Count(); ++row)
        programs.push_back(ProgramAt(row));
    return programs;
}

void frmOpenFileWith::AddRow(const ListedProgram& program) {
    ListView1.Add({.key = u"K_ " + NumberText(ListView1.Count() + 1),
                   .texts = {program.name, program.folder},
                   .icon = Text(IconOf(program))});
}

void frmOpenFileWith::SetTexts(int row, const ListedProgram& program) {
    ListView1.SetText(row, kProgram, program.name);
    ListView1.SetText(row, kLocation, program.folder);
}

TextView frmOpenFileWith::IconOf(const ListedProgram& program) const {
    const FileSystem& files = app_.Files();
    const bool there = IsCommand(program) || files.FileExists(PathOf(files.Style(), program));
    return there ? kFoundIcon : kMissingIcon;
}

void frmOpenFileWith::CloseWith(std::int16_t outcome, const Text& program) {
    app_.Exchange<OpenWithRequest>().ViewWithProgram = program;
    outcome_ = outcome;
    Close();
}

void frmOpenFileWith::LoadFile() {
    if (ListView1.Current() == 0) return;
    const ListedProgram program = ProgramAt(ListView1.Current());
    if (IsCommand(program)) return CloseWith(kCommandMade, program.name + u" " + program.folder);
    const FileSystem& files = app_.Files();
    const auto found = FindListedProgram(files.Style(), program, app_.Exchange<SystemDirs>().ProgramFilesDir,
                                         [&files](TextView path) { return files.FileExists(path); });
    if (found) return CloseWith(kProgramFound, *found);
    Text missing = SeparatedPathOf(files.Style(), program);
    ShowCannotLocate(app_, missing);
}

void frmOpenFileWith::Toggle() {
    const int row = ListView1.Current();
    if (row == 0) return;
    ListedProgram program = ProgramAt(row);
    program.folder = ToggledFolder(program.folder);
    SetTexts(row, program);
    ListView1.SetIcon(row, IconOf(program));
    ListChanged = 1;
}

void frmOpenFileWith::AddProgram() {
    Text path;
    if (!PickProgram(app_, u"Add program to list", path)) return;
    AddRow(ProgramOfPath(app_.Files().Style(), path));
    ListView1.SetCurrent(ListView1.Count());
    ListChanged = 1;
}

void frmOpenFileWith::DeleteItems() {
    const Text count = NumberText(ListView1.SelectedCount());
    if (!AskYesNo(app_, u"Delete " + count + u" items from list ? ")) return;
    for (const int row : ListView1.SelectedRows())
        SetTexts(row, {Text(kDeletedRow), Text(kDeletedRow)});
    ListChanged = 1;
}

void frmOpenFileWith::SwapCurrentWith(int neighbour) {
    const int current = ListView1.Current();
    if (current == 0 || neighbour < 1 || neighbour > ListView1.Count()) return;
    const ListedProgram moved = ProgramAt(current);
    const Text movedIcon(ListView1.IconAt(current));
    SetTexts(current, ProgramAt(neighbour));
    ListView1.SetIcon(current, Text(ListView1.IconAt(neighbour)));
    SetTexts(neighbour, moved);
    ListView1.SetIcon(neighbour, movedIcon);
    ListView1.SetCurrent(neighbour);
    ListChanged = 1;
}

void frmOpenFileWith::MoveDown() {
    SwapCurrentWith(ListView1.Current() + 1);
}

void frmOpenFileWith::MoveUp() {
    SwapCurrentWith(ListView1.Current() - 1);
}

void frmOpenFileWith::GetList() {
    const auto path = ChooseListFile(app_, {SystemFileDialog::Purpose::Open,
                                            Text(kListFiles),
                                            u"Get list of programs",
                                            {},
                                            Text(kListExtension)});
    if (!path) return;
    app_.Settings.OpenWithListFile = *path;
    ReadOpenFilesWithList();
}

void frmOpenFileWith::EditList() {
    LaunchDunmark(app_, app_.Settings.OpenWithListFile);
    if (AskYesNo(app_, u"Reload list of programs from file?")) ReadOpenFilesWithList();
}

void frmOpenFileWith::UseInternalViewer() {
    if (app_.Exchange<TextWindowState>().TextWindowOpen != 0) return;
    const Text path = app_.Files().Style().JoinPath(lblDirectory.Caption.Get(), lblFiletoLoad.Caption.Get());
    app_.Exchange<FileOperation>().FileOpName = path;
    if (auto* texts = app_.Port<TextFileViewer>()) texts->View(path);
    Close();
}

} // namespace korvane
