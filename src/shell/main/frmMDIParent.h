#pragma once

#include "context/ports/MainWindow.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/views/GridBox.h"
#include "controls/views/TabStrip.h"
#include "shell/commands/CommandRunner.h"
#include "shell/commands/MainParts.h"
#include "shell/commands/SideBar.h"
#include "shell/main/StartPage.h"
#include "shell/main/UnsavedPage.h"
#include "shell/recent/RecentRecord.h"
#include "shell/settings/frmWindowSize.h"
#include "shell/tabs/LoadPipeline.h"
#include "shell/tabs/Tabs.h"

#include <memory>
#include <string_view>
#include <vector>

namespace korvane {

/// The main window: menu bar, tool bar, sidebar and the tabs. It puts the parts together; the rules are in
/// the parts.
class frmMDIParent : public Form, public MainWindow {
public:
    /// `commandLine` is what the program was started with, taken as one path. The App outlives the window.
    frmMDIParent(App& app, Text commandLine);
    ~frmMDIParent() override;

    Panel picToolbar{*this, "picToolbar"};
    /// A second start of the program puts its file here.
    TextBox txtCommand{*this, "txtCommand"};
    Menu OfficeMenu1;
    Menu mnuPopupMenu;
    Menu mnuWindow;
    Panel Picture2{*this, "Picture2"};
    Label lblListBar{*this, "lblListBar", u"Commands"};
    GridBox iGridListBar;
    TabStrip MDITabs1{*this, "MDITabs1"};

    const MainParts& Parts() const { return parts_; }

    void RunCommand(std::string_view name) override;
    void ShowPopupMenu() override;
    void GridKeyDown(KeyEvent& key) override;
    Text GetActiveFolder() override;
    Form& Window() override { return *this; }
    void ShowFileList() override;

    void Load() override;
    void Activate() override;
    void Resize() override;
    void FilesDropped(const std::vector<Text>& paths) override;
    /// Those of all windows.
    bool HasChanges() const override;
    /// Writes what a close writes of the program's state.
    void WriteState();
    bool QueryUnload() override;
    void Unload() override;

private:
    void MakeToolBar();
    void Wire();
    void OpenRecent(const Text& path);
    void txtCommand_Change();
    void StorePlace();
    void CloseOtherWindows();

    App& app_;
    Text commandLine_;
    Tabs tabs_;
    RecentRecord recents_;
    LoadPipeline pipeline_;
    SideBar sideBar_;
    WindowSizeChoice windowSize_;
    MainParts parts_;
    CommandRunner runner_;
    std::vector<std::unique_ptr<CommandButton>> toolBar_;
    StartPage startPage_;
    UnsavedPage unsavedPage_;
    bool firstActivation_ = true;
};

} // namespace korvane
