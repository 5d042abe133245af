#pragma once

#include "document/model/Reading.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// The numbers of the formats of texts.
namespace TextFormat {
inline constexpr int Plain = 1;
inline constexpr int Html = 4;
inline constexpr int Rtf = 5;
inline constexpr int Doc = 9;
inline constexpr int Xml = 10;
inline constexpr int Css = 11;
inline constexpr int Pdf = 12;
inline constexpr int Docx = 13;
inline constexpr int Xlsx = 15;
} // namespace TextFormat

enum class TextSaving : std::uint8_t {
    Saved,
    /// The file can't be written. The old one is as it was.
    NotWritten,
    /// There is no way to make this format.
    NotMade,
};

enum class FileUse : std::uint8_t { Reading, Writing };

/// Reads and writes the files of text controls.
class TextFiles {
public:
    virtual ~TextFiles() = default;
    /// Nothing when the file can't be read, or when there is no way to read this format.
    virtual std::optional<doc::ReadResult> Load(TextView path, int format) = 0;
    virtual TextSaving Save(TextView path, int format, const doc::Document& document) = 0;

    /// The program that isn't installed but is needed to read or to write the format; empty if none is.
    virtual Text Needed(int format, FileUse use) const = 0;

    // The same in memory, for the formats that need no other program.
    virtual std::optional<doc::ReadResult> Read(std::string_view bytes, int format) = 0;
    virtual std::optional<std::string> Written(const doc::Document& document, int format) = 0;
};

} // namespace korvane
