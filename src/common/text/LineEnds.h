#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The text with CR LF in place of each lone LF.
Text WithCrLf(TextView text);

} // namespace korvane
