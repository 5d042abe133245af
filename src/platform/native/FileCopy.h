#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <system_error>

// What each system does with whole files in its own way.

namespace korvane {

/// Copies a plain file as `FileSystem::Copy` tells.
std::error_code CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to,
                              const CopyOptions& options);

/// Whether it failed since the disk, or the user's share of it, is full.
bool IsDiskFull(const std::error_code& error);

/// Gives a file, folder or link a name that nothing has yet.
std::error_code RenameToFree(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace korvane
