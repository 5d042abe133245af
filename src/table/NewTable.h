#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

namespace korvane {

class FileSystem;
class Grid;

/// The name under which a table that was just made stands in the current directory.
inline constexpr TextView NewDatabaseFileName = u"NewTextDatabase.tbx";

/// How high the rows of such a table are, in grid units.
inline constexpr int kNewRowHeight = 24;

/// The full path of `NewDatabaseFileName`.
Text NewDatabaseFilePath(const FileSystem& files);

/// Appends a column under the key of a number, or without one where that key is taken, and gives the column
/// of this number, which is another one in a grid that had columns, the width of a new one.
void AddNewColumn(Grid& grid, Col number, TextView header);

/// Colours and font of a table that was just made.
void GiveNewTableLook(Grid& grid);

} // namespace korvane
