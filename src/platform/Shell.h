#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// How the window of a started program comes up. A normal one gets the focus.
enum class WindowState : std::uint8_t { Normal, Minimised };

/// The file of an `OpenRequest` that is the desktop's file manager.
inline constexpr TextView kFileManager = u"explorer.exe";
/// The parameters that make the file manager show the recycle store.
inline constexpr TextView kRecycleStoreParameters = u"/root,::{645FF040-5081-101B-9F08-00AA002F954E}";

/// A file or folder that the desktop is to open, with its own program for that kind of thing.
struct OpenRequest {
    Text verb = u"Open";
    /// A path, or `kFileManager`, which takes a path as its parameters, or none.
    Text file{};
    Text parameters{};
    Text directory{};

    bool operator==(const OpenRequest&) const = default;
};

/// Whether the desktop asks the user before it moves something to the recycle store, and shows what it does.
enum class RecycleTalk : std::uint8_t { Silent, AsksAndShows };

/// What the desktop does for the program.
class Shell {
public:
    virtual ~Shell() = default;
    /// Starts a program. It gets each argument unchanged: no command interpreter makes more of one. The
    /// result is the task number; 0 when the program didn't start, as for an empty name.
    virtual int Run(TextView program, const std::vector<Text>& arguments, WindowState window) = 0;
    /// Nothing happens when it can't be opened.
    virtual void Open(const OpenRequest& request) = 0;
    /// Shows an address of the web in the desktop's own browser. Nothing happens for one of another kind.
    virtual void Browse(TextView address) = 0;
    /// Shows a folder in the desktop's file manager.
    virtual void Explore(TextView folder) = 0;
    /// Moves a file, a link or a whole folder to the recycle store, from which the user can get it back.
    /// False, and nothing is lost, when there is no such store for it, or when the user stops it.
    virtual bool Recycle(TextView path, RecycleTalk talk) = 0;
    virtual void ToggleDesktop() = 0;
    /// Sounds the system's bell.
    virtual void Beep() = 0;
};

} // namespace korvane
