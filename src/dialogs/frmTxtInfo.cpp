#include "dialogs/frmTxtInfo.h"

#include "common/DateTime.h"
#include "common/Number.h"
#include "common/PathStyle.h"
#include "context/App.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"

namespace korvane {

FileFacts FactsOfFile(const App& app, TextView path) {
    const FileSystem& files = app.Files();
    const PathStyle style = files.Style();
    FileFacts facts{Text(style.NamePart(path)), Text(style.FolderPart(path)), u"0", u"(not yet saved!)"};
    if (path.empty() || !files.FileExists(path)) return facts;
    facts.size = FormatGrouped(files.Size(path).value_or(0));
    const auto modified = files.Modified(path);
    facts.date = modified ? GeneralDate(*modified) : Text();
    return facts;
}

frmTxtInfo::frmTxtInfo(App& app, const FileFacts& facts)
    : Form(app.Forms(), "frmTxtInfo", u"File information"), app_(app) {
    lblFileName.Caption = facts.name;
    lblFilePath.Caption = facts.folder;
    lblFileSize.Caption = facts.size;
    lblArchived.Caption = facts.date;
    cmdClip.Click = [this] { cmdClip_Click(); };
    cmdClose.Click = [this] { Close(); };
    cmdClose.Default = true;
    cmdClose.Cancel = true;
}

void frmTxtInfo::cmdClip_Click() {
    const auto line = [](TextView title, const Text& value) { return Text(title) + value + Text(kCrLf); };
    // Of a size that comes with its " bytes" the word stands twice. Deliberate: readers of these texts expect
    // the line as it has always been.
    const Text size = FormatGrouped(TextView(lblFileSize.Caption.Get())) + u" bytes";
    app_.Clipboard().SetText(Text(kCrLf) + line(u"File: ", lblFileName.Caption) +
                             line(u"Path: ", lblFilePath.Caption) + line(u"Size: ", size) +
                             line(u"Archived: ", lblArchived.Caption) + Text(kCrLf));
}

} // namespace korvane
