#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace korvane {

/// Reads all bytes of a file, a pipe, or anything else that can be read to an end, with few system calls and
/// copies. More than 2 GB is an error, so that an endless device doesn't use up the memory.
std::optional<SharedBytes> ReadFile(const std::filesystem::path& path, std::error_code& error);

} // namespace korvane
