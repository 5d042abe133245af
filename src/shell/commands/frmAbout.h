#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Tells what this program is. Modal.
class frmAbout : public Form {
public:
    explicit frmAbout(App& app);

    Label lblTitle{*this, "lblTitle", u"Korvane"};
    Label lblPurpose{*this, "lblPurpose", u"A database of text tables, with a text window and file tools"};
    Label lblVersion{*this, "lblVersion"};
    Label lblLicence{*this, "lblLicence", u"Free software under the MIT licence"};
    Label lblState{*this, "lblState", u"Settings and recent files are in:"};
    TextBox txtState{*this, "txtState"};
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};
};

} // namespace korvane
