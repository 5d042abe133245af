#pragma once

#include "common/text/Text.h"

#include <concepts>
#include <limits>
#include <string>
#include <string_view>

namespace korvane {

/// The numeric value of a text: its leading number, 0 if there is none. Blanks (0x20 only) are skipped,
/// before and inside the number; then an optional sign, digits, an optional point and digits. An exponent
/// ends it. The result is the nearest double; a number past the range of double is infinite.
double Val(TextView text);
double Val(std::string_view bytes);

/// Rounded to the nearest whole number, ties to the even one.
double RoundHalfEven(double number);

/// Puts the rounded number (ties to even) in `field`; false, with the field as it was, when it doesn't fit.
template <std::signed_integral Int>
bool StoreRounded(double number, Int& field) {
    static_assert(sizeof(Int) <= 4, "a double must hold every value of the field");
    const double rounded = RoundHalfEven(number);
    const bool fits =
        rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max();
    if (fits) field = static_cast<Int>(rounded);
    return fits;
}

/// The numeric value of the text, put in `field` as `StoreRounded` does.
template <std::signed_integral Int>
bool ReadNumber(TextView text, Int& field) {
    return StoreRounded(Val(text), field);
}
template <std::signed_integral Int>
bool ReadNumber(std::string_view bytes, Int& field) {
    return StoreRounded(Val(bytes), field);
}

/// A finite number as it is written to files and cells in any locale: the fewest digits that read back as the
/// same double, with "." as the point, without a blank at the beginning and without an exponent.
Text NumberText(double number);
/// The whole number in decimal, without a blank at the beginning.
template <std::integral Int>
Text NumberText(Int number) {
    return FromAscii(std::to_string(number));
}

/// The format "###,###,###": a whole number with its thousands grouped by ",", an empty text for 0.
Text FormatGroupedWhole(long long number);
template <std::integral Int>
Text FormatGrouped(Int number) {
    return FormatGroupedWhole(static_cast<long long>(number));
}
/// The same of a finite number, rounded to a whole one, ties away from zero.
Text FormatGrouped(double number);
/// The same of a text that is a number as a whole, outer blanks aside; any other passes through unchanged.
Text FormatGrouped(TextView text);
/// The format "000,000,000": grouped, and filled up with zeros to nine digits, so that the order of such
/// texts is the order of their numbers.
Text FormatGroupedFilled(long long number);

} // namespace korvane
