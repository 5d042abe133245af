#include "shell/tabs/frmLoadList.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/StandardMessages.h"
#include "context/WindowFitting.h"
#include "controls/KeyTable.h"
#include "controls/UpdateScope.h"
#include "dialogs/Docking.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "platform/Shell.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"

namespace korvane {

namespace {

constexpr TextView kRootKey = u"Root";
constexpr TextView kNodeKey = u"X_";

constexpr StoredPlace kPlace{&Settings::LoadListLeft, &Settings::LoadListTop, &Settings::LoadListWidth,
                             &Settings::LoadListHeight};

Text KeyOf(int slot) {
    return Text(kNodeKey) + NumberText(slot);
}

Text DiskInfo(const FileSystem& files, const Text& path) {
    const auto modified = files.Modified(path);
    return u"  [ disk size: " + FormatGrouped(files.Size(path).value_or(0)) + u"; modified: " +
           (modified ? FormatDate(*modified, u"dd.mm.yyyy, hh:mm") : Text()) + u" ]";
}

} // namespace

struct frmLoadList::Tables {
    // One name is misspelt. Kept for compatibility: explorer-entry-misspelt.
    static constexpr MenuRow<frmLoadList> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuSwitch", u"&Switch to text", "", &frmLoadList::SwitchToText},
        {1, "mnuClipList", u"List to clip&board", "", &frmLoadList::ListToClipboard},
        {1, "mnuExpolorer", u"E&xplorer", "", &frmLoadList::Explore},
        {1, "mnuDirLister", u"Directory &lister", "", &frmLoadList::ShowDirLister},
        {1, "mnuExit", u"&Close", "", &frmLoadList::Close},
        {0, "mnuView", u"&View", ""},
        {1, "mnuToggle", u"Long/short &display", "", &frmLoadList::ToggleForm},
    };
    static constexpr WindowKey<frmLoadList> kTreeKeys[] = {
        {"Esc", &frmLoadList::Close},
        {"Clear", &frmLoadList::Close},
        {"Return", &frmLoadList::SwitchToText},
        {"F2", &frmLoadList::ShowDirLister},
        {"Any+Ctrl+F9", &frmLoadList::Explore},
        {"Any+Ctrl+C", &frmLoadList::ListToClipboard},
        {"Any+Ctrl+D", &frmLoadList::ToggleForm},
    };
};

frmLoadList::frmLoadList(App& app, Tabs& tabs, const Form& owner)
    : Form(app.Forms(), "frmLoadList", u"Following asterisks mean text has been altered"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      tabs_(tabs),
      owner_(owner) {
    Wire();
}

void frmLoadList::Wire() {
    cmdSwitch.Click = [this] { SwitchToText(); };
    cmdToClip.Click = [this] { ListToClipboard(); };
    cmdToggleForm.Click = [this] { ToggleForm(); };
    cmdExplorer.Click = [this] { Explore(); };
    cmdDirLister.Click = [this] { ShowDirLister(); };
    cmdCentreOnScreen.Click = [this] { CentreOnScreen(); };
    cmdExit.Click = [this] { Close(); };
    cmdExit.Cancel = true;
    FileTree.DblClick = [this] { SwitchToText(); };
    FileTree.KeyDown = [this](KeyEvent& key) { FileTree_KeyDown(key); };
}

void frmLoadList::Load() {
    RestorePlace(app_, *this, kPlace);
    const DateTime now = app_.Clock().Now();
    Label1.Caption = u" Date/time:  " + FormatDate(now, u"dddd, mmm d yyyy", app_.Locale().Names()) + u", " +
                     FormatDate(now, u"hh:mm");
    FillTree();
    const frmMDIChild* active = tabs_.Active();
    FileTree.Select(active == nullptr ? Text(kRootKey) : KeyOf(active->Slot()));
    FileTree.SetFocus();
}

void frmLoadList::Unload() {
    StorePlace(app_, *this, kPlace);
}

void frmLoadList::FillTree() {
    const Text folder = app_.Files().ProgramDir();
    const PathStyle style = app_.Files().Style();
    FileTree.Images =
        TreeImages{style.JoinPath(folder, u"FolderClosed.ico"), style.JoinPath(folder, u"FolderOpen.ico")};
    const UpdateScope update(FileTree);
    FileTree.Clear();
    FileTree.Add({}, kRootKey, u" Open files");
    int number = 0;
    for (int slot = 1; slot <= tabs_.TabState.UpperBound(); ++slot) {
        if (tabs_.TabState.InUse(slot)) FileTree.Add(kRootKey, KeyOf(slot), NodeText(++number, slot));
    }
    FileTree.SetExpanded(kRootKey, true);
}

Text frmLoadList::NodeText(int number, int slot) const {
    const TabState& state = tabs_.TabState[slot];
    const bool isLong = app_.Settings.LoadListLongForm == 1;
    const Text shown = isLong ? state.Path : Text(app_.Files().Style().NamePart(state.Path));
    return u"[" + NumberText(number) + u"]  " + shown + (state.Dirty != 0 ? u"   * * *" : u"") +
           DiskInfo(app_.Files(), state.Path);
}

int frmLoadList::SelectedSlot() const {
    int slot = 0;
    if (FileTree.Selected().starts_with(kNodeKey))
        ReadNumber(Mid(FileTree.Selected(), kNodeKey.size() + 1), slot);
    return slot;
}

void frmLoadList::SwitchToText() {
    SwitchTarget = SelectedSlot();
    Close();
}

void frmLoadList::ListToClipboard() {
    Text list;
    for (int slot = 1; slot <= tabs_.TabState.UpperBound(); ++slot) {
        if (const frmMDIChild* tab = tabs_.Document(slot)) list += tab->Caption.Get() + Text(kCrLf);
    }
    app_.Clipboard().SetText(list);
    ShowPasteHint(app_);
}

void frmLoadList::ToggleForm() {
    std::int16_t& isLong = app_.Settings.LoadListLongForm;
    isLong = isLong == 1 ? 0 : 1;
    const Text selected = FileTree.Selected();
    FillTree();
    FileTree.Select(selected);
}

void frmLoadList::Explore() {
    const int slot = SelectedSlot();
    if (!tabs_.TabState.InUse(slot)) return;
    const PathStyle style = app_.Files().Style();
    const Text folder = style.DirectoryForChange(style.FolderPart(tabs_.TabState[slot].Path));
    app_.Shell().Open({.verb = u"explore", .file = folder, .directory = folder});
}

void frmLoadList::ShowDirLister() {
    ShowDirectoryLister(app_);
}

void frmLoadList::CentreOnScreen() {
    const Rect area = app_.Screen().WorkArea();
    Height = area.height;
    Top = area.top;
    Left = area.left + (area.width - Width.Get()) / 2;
}

void frmLoadList::FileTree_KeyDown(KeyEvent& key) {
    if (!DockByKey(app_, owner_, *this, key)) RunKey(Tables::kTreeKeys, *this, key);
}

void ShowLoadedFiles(App& app, Tabs& tabs, const Form& owner) {
    frmLoadList form(app, tabs, owner);
    form.ShowModal();
    if (!tabs.TabState.InUse(form.SwitchTarget)) return;
    app.Screen().ProcessMessages();
    tabs.Show(form.SwitchTarget);
    app.Screen().ProcessMessages();
    // A file that arrived meanwhile may have taken the keyboard.
    tabs.Show(form.SwitchTarget);
}

} // namespace korvane
