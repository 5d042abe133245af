#pragma once

#include "common/path/PathStyle.h"
#include "common/text/Text.h"

#include <optional>
#include <vector>

namespace korvane {

/// A program to open files with: its file, and the folder that it is in, mostly with a separator at its end.
/// In a row that is a command the "folder" is the command's arguments.
struct ListedProgram {
    Text name;
    Text folder;

    bool operator==(const ListedProgram&) const = default;
};

/// What is in both places of a row that is no longer written.
inline constexpr TextView kDeletedRow = u"---";

/// Of the lines of the list's file two make a row. Empty ones and comments don't count; a last odd one is a
/// program without a folder.
std::vector<ListedProgram> ProgramsOfLines(const std::vector<Text>& lines);
/// The lines of all rows but the deleted ones.
std::vector<Text> LinesOfPrograms(const std::vector<ListedProgram>& programs);

/// Whether the row is a command with its arguments, which is started as it is written.
bool IsCommand(const ListedProgram& program);

/// The row of a program's path, which stays whole.
ListedProgram ProgramOfPath(const PathStyle& style, TextView path);
/// Folder and name as they are, one after the other.
Text PathOf(const PathStyle& style, const ListedProgram& program);

/// The folder with " (x86)" cut out, or put in after its first "Files".
Text ToggledFolder(TextView folder);

/// The place in the list of the program that is proposed for the file by its extension; nothing when that
/// program isn't listed.
std::optional<std::size_t> ProposedProgram(TextView file, const std::vector<ListedProgram>& programs);

} // namespace korvane
