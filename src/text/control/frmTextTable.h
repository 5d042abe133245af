#pragma once

#include "controls/Label.h"
#include "controls/lists/ListBox.h"
#include "document/model/Table.h"
#include "text/control/ControlForm.h"

namespace korvane {

/// Changes the look of cells in the table at the cursor of a text control. Only what the user changes is
/// changed in them.
class frmTextTable : public ControlForm {
public:
    frmTextTable(App& app, TextControl& target);

    ComboBox cboExtent{*this, "cboExtent"};
    LengthBox txtWidth{*this, "txtWidth"};
    LengthBox txtLeft{*this, "txtLeft"};
    LengthBox txtGapLeft{*this, "txtGapLeft"};
    LengthBox txtGapRight{*this, "txtGapRight"};
    LengthBox txtBorder{*this, "txtBorder"};
    Label lblBack{*this, "lblBack"};
    CommandButton cmdBack{*this, "cmdBack", u"&Colour..."};
    CommandButton cmdNoBack{*this, "cmdNoBack", u"&No colour"};

    void Load() override;

protected:
    bool Accept() override;

private:
    bool TakesRow(int row) const;
    bool TakesColumn(int column) const;
    void Change(doc::CellFormat& cell) const;
    void cmdBack_Click();
    void ShowBack(Colour colour);

    /// The cell at the cursor, with its row and column counted from 1.
    doc::CellPlace here_{};
    doc::CellFormat shown_{};
    Colour back_ = kNoColour;
};

} // namespace korvane
