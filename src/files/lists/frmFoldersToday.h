#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/lists/ListBox.h"
#include "controls/views/GridBox.h"
#include "dialogs/CommandBar.h"

#include <cstdint>
#include <vector>

namespace korvane {

class App;

/// The folders of the present work session. Modal; when one is picked, `DialogResult` is 1, and the folder
/// is in `FolderPicked`.
class frmFoldersToday : public Form {
public:
    /// `currentFolder` is what can be added to the list.
    frmFoldersToday(App& app, TextView currentFolder);

    /// The `DialogResult` that asks for the favourite locations.
    static constexpr std::int16_t kToFavourites = 99;

    Menu OfficeMenu1;
    CommandButton cmdGoto{*this, "cmdGoto", u"", u"Goto selected folder"};
    CommandButton cmdAddCurrentFolder{*this, "cmdAddCurrentFolder", u"", u"Add current folder to list"};
    CommandButton cmdDelete{*this, "cmdDelete", u"", u"Delete item from list"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"", u"Windows Explorer"};
    CommandButton cmdDesktop{*this, "cmdDesktop", u"", u"Show desktop"};
    CommandButton cmdExit{*this, "cmdExit", u"", u"Close window"};
    GridBox iGridListBar;
    ListBox lstFoldersToday{*this, "lstFoldersToday"};

    void Load() override;
    void Activate() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void BuildBar();
    void ReadList();
    void ShowLines(const std::vector<Text>& lines);
    /// The entries that are written.
    std::vector<Text> Folders() const;
    void MergeTodaysFolders();
    void UseListFile(const Text& file);
    void ShowTitle();
    void CloseWith(std::int16_t outcome, const Text& folder);

    void GotoFolder();
    void AddCurrentFolder();
    void DeleteItem();
    void MoveDown();
    void MoveUp();
    void LoadList();
    void SaveList();
    void Explore();
    void ToggleDesktop();
    void StartLorrit();
    void GoToFavourites();
    void GoToDocuments();
    void GoToDownloads();
    void GoToDesktop();
    /// The folder of that name beside the one of documents.
    void GoBesideDocuments(TextView name);
    void RunBarItem(int index);
    void FocusBar();
    void FocusList();

    App& app_;
    Text currentFolder_;
    CommandBar bar_;
    std::int16_t WindowActivated = 0;
    /// What becomes the `DialogResult`.
    std::int16_t outcome_ = 0;
    /// The list's file is there, but nothing could be read of it.
    bool unreadable_ = false;
};

} // namespace korvane
