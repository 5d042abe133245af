#pragma once

#include "common/text/Text.h"

namespace korvane {

class FileSystem;

/// The whole address of what the user types: one without a scheme is on the web, and one that names a file is
/// that. Empty for blanks.
Text AddressOfTyped(const FileSystem& files, TextView typed);

} // namespace korvane
