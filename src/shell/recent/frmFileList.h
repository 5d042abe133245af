#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/lists/ListView.h"

#include <optional>

namespace korvane {

class App;
class RecentRecord;

/// Shows the recent files. Modal; `DialogResult` is 1 when some are to be loaded, which are in the record's
/// picks then.
class frmFileList : public Form {
public:
    /// `owner` is the main window, beside which this one docks. All outlive the window.
    frmFileList(App& app, RecentRecord& recents, const Form& owner);

    Menu OfficeMenu1;
    CommandButton cmdLoad{*this, "cmdLoad", u"", u"Load current file / selected files"};
    CommandButton cmdNewText{*this, "cmdNewText", u"", u"Start a new text"};
    CommandButton cmdViewFile{*this, "cmdViewFile", u"", u"View current file"};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"Information on current file"};
    CommandButton cmdGotoFileFolder{*this, "cmdGotoFileFolder", u"", u"Goto folder with this file"};
    CommandButton cmdDelete{*this, "cmdDelete", u"", u"Delete current item"};
    CommandButton cmdEmptyList{*this, "cmdEmptyList", u"", u"Empty list"};
    CommandButton cmdFileFolder{*this, "cmdFileFolder", u"", u"Determine how many columns to view"};
    CommandButton cmdFont{*this, "cmdFont", u"", u"Set font for grid"};
    CommandButton cmdColour{*this, "cmdColour", u"", u"Set colour for grid"};
    CommandButton cmdCancel{*this, "cmdCancel", u"", u"Close window"};
    ListView ListView1;
    Label Label2{*this, "Label2"};

    /// A row has the second icon when its file is in neither of its two drive forms.
    static constexpr TextView kFoundIcon = u"fileFound";
    static constexpr TextView kLostIcon = u"fileLost";

    void Load() override;
    void Resize() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void FillList();
    ListRow RowOf(const Text& entry) const;
    void ShowCount();
    void LayOutColumns();
    void KeepColumnWidths();
    void ApplyLook();

    /// The current row; nothing in an empty list.
    std::optional<ListRow> CurrentRow() const;
    /// Folder and name of the row as one path.
    Text PathOf(const ListRow& row) const;

    void LoadFiles();
    void TakePick(const ListRow& row);
    void NewText();
    void DeleteItem();
    void EmptyList();
    void WhenToEmpty();
    void ViewFile();
    void ShowInfo();
    void GotoFileFolder();
    void ToggleColumns();
    void ChooseFont();
    void ChooseColour();
    void ExternalEdit();
    void LaunchLorritHere();
    void ListView1_ColumnClick(int column);
    void ListView1_KeyDown(KeyEvent& key);

    App& app_;
    RecentRecord& recents_;
    const Form& owner_;
    /// 0 as long as no header was clicked.
    int sortColumn_ = 0;
    SortOrder sortOrder_ = SortOrder::Ascending;
};

} // namespace korvane
