#pragma once

#include "common/path/DriveForms.h"
#include "common/path/PathStyle.h"
#include "common/text/Text.h"
#include "files/lists/OpenWithList.h"

#include <optional>

namespace korvane {

/// The path of a listed program with a separator between folder and name, also when the folder ends in one.
/// The message about a lost program shows this path. Kept for compatibility: lost-program-two-separators.
Text SeparatedPathOf(const PathStyle& style, const ListedProgram& program);

/// Where a listed program is: in its folder, in the other one of the two folders of programs, or in the other
/// form of its drive. Nothing when it is nowhere. `programFilesDir` is the system's folder of programs.
std::optional<Text> FindListedProgram(const PathStyle& style, const ListedProgram& program,
                                      TextView programFilesDir, const PathQuestion& fileExists);

} // namespace korvane
