#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/lists/TreeView.h"

namespace korvane {

class App;
class Tabs;

/// The open tabs, of which the user switches to one. Modal.
class frmLoadList : public Form {
public:
    /// `owner` is the main window, beside which this one docks. All outlive the window.
    frmLoadList(App& app, Tabs& tabs, const Form& owner);

    Menu OfficeMenu1;
    CommandButton cmdSwitch{*this, "cmdSwitch", u"", u"Switch to selected text"};
    CommandButton cmdToClip{*this, "cmdToClip", u"", u"List to clipboard"};
    CommandButton cmdToggleForm{*this, "cmdToggleForm", u"", u"Toggle long / short display"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"", u"Windows Explorer"};
    CommandButton cmdDirLister{*this, "cmdDirLister", u"", u"Directory lister"};
    CommandButton cmdCentreOnScreen{*this, "cmdCentreOnScreen", u"", u"Centre window on screen"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Close window"};
    TreeView FileTree{*this, "FileTree"};
    Label Label1{*this, "Label1"};

    /// The slot to show, -1 for none.
    int SwitchTarget = -1;

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void FillTree();
    Text NodeText(int number, int slot) const;
    /// The number in the selected node's key; 0 for the root, which has none.
    int SelectedSlot() const;

    void SwitchToText();
    void ListToClipboard();
    void ToggleForm();
    void Explore();
    void ShowDirLister();
    void CentreOnScreen();
    void FileTree_KeyDown(KeyEvent& key);

    App& app_;
    Tabs& tabs_;
    const Form& owner_;
};

/// Shows the open tabs beside `owner` and goes to the one that the user picks.
void ShowLoadedFiles(App& app, Tabs& tabs, const Form& owner);

} // namespace korvane
