#include "document/docx/Docx.h"
#include "document/html/Html.h"
#include "document/rtf/Rtf.h"
#include "table/model/TableModel.h"
#include "tbx/base/LoadedTable.h"

#include <limits>

namespace korvane {

namespace {

std::vector<Text> TitlesOf(Workbench& workbench) {
    std::vector<Text> titles;
    for (Col col{1}; col <= workbench.Grid().ColCount(); ++col)
        titles.push_back(workbench.Table().ColumnNames[col]);
    return titles;
}

/// A table in memory is none too large for a file.
doc::Limits NoLimits() {
    constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();
    return {.characters = kAny, .cells = kAny, .columns = kAny, .formats = kAny};
}

template <class Write>
ExitStatus Export(const Call& call, Environment& environment, const Write& write) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    const auto all = [](Row) { return true; };
    const std::vector<Text> titles = call.look.titles ? TitlesOf(*workbench) : std::vector<Text>();
    const auto document = MakeTextTable(workbench->Grid(), titles, all, call.look, NoLimits());
    if (document) write(*document, [&environment](std::string_view piece) { environment.out.Write(piece); });
    return ReportMessages(*workbench, environment);
}

} // namespace

ExitStatus RunRtf(const Call& call, Environment& environment) {
    return Export(call, environment, [](const doc::Document& document, const doc::PieceTaker& take) {
        doc::WriteRtf(document, take);
    });
}

ExitStatus RunHtml(const Call& call, Environment& environment) {
    return Export(call, environment, [](const doc::Document& document, const doc::PieceTaker& take) {
        doc::WriteHtml(document, take);
    });
}

ExitStatus RunDocx(const Call& call, Environment& environment) {
    return Export(call, environment, [](const doc::Document& document, const doc::PieceTaker& take) {
        doc::WriteDocx(document, take);
    });
}

} // namespace korvane
