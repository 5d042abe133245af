#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

class App;
class DiskWait;
class FolderTree;
class ShownFolder;

/// What the lister does with the folder that it shows, and how it goes to others.
class FolderCommands {
public:
    /// All outlive the object.
    FolderCommands(App& app, ShownFolder& folder, FolderTree& tree, DiskWait& wait);

    void NewFolder();
    void RenameFolder();
    /// Moves the folder to the recycle store.
    void DeleteFolder();
    /// Reads the drives and the files again.
    void Refresh();

    /// Shows the folder in the desktop's file manager, and reads it again afterwards.
    void Explore();
    /// Starts the companion that lists folders.
    void StartLorrit();

    enum class NoteFolder : std::uint8_t { No, Yes };
    /// Lets the user go to a folder of the day, to which the present one may be added before.
    void ShowTodaysFolders(NoteFolder note);
    /// Lets the user go to one of the favourite folders.
    void GetTarget();
    /// Whether there is such a folder; nothing if its disk doesn't answer until the user stops the wait.
    std::optional<bool> IsThere(const Text& folder);

private:
    void TellOfDeletion(const Text& folder);

    App& app_;
    ShownFolder& folder_;
    FolderTree& tree_;
    DiskWait& wait_;
};

} // namespace korvane
