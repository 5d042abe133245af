#pragma once

#include "common/text/Text.h"
#include "controls/Form.h"

#include <vector>

namespace korvane {

/// The captions of the buttons and boxes of a window, in the window's order.
std::vector<Text> CaptionsOf(const Form& form);

} // namespace korvane
