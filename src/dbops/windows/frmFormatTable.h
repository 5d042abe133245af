#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Asks how a formatted table of a database is to look, and keeps it in the settings. Modal; `DialogResult`
/// is 1 when the user goes on.
class frmFormatTable : public Form {
public:
    explicit frmFormatTable(App& app);

    CheckBox chkColumnToFirstRow{*this, "chkColumnToFirstRow", u"&Use column titles for first row of table"};
    CheckBox chkTDB_FirstLineDark{*this, "chkTDB_FirstLineDark",
                                  u"&Display first line in a different background colour"};
    CommandButton cmdGetFirstLineBackColour{*this, "cmdGetFirstLineBackColour", u"Get &back colour"};
    Label lblFirstLineBackColour{*this, "lblFirstLineBackColour"};
    CommandButton cmdGetFirstLineForeColour{*this, "cmdGetFirstLineForeColour", u"Get &fore colour"};
    Label lblFirstLineForeColour{*this, "lblFirstLineForeColour"};
    CheckBox chkTDB_AlternateLinesGrey{*this, "chkTDB_AlternateLinesGrey",
                                       u"D&isplay alternate lines with different background colour"};
    CommandButton cmdGetAlternateLinesColour{*this, "cmdGetAlternateLinesColour", u"&Get colour"};
    Label lblAlternateLinesColour{*this, "lblAlternateLinesColour"};
    TextBox TableLeftMarginText{*this, "TableLeftMarginText"};
    ComboBox cboCellBorderWidth{*this, "cboCellBorderWidth"};
    ComboBox cboCellTextGap{*this, "cboCellTextGap"};
    CommandButton cmdProceed{*this, "cmdProceed", u"&Proceed"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void ShowColours();
    void ChooseColour(std::int32_t& colour);
    void cmdProceed_Click();

    App& app_;
};

} // namespace korvane
