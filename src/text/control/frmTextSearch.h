#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "text/control/TextSearch.h"

#include <cstdint>

namespace korvane {

class App;
class TextControl;

enum class SearchUse : std::uint8_t { Find, Replace };

/// Finds a text in a text control, and replaces it. Modal.
class frmTextSearch : public Form {
public:
    /// The App, the control and `last` outlive the window. `last` is the search that the window proposes,
    /// and keeps the one that the user makes.
    frmTextSearch(App& app, TextControl& target, SearchUse use, TextSearch& last);

    TextBox txtFind{*this, "txtFind"};
    TextBox txtReplace{*this, "txtReplace"};
    CheckBox chkCase{*this, "chkCase", u"Match &case"};
    CheckBox chkWords{*this, "chkWords", u"&Whole words only"};
    OptionButton optUp{*this, "optUp", "direction", u"&Up"};
    OptionButton optDown{*this, "optDown", "direction", u"&Down"};
    CommandButton cmdFind{*this, "cmdFind", u"&Find next"};
    CommandButton cmdReplace{*this, "cmdReplace", u"&Replace"};
    CommandButton cmdReplaceAll{*this, "cmdReplaceAll", u"Replace &all"};
    CommandButton cmdCancel{*this, "cmdCancel", u"Close"};

    void Load() override;

private:
    TextSearch Asked();
    bool Find(const TextSearch& search);
    void TellNothing(const Text& pattern);
    void cmdFind_Click();
    void cmdReplace_Click();
    void cmdReplaceAll_Click();

    App& app_;
    TextControl& target_;
    SearchUse use_;
    TextSearch& last_;
};

} // namespace korvane
