#pragma once

#include "context/FileInfoForm.h"
#include "table/TabContext.h"

namespace korvane {

/// Shows where a table is on disk and how large it is. Modal.
class frmTxtDbInfo : public FileInfoForm {
public:
    /// With `afterSave`, the caption says that the table was saved. The tab outlives the window.
    frmTxtDbInfo(const TabContext& tab, bool afterSave);

    Label lblRowsCaption{*this, "lblRowsCaption", u"No. of rows"};
    Label lblRows{*this, "lblRows"};
    Label lblColsCaption{*this, "lblColsCaption", u"No. of cols."};
    Label lblCols{*this, "lblCols"};

    /// This is visible only while a closing tab is saved. It keeps the tab open.
    CommandButton cmdCancel{*this, "cmdCancel", u"Ca&ncel"};

    void Load() override;

private:
    Text Facts() const override;
    void ShowFile();
    void cmdCancel_Click();

    TabContext tab_;
};

} // namespace korvane
