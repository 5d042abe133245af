#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"

namespace korvane {

class App;

/// Shows the address of a hyperlink and goes to it. Modal.
class frmShowFieldContents : public Form {
public:
    /// The App outlives the window.
    explicit frmShowFieldContents(App& app);

    Menu OfficeMenu1;
    TextBox txtHyperLabel{*this, "txtHyperLabel"};
    TextBox txtHyperLink{*this, "txtHyperLink"};
    /// This is never seen.
    TextControl TXTextControl1{*this, "TXTextControl1"};
    // Of these two the one for the address is seen. The first caption lacks a bracket. Kept for
    // compatibility: goto-link-caption.
    CommandButton cmdGotoLink{*this, "cmdGotoLink", u"Goto this internet link (or load file"};
    CommandButton cmdLoadFile{*this, "cmdLoadFile", u"Load file in link field"};
    CommandButton cmdAscToHex{*this, "cmdAscToHex", u"Convert link to Hex codes"};
    CommandButton cmdWriteBack{*this, "cmdWriteBack", u"Write back any changes to text"};
    CommandButton cmdGetBrowser{*this, "cmdGetBrowser", u"Get browser to load link"};
    CommandButton cmdGetFile{*this, "cmdGetFile", u"Get file to load"};
    CommandButton cmdProgramForFile{*this, "cmdProgramForFile", u"Get program to edit file with"};
    CommandButton cmdExit{*this, "cmdExit", u"Close this window"};
    Label lblWhichBrowser{*this, "lblWhichBrowser"};
    CheckBox chkWhichBrowser{*this, "chkWhichBrowser", u"Use this browser when going to a weblink"};

    void Load() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    Text Link() const;
    void OfferByLink();
    void GoToLink();
    void cmdAscToHex_Click();
    void cmdWriteBack_Click();
    void cmdGetBrowser_Click();
    void cmdGetFile_Click();
    void cmdProgramForFile_Click();

    App& app_;
};

} // namespace korvane
