#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

namespace korvane {

class App;

/// Asks for a line of text. Modal. The question is in `InputCaption`, and the text offered is in
/// `InputInitial`. The answer is `InputResult`, with `DialogResult` 1, or an empty text and 0 when the user
/// gave up.
class frmMyInputBox : public Form {
public:
    explicit frmMyInputBox(App& app);

    Label txtBoxCaption{*this, "txtBoxCaption"};
    TextBox txtBoxText{*this, "txtBoxText"};
    CommandButton cmdOk{*this, "cmdOk", u"&OK"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel", u"Cancel operation"};
    CommandButton cmdDesktop{*this, "cmdDesktop", u"Windows Desktop"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"Windows Explorer"};

    void Load() override;

private:
    struct Tables;

    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdExplorer_Click();

    App& app_;
};

/// Asks for a line of text, with `initial` offered. Empty when the user gave up, as when he entered nothing:
/// `DialogResult` tells the two apart.
Text AskForText(App& app, TextView caption, TextView initial = {});

} // namespace korvane
