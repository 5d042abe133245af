#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "platform/FileSystem.h"
#include "tbx/base/Files.h"
#include "tbx/base/LoadedTable.h"

namespace korvane {

namespace {

void WriteField(TextView caption, TextView value, Output& out) {
    out.Write(ToUtf8(Text(caption) + u": " + Text(value) + u"\n"));
}

void WriteInfo(const Workbench& workbench, const FileSystem& files, Output& out) {
    const Text& path = workbench.Table().TxtDbFile;
    const PathStyle style = files.Style();
    const auto modified = files.Modified(path);
    WriteField(u"File name", style.NamePart(path), out);
    WriteField(u"File path", style.FolderPart(path), out);
    WriteField(u"No. of rows", NumberText(workbench.Grid().RowCount().Number()), out);
    WriteField(u"No. of cols.", NumberText(workbench.Grid().ColCount().Number()), out);
    WriteField(u"File size", FormatGrouped(files.Size(path).value_or(0)) + u" bytes", out);
    WriteField(u"Archived", modified ? GeneralDate(*modified) : Text(), out);
}

} // namespace

ExitStatus RunInfo(const Call& call, Environment& environment) {
    if (call.operands.front() == kStandardStream)
        return Fail(environment, "info needs a file: the standard input has no name, size or date");
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    WriteInfo(*workbench, environment.files, environment.out);
    return ReportMessages(*workbench, environment);
}

} // namespace korvane
