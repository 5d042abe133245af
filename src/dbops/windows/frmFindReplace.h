#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "dbops/rules/TableSearch.h"
#include "table/TabContext.h"

#include <cstdint>

namespace korvane {

enum class FindMode : std::int16_t { Find = 1, Replace = 2 };

/// Searches the cells of a table forward from the current one, and replaces what was found, one match for
/// each click. Modal.
class frmFindReplace : public Form {
public:
    /// The tab outlives the window.
    frmFindReplace(const TabContext& tab, FindMode mode);

    TextBox Text1{*this, "Text1"};
    TextBox Text2{*this, "Text2"};
    /// This is kept from one opening to the next, and has no effect on the search.
    CheckBox Check1{*this, "Check1", u"&Case sensitive search"};
    CommandButton cmdFindButton{*this, "cmdFindButton", u"&Find"};
    CommandButton cmdReplaceButton{*this, "cmdReplaceButton", u"&Replace"};
    CommandButton cmdSwitch{*this, "cmdSwitch", u"&Switch", u"Switch find and replace strings"};
    CommandButton cmdTextTop{*this, "cmdTextTop", u"&Top of db."};
    CommandButton cmdCancel{*this, "cmdCancel", u"E&xit"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    /// Goes to the next match and returns it. When there is none, it shows a message and returns nothing.
    std::optional<TableMatch> FindNext();
    void cmdReplaceButton_Click();
    void ReplaceIn(const TableMatch& match);
    void cmdSwitch_Click();
    void cmdTextTop_Click();

    TabContext tab_;
    FindMode mode_;
};

void mnuEdit_Find_Clack(const TabContext& tab);
void mnuEdit_Replace_Clack(const TabContext& tab);

} // namespace korvane
