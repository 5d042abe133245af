#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"

#include <cstdint>

namespace korvane {

class App;

/// Chooses the colours of a text and of its background, which are in the settings before and afterwards.
/// `DialogResult` is 1 when the user took a pair. Modal.
class frmSetForegroundColour : public Form {
public:
    /// The App outlives the window.
    explicit frmSetForegroundColour(App& app);

    ListBox lstColourOptions{*this, "lstColourOptions"};
    CommandButton cmdApply{*this, "cmdApply", u"&Apply"};
    CommandButton cmdMoreColours{*this, "cmdMoreColours", u"&Foreground"};
    CommandButton cmdBackground{*this, "cmdBackground", u"Backgroun&d"};
    Label lblForeground{*this, "lblForeground"};
    Label lblBackground{*this, "lblBackground"};
    CommandButton cmdApplyCustomValues{*this, "cmdApplyCustomValues", u"Apply custom &values"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Close"};
    CheckBox chkPrintViewBackColour{*this, "chkPrintViewBackColour", u"Dark background for page view"};

    // These only keep what they show. Kept for compatibility: highlight-colours-unused.
    TextBox txtYellowMarkerSymbol{*this, "txtYellowMarkerSymbol"};
    CheckBox chkAltY_Strikethru{*this, "chkAltY_Strikethru", u"Use strikethrough"};
    CommandButton cmdAltG_Fore{*this, "cmdAltG_Fore", u"Text"};
    CommandButton cmdAltG_Back{*this, "cmdAltG_Back", u"Background"};
    CommandButton cmdAltY_Fore{*this, "cmdAltY_Fore", u"Text"};
    CommandButton cmdAltY_Back{*this, "cmdAltY_Back", u"Background"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void Accept(Colour fore, Colour back);
    void ChooseFor(Label& label);
    void ChooseFor(CommandButton& button, std::int32_t& kept);
    void cmdApply_Click();

    App& app_;
};

} // namespace korvane
