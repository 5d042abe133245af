#include "context/FileInfoForm.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"

namespace korvane {

FileInfoForm::FileInfoForm(App& app, std::string_view name, TextView caption)
    : Form(app.Forms(), name, caption), app_(app) {
    cmdClip.Click = [this] { app_.Clipboard().SetText(Facts()); };
    cmdClose.Click = [this] { Close(); };
    cmdClose.Default = true;
    cmdClose.Cancel = true;
}

void FileInfoForm::ShowPath(TextView path) {
    const PathStyle style = app_.Files().Style();
    lblFileName.Caption = Text(style.NamePart(path));
    lblFilePath.Caption = Text(style.FolderPart(path));
}

Text FileInfoForm::Line(TextView title, TextView value) {
    return Text(title) + Text(value) + Text(kCrLf);
}

Text FileInfoForm::NameLines() const {
    return Line(u"File: ", lblFileName.Caption.Get()) + Line(u"Path: ", lblFilePath.Caption.Get());
}

Text FileInfoForm::SizeLines() const {
    // A size that comes with its " bytes" gets the word twice. Kept for compatibility: bytes-twice.
    const Text size = FormatGrouped(TextView(lblFileSize.Caption.Get())) + u" bytes";
    return Line(u"Size: ", size) + Line(u"Archived: ", lblArchived.Caption.Get()) + Text(kCrLf);
}

} // namespace korvane
