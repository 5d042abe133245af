#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Asks for a text to find. Modal. Its name is misspelt. Kept for compatibility: find-window-misspelt.
class frmFindStingInList : public Form {
public:
    /// `initial` is the text that is offered.
    frmFindStingInList(App& app, TextView initial);

    Label Label1{*this, "Label1", u"Text to find"};
    TextBox txtFindString{*this, "txtFindString"};
    CommandButton cmdOK{*this, "cmdOK", u"&OK"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    /// The answer; empty as long as there is none.
    Text FindString;

    void Load() override;

private:
    void cmdOK_Click();

    Text initial_;
};

/// The text that the user wants to find; empty when the user gave up.
Text AskForStringInList(App& app, TextView initial = {});

} // namespace korvane
