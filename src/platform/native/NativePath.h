#pragma once

#include "common/text/Text.h"

#include <filesystem>

namespace korvane {

/// File names are UTF-8 on the disk, where the system doesn't hold them as 16-bit units itself. The empty
/// path for a text that can be no file's name.
std::filesystem::path ToNativePath(TextView path);
Text FromNativePath(const std::filesystem::path& path);

} // namespace korvane
