#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Lets the user name any program, and starts it. Modal.
class frmSetYourProg : public Form {
public:
    explicit frmSetYourProg(App& app);

    TextBox prgText1{*this, "prgText1"};
    CommandButton cmdBrowse1{*this, "cmdBrowse1", u"&Browse"};
    CommandButton cmdOK{*this, "cmdOK", u"&OK"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    bool IsThere(const Text& path) const;
    void prgText1_Change();
    void cmdBrowse1_Click();
    void cmdOK_Click();

    App& app_;
};

} // namespace korvane
