#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

/// A plain second way to read workbooks, which shares nothing with the writer but the format. It throws
/// std::runtime_error, which says what is wrong, at everything that could confuse another reader.
struct PlainRecord {
    std::size_t at = 0;
    std::uint16_t type = 0;
    std::string data;
};

/// What a cell's format says.
struct PlainFormat {
    bool wraps = false;
    /// The number of the colour as the file counts; 0 for no fill.
    int fill = 0;

    bool operator==(const PlainFormat&) const = default;
};

struct PlainXls {
    /// Row and column, counted from 0.
    using Place = std::pair<int, int>;

    std::vector<PlainRecord> bookRecords;
    std::vector<PlainRecord> sheetRecords;
    std::string sheetName;
    /// How often the file says its texts are used, and the texts.
    std::uint32_t textUses = 0;
    std::vector<Text> sharedTexts;
    std::map<Place, Text> texts;
    /// The formats of all cells in the file, empty ones too.
    std::map<Place, PlainFormat> formats;
    std::map<int, int> columnWidths;
    std::map<int, int> rowHeights;
    /// Rows and columns that the file says it has.
    Place size;
    Place activeCell;

    Text TextAt(int row, int col) const {
        const auto found = texts.find({row, col});
        return found == texts.end() ? Text() : found->second;
    }
    PlainFormat FormatAt(int row, int col) const {
        const auto found = formats.find({row, col});
        return found == formats.end() ? PlainFormat() : found->second;
    }
};

/// The bytes of a stream of a compound file.
std::string ReadOleStream(std::string_view file, TextView name);

/// The records of a whole stream.
std::vector<PlainRecord> ReadRecords(std::string_view stream);

/// The file's one sheet.
PlainXls ReadXls(std::string_view file);

} // namespace korvane
