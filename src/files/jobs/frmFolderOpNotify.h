#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace korvane {

class App;

/// Reports what was done with a folder. Modal.
class frmFolderOpNotify : public Form {
public:
    explicit frmFolderOpNotify(App& app);

    Label Label1{*this, "Label1", u"Source"};
    Label lblSource{*this, "lblSource"};
    Label Label2{*this, "Label2", u"Target"};
    Label lblTarget{*this, "lblTarget"};
    CommandButton cmdRecycle{*this, "cmdRecycle", u"&Recycle Bin"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"&Explorer"};
    CommandButton cmdExit{*this, "cmdExit", u"E&xit"};

    /// Fills the window for a folder that was deleted.
    void TellOfDeletion(TextView folder);

private:
    void cmdExplorer_Click();

    App& app_;
};

} // namespace korvane
