#pragma once

#include "common/text/Text.h"
#include "platform/PatientDisk.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace korvane {

class App;

/// Finds files by a part of their names in a list of its own, which nobody sees. Kept for compatibility:
/// search-goes-through-hidden-list.
class FindInFolder {
public:
    /// The App outlives the object. `ask` asks the disk, which may not answer.
    FindInFolder(App& app, DiskAsker ask) : app_(app), ask_(std::move(ask)) {}

    /// Asks for a text, and goes to the next file of the folder that has it in its name. After the last one
    /// the user is asked whether to begin again.
    void Run(const Text& folder, const Text& patterns);
    /// The folder is listed again, so that the search begins at its first file.
    void Reset() { next_ = 0; }

    /// The file that was found last, which alone is marked in the hidden list; empty for none.
    const Text& Found() const { return found_; }

private:
    std::optional<std::vector<Text>> NamesIn(const Text& folder, const Text& patterns);

    App& app_;
    DiskAsker ask_;
    Text found_;
    std::size_t next_ = 0;
};

} // namespace korvane
