#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace korvane {

class App;
class DiskWait;
class FileRows;
class ShownFolder;

/// What the lister does with the files that are marked, or with the one in the current row.
///
/// When the list doesn't show the files of the folder any more, because the user went on in the tree, each
/// command only lists them: the marked rows aren't files of that folder.
class FileCommands {
public:
    /// All outlive the object.
    FileCommands(App& app, ShownFolder& folder, FileRows& rows, DiskWait& wait);

    enum class Viewing : std::uint8_t { ByType, AsText };

    // The current file.

    void View(Viewing viewing = Viewing::ByType);
    void ViewWith();
    void ShowInfo();
    /// Whether the current file has a new name now.
    bool Rename();
    void Duplicate();

    // The marked files.

    void Copy();
    void Move();
    void Delete();

private:
    /// Whether there is a current file, which is in the folder shown.
    bool HasFile();
    /// The same, and its disk hasn't fallen silent: the user can stop the wait for it.
    bool HasFileThatAnswers();
    /// What the disk tells about a path.
    struct Seen {
        bool isFile = false;
        bool isLink = false;
        bool hasSize = false;
    };
    /// Nothing unless the disk tells about all of them.
    std::optional<std::vector<Seen>> LookAt(const std::vector<Text>& paths);
    /// The names of the marked files in the folder shown. A box tells when there are none.
    std::vector<Text> MarkedFiles();
    /// Notes the current file for the windows that work on one; false when there is none.
    bool PutAtHand();
    void ShowCopyMove(std::int16_t kind);
    /// False if the disk didn't answer.
    bool Recycle(const std::vector<Text>& names);
    void ListAgainAtRow();

    App& app_;
    ShownFolder& folder_;
    FileRows& rows_;
    DiskWait& wait_;
};

} // namespace korvane
