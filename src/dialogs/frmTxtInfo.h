#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace korvane {

class App;

/// What `frmTxtInfo` shows of a file, as texts.
struct FileFacts {
    Text name;
    Text folder;
    Text size;
    Text date;
};

/// The facts of a file: its size as "###,###,###" and its date, or "0" and "(not yet saved!)" when the path
/// is empty or there is no such file.
FileFacts FactsOfFile(const App& app, TextView path);

/// Tells the facts of a file. Modal.
class frmTxtInfo : public Form {
public:
    frmTxtInfo(App& app, const FileFacts& facts);

    // The captions of the four values, each in front of its value.
    Label lblFileNameCaption{*this, "lblFileNameCaption", u"File name"};
    Label lblFileName{*this, "lblFileName"};
    Label lblFilePathCaption{*this, "lblFilePathCaption", u"File path"};
    Label lblFilePath{*this, "lblFilePath"};
    Label lblFileSizeCaption{*this, "lblFileSizeCaption", u"File size"};
    Label lblFileSize{*this, "lblFileSize"};
    Label lblArchivedCaption{*this, "lblArchivedCaption", u"Archived"};
    Label lblArchived{*this, "lblArchived"};

    CommandButton cmdClip{*this, "cmdClip", u"&Put in clipboard"};
    CommandButton cmdClose{*this, "cmdClose", u"&Close"};

private:
    void cmdClip_Click();

    App& app_;
};

} // namespace korvane
