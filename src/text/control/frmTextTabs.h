#pragma once

#include "controls/lists/ListBox.h"
#include "document/model/ParaFormat.h"
#include "text/control/ControlForm.h"

#include <vector>

namespace korvane {

/// Sets the tabs of the selected paragraphs of a text control one by one.
class frmTextTabs : public ControlForm {
public:
    frmTextTabs(App& app, TextControl& target);

    ListBox lstTabs{*this, "lstTabs"};
    LengthBox txtPosition{*this, "txtPosition"};
    ComboBox cboType{*this, "cboType"};
    CommandButton cmdSet{*this, "cmdSet", u"&Set"};
    CommandButton cmdDelete{*this, "cmdDelete", u"&Delete"};
    CommandButton cmdDeleteAll{*this, "cmdDeleteAll", u"Delete &all"};

    void Load() override;

protected:
    bool Accept() override;

private:
    void ShowTabs(int current);
    void lstTabs_Click();
    void cmdSet_Click();
    void cmdDelete_Click();
    void cmdDeleteAll_Click();

    std::vector<doc::TabStop> tabs_;
    bool altered_ = false;
};

} // namespace korvane
