#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "table/TabContext.h"

namespace korvane {

/// Where a table stands on disk and how large it is. Modal.
class frmTxtDbInfo : public Form {
public:
    /// `afterSave` says so in the caption. The tab outlives the window.
    frmTxtDbInfo(const TabContext& tab, bool afterSave);

    // The captions of the six values, each in front of its value.
    Label lblFileNameCaption{*this, "lblFileNameCaption", u"File name"};
    Label lblFileName{*this, "lblFileName"};
    Label lblFilePathCaption{*this, "lblFilePathCaption", u"File path"};
    Label lblFilePath{*this, "lblFilePath"};
    Label lblRowsCaption{*this, "lblRowsCaption", u"No. of rows"};
    Label lblRows{*this, "lblRows"};
    Label lblColsCaption{*this, "lblColsCaption", u"No. of cols."};
    Label lblCols{*this, "lblCols"};
    Label lblFileSizeCaption{*this, "lblFileSizeCaption", u"File size"};
    Label lblFileSize{*this, "lblFileSize"};
    Label lblArchivedCaption{*this, "lblArchivedCaption", u"Archived"};
    Label lblArchived{*this, "lblArchived"};

    CommandButton cmdClip{*this, "cmdClip", u"&Put in clipboard"};
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};
    /// There only while a tab that is closing saves: it keeps the tab open.
    CommandButton cmdCancel{*this, "cmdCancel", u"Ca&ncel"};

    void Load() override;

private:
    void ShowFile();
    void cmdClip_Click();
    void cmdCancel_Click();

    TabContext tab_;
};

} // namespace korvane
