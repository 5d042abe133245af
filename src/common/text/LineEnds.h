#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The text with CR LF in the place of each LF that stands alone.
Text WithCrLf(TextView text);

} // namespace korvane
