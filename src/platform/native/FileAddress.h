#pragma once

#include "common/text/Text.h"

#include <string>

namespace korvane {

/// The address of a file by its full path, "file:///data/a%20file". A name that isn't valid text keeps its
/// bytes.
std::string FileAddress(TextView fullPath);

} // namespace korvane
