#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace korvane {

/// Reads all bytes of a file with few system calls and copies, and, if `special` is set, of a pipe or
/// anything else that can be read to an end. More than 2 GB is an error, so that an endless device doesn't
/// use up the memory.
std::optional<SharedBytes> ReadFile(const std::filesystem::path& path, bool special, std::error_code& error);

} // namespace korvane
