#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

namespace korvane {

class FileSystem;
class Grid;

/// The file name of a table that was just made. It is a name in the current directory.
inline constexpr TextView NewDatabaseFileName = u"NewTextDatabase.tbx";

/// How high the rows of such a table are, in grid units.
inline constexpr int kNewRowHeight = 24;

/// The full path of `NewDatabaseFileName`.
Text NewDatabaseFilePath(const FileSystem& files);

/// Appends a column whose key is made from `number`. When a column has this key already, the new one gets no
/// key. The width of a new column goes to column `number`, which isn't the appended one when the grid had
/// columns before.
void AddNewColumn(Grid& grid, Col number, TextView header);

/// Makes the first cell of a table that was just made the current one.
void GoToFirstCell(Grid& grid);

/// Colours and font of a table that was just made.
void GiveNewTableLook(Grid& grid);

} // namespace korvane
