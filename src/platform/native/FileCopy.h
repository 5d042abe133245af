#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <system_error>

// Work on whole files that is different on each system.

namespace korvane {

/// Copies a plain file in the way that `FileSystem::Copy` describes.
std::error_code CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to,
                              const CopyOptions& options);

/// Whether the reason is that the disk, or the user's share of it, is full.
bool IsDiskFull(const std::error_code& error);

/// Renames a file, folder or link. It fails if something has the new name already.
std::error_code RenameToFree(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace korvane
