#include "shell/main/frmMDIParent.h"

#include "context/App.h"
#include "context/exchange/StartState.h"
#include "context/ports/TextKeeper.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"
#include "shell/commands/Commands.h"
#include "shell/commands/MainRoutines.h"
#include "shell/commands/Styles.h"
#include "shell/main/StartUp.h"
#include "shell/recent/frmFileList.h"
#include "shell/settings/SettingsFile.h"
#include "shell/tabs/RecentFiles.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/SaveCommands.h"
#include "table/TableKeeper.h"

#include <algorithm>

namespace korvane {

frmMDIParent::frmMDIParent(App& app, Text commandLine)
    : Form(app.Forms(), "frmMDIParent", u"Korvane"),
      OfficeMenu1(*this, "OfficeMenu1", MenuBarEntries()),
      mnuPopupMenu(*this, "mnuPopupMenu", PopupMenuEntries()),
      mnuWindow(*this, "mnuWindow", WindowMenuEntries()),
      iGridListBar(*this, "iGridListBar", app.MakeGrid()),
      app_(app),
      commandLine_(std::move(commandLine)),
      tabs_(app, MDITabs1),
      pipeline_(app, tabs_, recents_, *this),
      sideBar_(app, {Picture2, lblListBar, iGridListBar},
               [this](const CommandCall& call) { runner_.Run(call); }),
      parts_{app, *this, OfficeMenu1, MDITabs1, sideBar_, tabs_, pipeline_, recents_, windowSize_},
      runner_(parts_),
      startPage_(app, *this, [this](const Text& path) { OpenRecent(path); }),
      unsavedPage_(app, *this, tabs_) {
    app_.SetPort<MainWindow>(this);
    MakeToolBar();
    CheckFirstStyle(OfficeMenu1);
    Wire();
}

frmMDIParent::~frmMDIParent() {
    if (app_.Port<MainWindow>() == this) app_.SetPort<MainWindow>(nullptr);
    if (auto* keeper = app_.Port<TableKeeper>()) keeper->UnsavedChanged = nullptr;
    if (auto* keeper = app_.Port<TextKeeper>()) keeper->UnsavedChanged = nullptr;
}

void frmMDIParent::MakeToolBar() {
    for (const ToolBarButton& button : ToolBarButtons()) {
        toolBar_.push_back(std::make_unique<CommandButton>(*this, button.name, TextView(), ShownTip(button)));
        toolBar_.back()->Click = [this, &command = button.command] { runner_.Run(command.calls); };
    }
}

void frmMDIParent::Wire() {
    for (Menu* menu : {&OfficeMenu1, &mnuPopupMenu, &mnuWindow}) {
        menu->Chosen = [this](std::string_view entry) { RunCommand(entry); };
    }
    txtCommand.Visible = false;
    txtCommand.Change = [this] { txtCommand_Change(); };
    tabs_.CountChanged = [this] { unsavedPage_.Fill(); };
    const auto unsavedChanged = [this] { unsavedPage_.Fill(); };
    if (auto* keeper = app_.Port<TableKeeper>()) keeper->UnsavedChanged = unsavedChanged;
    if (auto* keeper = app_.Port<TextKeeper>()) keeper->UnsavedChanged = unsavedChanged;
    MDITabs1.TabContextClick = [this] { runner_.Run(&mnuFile_FileInfo_Clack); };
    MDITabs1.ContextMenu = [this] { Host().PopUp(mnuWindow); };
    MDITabs1.Emptied = [this] { startPage_.Fill(recents_); };
    MDITabs1.CloseWanted = [this](Form& child) { runner_.CloseTab(child); };
}

void frmMDIParent::OpenRecent(const Text& path) {
    RecentFiles(app_, tabs_, recents_, pipeline_, *this).Open(path);
}

void frmMDIParent::RunCommand(std::string_view name) {
    runner_.RunNamed(name);
}

void frmMDIParent::ShowPopupMenu() {
    Host().PopUp(mnuPopupMenu);
}

void frmMDIParent::GridKeyDown(KeyEvent& key) {
    runner_.RunGridKey(key);
}

Text frmMDIParent::GetActiveFolder() {
    if (const frmMDIChild* tab = tabs_.Active()) {
        return Text(app_.Files().Style().FolderPart(tab->Caption.Get()));
    }
    app_.Messages().Show({u"No form loaded."});
    return {};
}

void frmMDIParent::ShowFileList() {
    frmFileList(app_, recents_, *this).ShowModal();
}

void frmMDIParent::Load() {
    StartUp(parts_, txtCommand, commandLine_);
    startPage_.Fill(recents_);
}

void frmMDIParent::Activate() {
    app_.Exchange<StartState>().FirstLoadPending = 0;
    if (firstActivation_) {
        firstActivation_ = false;
        if (app_.Settings.ShowRecentAtStart == 1 && commandLine_.empty()) runner_.Run(&mnuFile_Recent);
    }
    app_.Screen().ProcessMessages();
}

void frmMDIParent::Resize() {
    sideBar_.Arrange();
}

void frmMDIParent::FilesDropped(const std::vector<Text>& paths) {
    for (const Text& path : paths)
        txtCommand.Text = path;
}

void frmMDIParent::txtCommand_Change() {
    const Text path(Trim(txtCommand.Text.Get()));
    if (!path.empty() && app_.Files().FileExists(path)) {
        pipeline_.OpenDatabase(path, LoadInto::NewTab);
        app_.Exchange<StartState>().LoadedByCommand = -1;
    }
    // Tells the second start that the next path may come.
    txtCommand.Text = Text();
}

bool frmMDIParent::HasChanges() const {
    return std::ranges::any_of(Host().LoadedForms(),
                               [this](const Form* form) { return form != this && form->HasChanges(); });
}

bool frmMDIParent::QueryUnload() {
    if (app_.Exchange<StartState>().SecondInstance != 1) {
        // It stays so if the closing is cancelled. Kept for compatibility: cancelled-end-leaves-strip-off.
        MDITabs1.On = false;
        if (State == FormState::Minimised) State = FormState::Maximised;
        StorePlace();
    }
    return tabs_.CloseAll();
}

void frmMDIParent::StorePlace() {
    Settings& settings = app_.Settings;
    settings.TabStyle = static_cast<std::int16_t>(MDITabs1.Style);
    settings.MainTop = Top.Get().Number();
    settings.MainLeft = Left.Get().Number();
    settings.MainHeight = Height.Get().Number();
    settings.MainWidth = Width.Get().Number();
}

void frmMDIParent::Unload() {
    MDITabs1.On = false;
    WriteState();
    CloseOtherWindows();
    app_.SetPort<MainWindow>(nullptr);
}

void frmMDIParent::WriteState() {
    if (app_.Exchange<StartState>().SecondInstance != 0) return;
    StorePlace();
    WriteSettings(app_);
    recents_.Write(app_);
}

void frmMDIParent::CloseOtherWindows() {
    // What these store when they close is lost, and a refusal no longer stops the end. Kept for
    // compatibility: late-windows-lose-settings.
    const std::vector<Form*> loaded = Host().LoadedForms();
    for (auto form = loaded.rbegin(); form != loaded.rend(); ++form) {
        // One that closes may take others with it.
        const bool stands = std::ranges::count(Host().LoadedForms(), *form) > 0;
        if (stands && *form != this) (*form)->Close();
    }
}

} // namespace korvane
