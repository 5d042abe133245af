#include "dbops/rules/TableStatus.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "dbops/rules/Rows.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

bool IsSameDay(const DateTime& a, const DateTime& b) {
    return a.year == b.year && a.month == b.month && a.day == b.day;
}

Text WhenSaved(const DateTime& saved, const DateTime& now) {
    return FormatDate(saved, IsSameDay(saved, now) ? u"hh:nn" : u"dd.mm.yyyy");
}

} // namespace

std::vector<Text> TableStatus(const TableModel& table, const DateTime& now) {
    const Grid& grid = table.GridStore();
    if (grid.RowCount() == Row{0}) return {};
    std::vector<Text> parts{u"Row " + NumberText(grid.CurRow().Number()) + u" of " +
                            NumberText(grid.RowCount().Number())};
    const int ticked = CountRows(grid, [&grid](Row row) { return IsTicked(grid, row); });
    if (ticked > 0) parts.push_back(NumberText(ticked) + u" ticked");
    if (CountRows(grid, [&grid](Row row) { return !grid.RowVisible(row); }) > 0)
        parts.emplace_back(u"filtered");
    if (table.SavedAt) parts.push_back(u"saved " + WhenSaved(*table.SavedAt, now));
    return parts;
}

} // namespace korvane
