// Any bytes as each of the list files: those of programs, of favourite folders and of the folders of a work
// session. They are read without a word, and what is written of them comes back.

#include "StateStage.h"
#include "context/exchange/OpenWithRequest.h"
#include "files/lists/FindListedProgram.h"
#include "files/lists/FolderEntries.h"
#include "files/lists/ListFile.h"
#include "files/lists/OpenWithList.h"
#include "files/lists/frmFavouriteLocations.h"
#include "files/lists/frmFoldersToday.h"
#include "files/lists/frmOpenFileWith.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace korvane {
namespace {

const Text kList = u"C:\\Korvane\\FavouriteLocations.lst";

using Lines = std::vector<Text>;

Lines Read(StateStage& stage) {
    const auto lines = ReadListFile(stage.app, kList);
    Require(lines.has_value(), "what holds no zero byte can be read");
    return lines.value_or(Lines());
}

void CheckLines(StateStage& stage, const Lines& lines) {
    Require(WriteListFile(stage.app, kList, lines), "a list can be written");
    Require(Read(stage) == lines, "the lines that are written come back");
}

void CheckPrograms(const Lines& lines) {
    const std::vector<ListedProgram> programs = ProgramsOfLines(lines);
    std::vector<ListedProgram> kept = programs;
    std::erase_if(kept, [](const ListedProgram& program) { return program.name == kDeletedRow; });
    // Only the last row can be without a folder. Otherwise the pairs would shift.
    Require(ProgramsOfLines(LinesOfPrograms(programs)) == kept, "the programs that are written come back");
    const PathQuestion none = [](TextView) { return false; };
    for (const ListedProgram& program : programs) {
        for (const PathStyle& style : {PathStyle::Windows, PathStyle::Posix})
            Require(!FindListedProgram(style, program, program.folder, none), "nothing is found on no disk");
        ToggledFolder(program.folder);
        ProposedProgram(program.name, programs);
    }
}

/// Opens the window on the bytes and closes it again; what the file holds then.
Lines Opened(StateStage& stage, std::string_view bytes, Form& window) {
    stage.files.AddFile(kList, bytes);
    window.EnsureLoaded();
    window.Activate();
    window.Close();
    return Read(stage);
}

void CheckFavourites(StateStage& stage, std::string_view bytes, Lines lines) {
    Form owner(stage.app.Forms(), "frmMDIParent", u"");
    frmFavouriteLocations window(stage.app, owner, u"");
    std::erase_if(lines, [](const Text& line) { return line.starts_with(u';'); });
    Require(Opened(stage, bytes, window) == lines, "favourites stay, without the comments");
}

void CheckFolders(StateStage& stage, std::string_view bytes, Lines lines) {
    stage.app.Settings.FoldersFile = kList;
    frmFoldersToday window(stage.app, u"");
    std::erase_if(lines, [&stage](const Text& line) { return line.empty() || !stage.files.DirExists(line); });
    Require(Opened(stage, bytes, window) == lines, "folders that are there stay");
}

void CheckOpenWith(StateStage& stage, std::string_view bytes, const Lines& lines) {
    stage.app.Settings.OpenWithListFile = kList;
    stage.app.Exchange<OpenWithRequest>().ViewWithFile = lines.empty() ? Text() : lines.front();
    frmOpenFileWith window(stage.app);
    Require(Opened(stage, bytes, window) == lines, "a list that nobody changes isn't written");
    Require(window.ListView1.Count() == static_cast<int>(ProgramsOfLines(lines).size()),
            "each program has a row");
}

void Check(std::string_view bytes) {
    StateStage stage;
    stage.files.AddFile(kList, bytes);
    if (bytes.find('\0') != std::string_view::npos) {
        return Require(!ReadListFile(stage.app, kList), "what holds a zero byte is no list");
    }
    const Lines lines = Read(stage);
    CheckLines(stage, lines);
    CheckPrograms(lines);
    CheckFavourites(stage, bytes, lines);
    CheckFolders(stage, bytes, lines);
    CheckOpenWith(stage, bytes, lines);
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
