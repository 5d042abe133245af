#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace korvane {

/// All bytes of a file, a pipe, or whatever else can be read to an end, in as few steps and copies as there
/// can be. Gives up on what has more than 2 GB, so that an endless device doesn't take all memory.
std::optional<SharedBytes> ReadFile(const std::filesystem::path& path, std::error_code& error);

} // namespace korvane
