#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"

namespace korvane {

class App;

/// Sets the tabs of the paragraphs in the text window to a width, which is the step of all indents. Modal.
class frmTabWidth : public Form {
public:
    /// The App outlives the window.
    explicit frmTabWidth(App& app);

    // Of these two lists the one of the user's units is seen.
    ListBox lstTabsCm{*this, "lstTabsCm"};
    ListBox lstTabsIns{*this, "lstTabsIns"};
    ListBox lstTabType{*this, "lstTabType"};
    TextBox txtTabWidth{*this, "txtTabWidth"};
    CheckBox chkDeleteTabs{*this, "chkDeleteTabs", u"Delete tabs before re-setting?"};
    CheckBox chkUndoIndents{*this, "chkUndoIndents", u"Undo indents on reset?"};
    CheckBox chkDefault{*this, "chkDefault", u"Use this value as default"};
    CommandButton cmdApply{*this, "cmdApply", u"&Apply"};
    CommandButton cmdUnits{*this, "cmdUnits", u"&Units"};
    CommandButton cmdShow{*this, "cmdShow", u"&Show"};

    void Load() override;
    void Unload() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    void ShowUnits();
    void StoreChoices();
    void cmdApply_Click();
    void cmdUnits_Click();
    void cmdShow_Click();

    App& app_;
    /// Whether the text showed its control characters before.
    bool controlChars_ = false;
};

} // namespace korvane
