#pragma once

#include "common/text/Text.h"

#include <filesystem>
#include <string_view>

namespace korvane {

/// On the disk file names are UTF-8, or 16-bit code units where the system uses these. A name that isn't
/// valid UTF-8 has a text too, which leads back to the same name. The path is empty for a text that can't be
/// a file's name.
std::filesystem::path ToNativePath(TextView path);
Text FromNativePath(const std::filesystem::path& path);

// The same of a single name, without the look at its parts that makes it a path.

std::filesystem::path::string_type ToNative(TextView name);
Text FromNative(std::basic_string_view<std::filesystem::path::value_type> name);

} // namespace korvane
