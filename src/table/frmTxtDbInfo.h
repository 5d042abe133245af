#pragma once

#include "context/FileInfoForm.h"
#include "table/TabContext.h"

namespace korvane {

/// Where a table stands on disk and how large it is. Modal.
class frmTxtDbInfo : public FileInfoForm {
public:
    /// `afterSave` says so in the caption. The tab outlives the window.
    frmTxtDbInfo(const TabContext& tab, bool afterSave);

    Label lblRowsCaption{*this, "lblRowsCaption", u"No. of rows"};
    Label lblRows{*this, "lblRows"};
    Label lblColsCaption{*this, "lblColsCaption", u"No. of cols."};
    Label lblCols{*this, "lblCols"};

    /// There only while a tab that is closing saves: it keeps the tab open.
    CommandButton cmdCancel{*this, "cmdCancel", u"Ca&ncel"};

    void Load() override;

private:
    Text Facts() const override;
    void ShowFile();
    void cmdCancel_Click();

    TabContext tab_;
};

} // namespace korvane
