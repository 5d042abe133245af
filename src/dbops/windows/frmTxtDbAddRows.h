#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Asks how many rows to add: the number becomes `App::DialogResult`. Modal.
class frmTxtDbAddRows : public Form {
public:
    /// The App outlives the window.
    explicit frmTxtDbAddRows(App& app);

    ListBox List1{*this, "List1"};
    CommandButton cmdProceed{*this, "cmdProceed", u"&Proceed"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void cmdProceed_Click();

    App& app_;
};

} // namespace korvane
