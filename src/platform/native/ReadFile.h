#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace korvane {

/// Reads all bytes of a plain file with few system calls and copies. Anything else is an error and isn't
/// waited for, and so are more than 2 GB.
std::optional<SharedBytes> ReadFile(const std::filesystem::path& path, std::error_code& error);

} // namespace korvane
