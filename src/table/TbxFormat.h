#pragma once

#include <string_view>

namespace korvane::tbx {

// What the reader and the writer of `.tbx` files both know of the format. It escapes nothing: a line is told
// by its first bytes alone.

inline constexpr char kComment = ';';
inline constexpr char kValue = '!';
inline constexpr char kTick = '?';
/// The section mark, whatever character the code page has in this place.
inline constexpr char kColour = '\xA7';
inline constexpr char kAt = '@';
inline constexpr std::string_view kRow = "@row";
inline constexpr std::string_view kCol = "@col";
inline constexpr std::string_view kLineEnd = "\r\n";

/// Sizes stand in files in finer units than the grid's.
inline constexpr double kHeightScale = 15.5;
inline constexpr int kWidthScale = 8;

/// A row whose text in column 1 is this is left out of the file.
inline constexpr std::string_view kDeleteMark = "---";

} // namespace korvane::tbx
