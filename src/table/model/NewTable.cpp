#include "table/model/NewTable.h"

#include "common/number/Number.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr int kColumnWidth = 240;
constexpr Colour kForeColour{0xC00000};
constexpr Colour kBackColour{0xFFFFFF};
constexpr TextView kFontName = u"Calibri";
constexpr int kFontSize = 12;

} // namespace

Text NewDatabaseFilePath(const FileSystem& files) {
    Text path = files.CurrentDir();
    files.Style().AddBackslash(path);
    path += NewDatabaseFileName;
    return path;
}

void AddNewColumn(Grid& grid, Col number, TextView header) {
    const Col added = grid.ColCount() + 1;
    grid.AddCol(NumberText(number.Number()) + u"no", header);
    grid.SetColCount(std::max(added, grid.ColCount()));
    grid.SetColHeaderText(added, header);
    grid.SetColWidth(number, kColumnWidth);
}

void GoToFirstCell(Grid& grid) {
    grid.SetCurRow(Row{1});
    grid.SetCurCol(Col{1});
}

void GiveNewTableLook(Grid& grid) {
    grid.SetGridForeColor(kForeColour);
    grid.SetGridBackColor(kBackColour);
    grid.SetGridFontName(kFontName);
    grid.SetGridFontSize(kFontSize);
}

} // namespace korvane
