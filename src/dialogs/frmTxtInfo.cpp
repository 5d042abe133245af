#include "dialogs/frmTxtInfo.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/UserLocale.h"

namespace korvane {

FileFacts FactsOfFile(const App& app, TextView path) {
    const FileSystem& files = app.Files();
    const PathStyle style = files.Style();
    FileFacts facts{Text(style.NamePart(path)), Text(style.FolderPart(path)), u"0", u"(not yet saved!)"};
    if (path.empty() || !files.FileExists(path)) return facts;
    facts.size = FormatGrouped(files.Size(path).value_or(0));
    const auto modified = files.Modified(path);
    facts.date = modified ? app.Locale().GeneralDate(*modified) : Text();
    return facts;
}

frmTxtInfo::frmTxtInfo(App& app, const FileFacts& facts)
    : FileInfoForm(app, "frmTxtInfo", u"File information") {
    lblFileName.Caption = facts.name;
    lblFilePath.Caption = facts.folder;
    lblFileSize.Caption = facts.size;
    lblArchived.Caption = facts.date;
}

Text frmTxtInfo::Facts() const {
    return Text(kCrLf) + NameLines() + SizeLines();
}

} // namespace korvane
