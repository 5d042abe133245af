#pragma once

#include "controls/CommandButton.h"
#include "controls/DropDown.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "controls/lists/ListView.h"
#include "controls/lists/TreeView.h"
#include "controls/views/ProgressBar.h"
#include "controls/views/Splitter.h"
#include "files/lister/FileCommands.h"
#include "files/lister/FindInFolder.h"
#include "files/lister/FocusCycles.h"
#include "files/lister/FolderCommands.h"
#include "files/lister/Proceeding.h"
#include "files/lister/ShownFolder.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lister/rows/FileRows.h"
#include "files/names/NameLine.h"
#include "files/tree/FolderTree.h"

#include <cstdint>

namespace korvane {

class App;
struct ListerRequest;

/// The window in which files to load or to save are chosen, and a small file manager. It answers the
/// `ListerRequest`; `DialogResult` is 1 when something was chosen. Modal.
class frmGetFileFromTree : public Form, private NameLine {
public:
    explicit frmGetFileFromTree(App& app);

    Menu OfficeMenu1;
    CommandButton cmdOk{*this, "cmdOk", u"", u"Proceed (load/save file)"};
    CommandButton cmdEnterFileName{*this, "cmdEnterFileName", u"", u"Enter file name"};
    CommandButton cmdViewFile{*this, "cmdViewFile", u"", u"View current file"};
    CommandButton cmdViewWith{*this, "cmdViewWith", u"", u"View file with user-selected program"};
    CommandButton cmdFileInfo{*this, "cmdFileInfo", u"", u"File info"};
    CommandButton cmdCopyFile{*this, "cmdCopyFile", u"", u"Copy current file"};
    CommandButton cmdRename{*this, "cmdRename", u"", u"Rename current file"};
    CommandButton cmdDuplicate{*this, "cmdDuplicate", u"", u"Duplicate current file"};
    CommandButton cmdDelete{*this, "cmdDelete", u"", u"Delete current file"};
    // It does nothing. Kept for compatibility: directory-info-does-nothing.
    CommandButton cmdDirInfo{*this, "cmdDirInfo", u"", u"Directory info"};
    CommandButton cmdGetTarget{*this, "cmdGetTarget", u"", u"Get target from list of directories"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"", u"Windows Explorer"};
    CommandButton cmdCentreOnScreen{*this, "cmdCentreOnScreen", u"", u"Centre window on screen"};
    CommandButton cmdCancel{*this, "cmdCancel", u"", u"Close window"};

    Panel Picture1{*this, "Picture1"};
    TextBox txtFullPath{*this, "txtFullPath"};
    DropDown txtSearchSpec{*this, "txtSearchSpec"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};
    CommandButton cmdEscape{*this, "cmdEscape", u"Stop"};
    Splitter imgSplitV{*this, "imgSplitV"};
    TreeView TreeView1{*this, "TreeView1"};
    Timer FolderTimer{*this, "FolderTimer", FolderTree::kBetween};
    ListView ListView1;
    TextBox txtFileName{*this, "txtFileName"};

    void Load() override;
    void Activate() override;
    void Resize() override;
    void Unload() override;
    void FilesDropped(const std::vector<Text>& paths) override;

private:
    struct Tables;

    void WireButtons();
    void WireParts();

    // Opening and its place.

    Text StartFolder() const;
    bool AnswersSoon(const Text& folder) const;
    void Place();
    void HoldSplitter();
    void LayOutColumns();
    void ApplyColours();
    void ChooseColour();
    void CentreOnScreen();
    void DockLeft();
    void DockRight();
    void DockLeftWithWidth();
    void DockRightWithWidth();

    // The tree, the list and the line of the name.

    void FolderChanged();
    void ReadFolderOfTree();
    void ItemChosen();
    void ListFocused();
    void ShowCurrentName();
    std::vector<Text> MarkedPaths() const;
    void PickRow();
    void MarkAll();
    void NextPattern();
    void ListAgain();
    void FindFile();
    void StopReading();
    void StepFocusA();
    void StepFocusB();

    // The name.

    Text FileName() const override { return txtFileName.Text; }
    void SetFileName(TextView name) override { txtFileName.Text = Text(name); }
    void SetPattern(TextView pattern) override { txtSearchSpec.Text = Text(pattern); }
    void NextExtension();
    void MakeDocx();
    void AddToday();
    void txtFileName_KeyDown(KeyEvent& key);

    // Commands.

    void Proceed();
    void Cancel();
    void EnterFileName();
    void Rename();
    void RecentFiles();
    void LoadRecentFile();
    void MoveFiles();
    void NewFolder();
    void RenameFolder();
    void DeleteFolder();
    void Refresh();
    void TodaysFolders();
    void NoteTodaysFolder();
    void ExploreHere();
    void StartIvrandHere();
    void StartLorrit();
    void StartTolmereSet();
    void FindText();
    void FindFiles();
    void ToggleDesktop();
    void ShowClock();
    void Webmail();
    void StartBrowser();

    bool Saves() const;
    ListerRequest& Request() const;

    App& app_;
    DiskWait wait_;
    FolderTree tree_;
    FileRows rows_;
    ShownFolder folder_;
    FileCommands fileCommands_;
    FolderCommands folderCommands_;
    Proceeding proceeding_;
    FocusCycles focus_;
    FindInFolder find_;
    /// 1 until the window was first shown.
    std::int16_t WindowLoading = 1;
    /// What becomes the `DialogResult`.
    std::int16_t outcome_ = 0;
};

} // namespace korvane
