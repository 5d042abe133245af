#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Asks for the texts that two keys of the text window insert. Modal; only its button stores them.
class frmCtrlRet : public Form {
public:
    explicit frmCtrlRet(App& app);

    TextBox txtText2{*this, "txtText2"};
    TextBox txtText3{*this, "txtText3"};
    CommandButton cmdOK{*this, "cmdOK", u"&Close"};

    void Load() override;

private:
    void cmdOK_Click();

    App& app_;
};

} // namespace korvane
