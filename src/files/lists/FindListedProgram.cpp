#include "files/lists/FindListedProgram.h"

namespace korvane {

Text SeparatedPathOf(const PathStyle& style, const ListedProgram& program) {
    return style.HasDrives() ? program.folder + style.Separator() + program.name : PathOf(style, program);
}

std::optional<Text> FindListedProgram(const PathStyle& style, const ListedProgram& program,
                                      TextView programFilesDir, const PathQuestion& fileExists) {
    const Text asListed = PathOf(style, program);
    if (fileExists(asListed)) return asListed;
    const Text separated = SeparatedPathOf(style, program);
    if (fileExists(separated)) return separated;
    const Text moved = Check3264Dirs(asListed, programFilesDir);
    if (fileExists(moved)) return moved;
    const Text other = OtherProgramForm(style, separated, fileExists);
    return fileExists(other) ? std::optional(other) : std::nullopt;
}

} // namespace korvane
