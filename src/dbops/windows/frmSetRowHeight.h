#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"
#include "table/TabContext.h"

namespace korvane {

/// Asks for the height of a table's rows, which becomes the table's `SetRowHeight`. `App::DialogResult` is 1
/// when the user accepted one. Modal.
class frmSetRowHeight : public Form {
public:
    /// The tab outlives the window.
    explicit frmSetRowHeight(const TabContext& tab);

    ComboBox cboRowHeight{*this, "cboRowHeight"};
    CommandButton cmdProceed{*this, "cmdProceed", u"&Proceed"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void cmdProceed_Click();

    TabContext tab_;
};

} // namespace korvane
