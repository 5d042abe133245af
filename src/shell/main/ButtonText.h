#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The text with its ampersands doubled, so that a button shows them and doesn't use them to mark a key.
Text ButtonText(TextView text);

} // namespace korvane
