#pragma once

#include <ctime>
#include <filesystem>

namespace korvane {

/// Moves a file, a link or a folder to the user's trash, or to that of its own volume, as the desktops do. A
/// folder of the trash that isn't there yet is made. False when there can be no trash for it: then it stays.
/// `dataHome` is the folder of the user's data, in which the trash is.
bool MoveToTrash(const std::filesystem::path& path, const std::filesystem::path& dataHome, std::time_t now);

/// The same for the user who runs the program.
bool MoveToTrash(const std::filesystem::path& path);

} // namespace korvane
