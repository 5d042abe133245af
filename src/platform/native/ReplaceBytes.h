#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace korvane {

/// Puts a new file with these bytes in place of the file, in the way that `FileSystem::WriteWhole` describes.
/// Nothing is done, and the result is empty, when the file has to be written itself.
std::optional<std::error_code> ReplaceBytes(const std::filesystem::path& path, std::string_view bytes,
                                            Readers readers = Readers::AsBefore);

} // namespace korvane
