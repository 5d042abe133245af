#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/DropDown.h"
#include "controls/Form.h"

namespace korvane {

class App;

/// Puts frames round the paragraphs of the text window. Modal.
class frmFramesDlg : public Form {
public:
    /// The App outlives the window.
    explicit frmFramesDlg(App& app);

    CheckBox chkLeft{*this, "chkLeft", u"&Left"};
    CheckBox chkRight{*this, "chkRight", u"&Right"};
    CheckBox chkTop{*this, "chkTop", u"&Top"};
    CheckBox chkBottom{*this, "chkBottom", u"&Bottom"};
    CheckBox chkTabLines{*this, "chkTabLines", u"T&ab Lines"};
    CheckBox chkDoubleLines{*this, "chkDoubleLines", u"&Double Lines"};
    CheckBox chkConnectedFrames{*this, "chkConnectedFrames", u"Connected &Frames"};
    DropDown cboLineWidth{*this, "cboLineWidth"};
    DropDown cboDistance{*this, "cboDistance"};
    CommandButton cmdOK{*this, "cmdOK", u"&OK"};
    CommandButton cmdBox{*this, "cmdBox", u"&Mark all"};
    CommandButton cmdInsertTextFrame{*this, "cmdInsertTextFrame", u"&Text frame"};

    void Load() override;
    void KeyDown(KeyEvent& key) override;

private:
    struct Tables;

    int Style() const;
    void cmdOK_Click();
    void cmdBox_Click();

    App& app_;
};

} // namespace korvane
