#pragma once

#include "controls/Buttons.h"
#include "controls/lists/ListBox.h"
#include "text/control/ControlForm.h"

namespace korvane {

/// Formats the selected paragraphs of a text control. Only what the user changes is changed in them.
class frmTextParagraph : public ControlForm {
public:
    frmTextParagraph(App& app, TextControl& target);

    ComboBox cboAlignment{*this, "cboAlignment"};
    LengthBox txtLeft{*this, "txtLeft"};
    LengthBox txtRight{*this, "txtRight"};
    LengthBox txtFirst{*this, "txtFirst"};
    LengthBox txtBefore{*this, "txtBefore"};
    LengthBox txtAfter{*this, "txtAfter"};
    ComboBox cboSpacing{*this, "cboSpacing"};
    /// The distance of the lines, where its kind doesn't say all.
    TextBox txtSpacing{*this, "txtSpacing"};
    CheckBox chkPageBreak{*this, "chkPageBreak", u"Page brea&k before"};
    CommandButton cmdTabs{*this, "cmdTabs", u"&Tabs..."};

    void Load() override;

protected:
    bool Accept() override;

private:
    void ShowSpacing();
    void AcceptSpacing();

    int shownSpacing_ = 0;
    Text shownDistance_;
};

} // namespace korvane
