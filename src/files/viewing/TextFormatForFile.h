#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// The formats of a text window's files, by their numbers.
enum class TextFormat : std::int16_t {
    None = -1,
    Plain = 1,
    Html = 4,
    Rtf = 5,
    Doc = 9,
    Xml = 10,
    Css = 11,
    Pdf = 12,
    Docx = 13,
    Xlsx = 15,
};

/// What a file of no known kind counts as.
enum class OtherFiles : std::uint8_t { Plain, None };

/// The format in which a text window loads a file, by the end of its name, a point or not. Where `others` is
/// `None`, the plain formats have to be named too (".txt", ".lst", ".asc").
TextFormat TextFormatForFile(TextView path, OtherFiles others);

} // namespace korvane
