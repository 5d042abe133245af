#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Offers the tags of markup. Modal; `DialogResult` is 1 when one was chosen, whose index is in the settings
/// then. It also converts the tags of the text window.
class frmHTMLCodes : public Form {
public:
    /// The App outlives the window.
    explicit frmHTMLCodes(App& app);

    ListBox lstClient{*this, "lstClient"};
    CommandButton cmdOk{*this, "cmdOk", u"&Insert"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};
    CommandButton cmdConvert{*this, "cmdConvert", u"Con&vert codes to formatting"};
    CommandButton cmdSetHTMLHeaderFont{*this, "cmdSetHTMLHeaderFont", u"&Header font"};
    Label lblHTMLHeaderFont{*this, "lblHTMLHeaderFont"};
    CheckBox chkHTMLHeaderBold{*this, "chkHTMLHeaderBold", u"Use bold for heading"};
    CheckBox chkConfirmEachInstance{*this, "chkConfirmEachInstance", u"Confirm each instance"};

    void Load() override;
    void Unload() override;

private:
    void Finish(std::int16_t result);
    void ShowHeaderFont();
    void cmdConvert_Click();
    void cmdSetHTMLHeaderFont_Click();

    App& app_;
};

} // namespace korvane
