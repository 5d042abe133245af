#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/lists/ListView.h"
#include "text/words/WordListState.h"
#include "text/words/WordRows.h"

namespace korvane {

class App;

/// A list of words and phrases for repeated use. Modal; after words were taken, they are the
/// `WordListResult`, and `DialogResult` is 1.
class frmHoldWordList : public Form {
public:
    /// The App outlives the window.
    explicit frmHoldWordList(App& app);

    Menu OfficeMenu1;
    CommandButton cmdOk{*this, "cmdOk", u"", u"Insert item(s)"};
    CommandButton cmdEntry{*this, "cmdEntry", u"", u"Add entry to list"};
    CommandButton cmdEdit{*this, "cmdEdit", u"", u"Edit current entry"};
    CommandButton cmdClear{*this, "cmdClear", u"", u"Delete item from list"};
    CommandButton cmdSelectAll{*this, "cmdSelectAll", u"", u"Select all"};
    CommandButton cmdClip{*this, "cmdClip", u"", u"Item(s) to clipboard"};
    CommandButton cmdSort{*this, "cmdSort", u"", u"Sort entries in list"};
    CommandButton cmdFind{*this, "cmdFind", u"", u"Find string in current text"};
    CommandButton cmdNewList{*this, "cmdNewList", u"", u"Start new list"};
    CommandButton cmdLoad{*this, "cmdLoad", u"", u"Open list from disk"};
    CommandButton cmdSave{*this, "cmdSave", u"", u"Save list"};
    CommandButton cmdAutoSave{*this, "cmdAutoSave", u"", u"Autosave list on closing window"};
    CommandButton cmdAppendToFile{*this, "cmdAppendToFile", u"", u"Append selected items to list"};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"Info on current list"};
    CommandButton cmdCancel{*this, "cmdCancel", u"", u"Exit"};
    ListView lstWordList;

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    WordListState& State() const;
    Form* MainForm() const;
    void FitPlace();
    void ShowFont();
    void ShowStatus();

    void RebuildBuffer();
    /// The list stays as it is when its file can't be read.
    void LoadListFile();
    bool WriteListFile();
    void SaveAtClosing();

    void mnuInfo_Click();
    void mnuLoad_Click();
    void mnuNew_Click();
    void mnuAppendToFile_Click();
    void mnuSave_Click();
    /// False when nothing was saved.
    bool SaveUnderAName();
    void mnuAutoSave_Click();
    void mnuInsert_Click();
    void mnuFindString_Click();
    void mnuEdit_Click();
    void mnuEntry_Click();
    void mnuDelete_Click();
    void mnuSelectAll_Click();
    void mnuClip_Click();
    void mnuSort_Click();
    void mnuArrowUp_Click();
    void mnuArrowDown_Click();
    void mnuPinsey_Click();
    void mnuFont_Click();
    void mnuLorrit_Click();
    void mnuExplorer_Click();

    // Keys.

    void lstWordList_KeyDown(KeyEvent& key);
    void UpKey(KeyEvent& key);
    void DownKey(KeyEvent& key);
    void CentreInMainWindow();
    void StartBrowser();
    void Webmail();

    Text FolderOfList() const;

    App& app_;
    WordRows rows_{lstWordList};
};

} // namespace korvane
