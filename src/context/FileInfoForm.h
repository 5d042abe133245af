#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace korvane {

class App;

/// What every window with facts about a file has: captions before values, and buttons that copy them to the
/// clipboard and close.
class FileInfoForm : public Form {
public:
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

protected:
    FileInfoForm(App& app, std::string_view name, TextView caption);

    void ShowPath(TextView path);

    /// A title and a value on a line of the clipboard's text.
    static Text Line(TextView title, TextView value);
    /// The text for the clipboard.
    virtual Text Facts() const = 0;
    // The first and the last lines of the text, which all such windows have.
    Text NameLines() const;
    Text SizeLines() const;

private:
    App& app_;
};

} // namespace korvane
