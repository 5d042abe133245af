#pragma once

#include "common/text/Text.h"

namespace korvane {

/// What Windows calls files with this extension, which has no dot, in the user's language: "Text Document".
/// The disk isn't read.
Text FileTypeName(TextView extension);

} // namespace korvane
