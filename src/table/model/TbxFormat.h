#pragma once

#include <cstring>
#include <string_view>

namespace korvane::tbx {

// What the reader and the writer of `.tbx` files both know of the format. A line is told by its first bytes
// alone, and no text is escaped. Kept for compatibility: tbx-escapes-nothing.

inline constexpr char kComment = ';';
inline constexpr char kValue = '!';
inline constexpr char kTick = '?';
/// The section sign. It is this byte, whatever character the code page has for it.
inline constexpr char kColour = '\xA7';
inline constexpr char kAt = '@';
inline constexpr std::string_view kRow = "@row";
inline constexpr std::string_view kCol = "@col";
inline constexpr std::string_view kLineEnd = "\r\n";

// Each section begins with a title between two lines that hold only the comment mark, and so does the end.
inline constexpr std::string_view kCommentLine = ";";
/// The header holds no cell width. Kept for compatibility: tbx-title-names-five.
inline constexpr std::string_view kHeaderTitle =
    "; Values for colour, font type, font size, cell height, cell width";
inline constexpr std::string_view kColumnsTitle = "; Column names";
inline constexpr std::string_view kDataTitle = "; File data";
/// The file's path follows.
inline constexpr std::string_view kEndTitle = "; End of File: ";

/// Whether the line begins with the mark. When the compiler knows the mark, this is one comparison of
/// numbers.
inline bool Begins(std::string_view line, std::string_view mark) {
    return line.size() >= mark.size() && std::memcmp(line.data(), mark.data(), mark.size()) == 0;
}

/// Sizes are written in finer units than the grid's. One unit of the grid is this many in the file.
inline constexpr double kHeightScale = 15.5;
inline constexpr int kWidthScale = 8;

/// A row whose text in column 1 is this is left out of the file.
inline constexpr std::string_view kDeleteMark = "---";

} // namespace korvane::tbx
