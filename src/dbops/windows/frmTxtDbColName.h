#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Asks for another name for a column. `App::DialogResult` is 1 when the user accepted one. Modal.
class frmTxtDbColName : public Form {
public:
    /// The App outlives the window.
    frmTxtDbColName(App& app, const Text& oldName);

    Label lblOldColumnName{*this, "lblOldColumnName"};
    TextBox txtNewColumnName{*this, "txtNewColumnName"};
    CommandButton cmdColAccept{*this, "cmdColAccept", u"A&ccept"};
    CommandButton cmdColReject{*this, "cmdColReject", u"Re&ject"};

    /// The accepted name, which may be empty.
    const Text& NewName() const { return newName_; }

private:
    struct Tables;

    void cmdColAccept_Click();

    App& app_;
    Text newName_;
};

} // namespace korvane
