#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

/// One record of a workbook. This reader is simple and shares only the knowledge of the format with the
/// writer. It throws a std::runtime_error that says what is wrong with the file.
struct PlainRecord {
    std::size_t at = 0;
    std::uint16_t type = 0;
    std::string data;
};

/// The parts of a cell's format that the tests look at.
struct PlainFormat {
    bool wraps = false;
    /// The number of the colour in the file, or 0 for no fill.
    int fill = 0;

    bool operator==(const PlainFormat&) const = default;
};

struct PlainXls {
    /// A row and a column, both counted from 0.
    using Place = std::pair<int, int>;

    std::vector<PlainRecord> bookRecords;
    std::vector<PlainRecord> sheetRecords;
    std::string sheetName;
    /// How often the texts are used, as the file says.
    std::uint32_t textUses = 0;
    std::vector<Text> sharedTexts;
    std::map<Place, Text> texts;
    /// The formats of all cells in the file, even of empty ones.
    std::map<Place, PlainFormat> formats;
    std::map<int, int> columnWidths;
    std::map<int, int> rowHeights;
    /// The number of rows and columns, as the file says.
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
