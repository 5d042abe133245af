#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"

#include <cstdint>
#include <vector>

namespace korvane {

class App;

/// The folders that the user likes to go to. Modal; when one is picked, `DialogResult` is 1, and the folder
/// is in `ChosenFilePath` and `CurrentFolderHint`.
class frmFavouriteLocations : public Form {
public:
    /// `owner` is the main window, beside which this one docks; it outlives the window. `currentFolder` is
    /// what can be added to the list.
    frmFavouriteLocations(App& app, const Form& owner, TextView currentFolder);

    Menu OfficeMenu1;
    CommandButton cmdGotoFolder{*this, "cmdGotoFolder", u"", u"Goto currently highlighted folder in list"};
    CommandButton cmdAddFolder{*this, "cmdAddFolder", u"", u"Add current folder to list"};
    CommandButton cmdSeparator{*this, "cmdSeparator", u"", u"New entry"};
    CommandButton cmdRemoveFolder{*this, "cmdRemoveFolder", u"", u"Remove folder from list"};
    // The tips name other keys than those that work. Kept for compatibility: favourites-tips-other-keys.
    CommandButton Image1{*this, "Image1", u"", u"Move item down one in list (keystroke: Ctrl-Down)"};
    CommandButton Image2{*this, "Image2", u"", u"Move item up one in list (keystroke: Ctrl-Up)"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"", u"Windows Explorer"};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"Information on current list file"};
    CommandButton cmdSaveList{*this, "cmdSaveList", u"", u"Save list to disk"};
    CommandButton cmdLoadFile{*this, "cmdLoadFile", u"", u"Load list from disk"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Close this window"};
    ListBox List1{*this, "List1"};
    TextBox txtFindThisString{*this, "txtFindThisString"};
    CommandButton cmdFind{*this, "cmdFind", u"", u"Find string in list"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void ApplyColours();
    Text FindListFile() const;
    void ReadList();
    void ShowLines(const std::vector<Text>& lines);
    void WriteList();
    void UseListFile(const Text& file);
    void ShowCount();

    void GotoFolder();
    void AddFolder();
    void NewEntry();
    void RemoveFolder();
    void MoveDown();
    void MoveUp();
    void Explore();
    void ShowInfo();
    void LoadList();
    void SaveList();
    void FindString();
    void CentreInMainWindow();
    void List1_KeyDown(KeyEvent& key);

    App& app_;
    const Form& owner_;
    Text currentFolder_;
    /// What becomes the `DialogResult`.
    std::int16_t outcome_ = 0;
    Text listFile_;
    /// The list's file is there, but nothing could be read of it.
    bool unreadable_ = false;
};

} // namespace korvane
