#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "dialogs/frmTxtInfo.h"

namespace korvane {

class App;
enum class MsgAnswer : std::int16_t;

/// Asks what to do with the altered file `MsgFilePath`. Modal; the answer is `MsgAnswer`, which the caller
/// sets to `Cancel` beforehand. Esc closes the box and leaves the answer as it is.
class frmMyMsgBox : public Form {
public:
    explicit frmMyMsgBox(App& app);

    Menu OfficeMenu1;
    Panel Frame1{*this, "Frame1"};
    TextBox txtFileName{*this, "txtFileName"};
    TextBox txtFilePath{*this, "txtFilePath"};
    Label lblFileSize{*this, "lblFileSize"};
    Label lblFileDate{*this, "lblFileDate"};
    Panel Frame2{*this, "Frame2"};
    CommandButton cmdYes{*this, "cmdYes", u"&Save", u"Save file"};
    CommandButton cmdAutoSave{*this, "cmdAutoSave", u"&Direct save", u"Autosave file"};
    CommandButton cmdNo{*this, "cmdNo", u"&No save", u"Do NOT save file"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel", u"Cancel operation"};
    CheckBox chkDecisionConfirmNoSave{*this, "chkDecisionConfirmNoSave", u"Confirm no save of file"};
    CommandButton cmdInfo{*this, "cmdInfo", u"", u"More info on current file"};
    CommandButton cmdClip{*this, "cmdClip", u"", u"Deposit info in clipboard"};
    CommandButton cmdExplorer{*this, "cmdExplorer", u"", u"Windows Explorer"};
    CommandButton cmdLorrit{*this, "cmdLorrit", u"", u"File Lorrit"};

    void Load() override;
    void Resize() override;
    void Unload() override;

private:
    struct Tables;

    void Wire();
    void CloseWith(MsgAnswer answer);
    void cmdNo_Click();
    void cmdInfo_Click();
    void cmdClip_Click();
    void cmdExplorer_Click();
    void cmdLorrit_Click();

    App& app_;
    FileFacts facts_;
    Text today_;
    Text now_;
};

} // namespace korvane
