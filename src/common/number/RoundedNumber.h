#pragma once

#include "common/text/Text.h"

namespace korvane {

/// A finite number with so many significant digits at most, as a person wants to read the outcome of a
/// calculation: in plain decimal, "." as the point, no zeros at the end of a fraction, no exponent.
Text RoundedNumberText(double number, int significantDigits);

} // namespace korvane
