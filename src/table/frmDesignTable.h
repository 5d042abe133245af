#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/lists/ListView.h"
#include "table/TabContext.h"

namespace korvane {

/// Asks for the column names of a new table. Modal. They go to the tab's `lstNewTableColumns`, which a cancel
/// leaves as it was.
class frmDesignTable : public Form {
public:
    /// The tab outlives the window.
    explicit frmDesignTable(const TabContext& tab);

    /// One entry for each column that a table can have: its number and its title.
    ListView ListView1;
    CommandButton Image2{*this, "Image2", u"", u"Move current item up in list"};
    CommandButton Image1{*this, "Image1", u"", u"Move current item down in list"};
    TextBox txtColumnName{*this, "txtColumnName"};
    CommandButton cmdAssign{*this, "cmdAssign", u"&Assign label to column"};
    CommandButton cmdAutoLabel{*this, "cmdAutoLabel", u"A&uto label cols."};
    CommandButton cmdDeleteEntry{*this, "cmdDeleteEntry", u"&Delete entries"};
    CommandButton cmdMake{*this, "cmdMake", u"&Make table"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;
    void Resize() override;

private:
    struct Tables;

    void FillList();
    void LayOutColumns();
    void SetTitle(int index, TextView title);
    void TakeTyped(int index, TextView text);
    /// Goes to the next entry.
    void GoOn();
    void ClearSelectedTitles();
    /// Swaps the current entry with the one that is `step` places below it. At the end of the list nothing
    /// happens.
    void MoveCurrent(int step);

    void cmdAssign_Click();
    void cmdAutoLabel_Click();
    void cmdDeleteEntry_Click();
    void cmdMake_Click();

    TabContext tab_;
};

} // namespace korvane
