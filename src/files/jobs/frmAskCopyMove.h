#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"
#include "files/jobs/CopyMoveRun.h"

namespace korvane {

class App;

/// Asks whether the file `AskTarget` is to be overwritten by `AskSource`, or lets the user give the copy
/// another name. Modal; the run gets the answer.
class frmAskCopyMove : public Form {
public:
    /// Both outlive the window.
    frmAskCopyMove(App& app, CopyMoveRun& run);

    Panel Frame1{*this, "Frame1"};
    Label lblSource{*this, "lblSource"};
    Label lblSourceFacts{*this, "lblSourceFacts"};
    Label lblTargetPath{*this, "lblTargetPath"};
    TextBox txtTarget{*this, "txtTarget"};
    Label lblTargetFacts{*this, "lblTargetFacts"};
    CommandButton cmdYes{*this, "cmdYes", u"&Yes"};
    CommandButton cmdNo{*this, "cmdNo", u"&No"};
    CommandButton cmdYesToAll{*this, "cmdYesToAll", u"Yes to &All"};
    CommandButton cmdNoToAll{*this, "cmdNoToAll", u"No to a&ll"};
    CommandButton cmdRenameTarget{*this, "cmdRenameTarget", u"Rena&me target"};
    CommandButton cmdAcceptRename{*this, "cmdAcceptRename", u"&Accept"};
    CommandButton cmdReject{*this, "cmdReject", u"&Reject"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void ShowTarget();
    /// Size and date of a file.
    Text FactsOf(const Text& path) const;
    void SetRenaming(bool renaming);

    void cmdYes_Click();
    void cmdNo_Click();
    void cmdYesToAll_Click();
    void cmdNoToAll_Click();
    void cmdRenameTarget_Click();
    void cmdAcceptRename_Click();
    void cmdReject_Click();

    App& app_;
    CopyMoveRun& run_;
};

} // namespace korvane
