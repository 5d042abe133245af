#pragma once

#include "platform/xls/LittleEndian.h"

#include <string>
#include <vector>

namespace korvane::xls {

/// How a cell looks.
struct CellFormat {
    /// A colour of the palette from 1 to 56; 0 for none.
    U8 fill = 0;
    /// Whether the cell's text is broken into lines.
    bool wraps = false;

    bool operator==(const CellFormat&) const = default;
};

/// The formats that a workbook's cells have, each once.
class CellFormats {
public:
    /// In the file, the formats of cells come after those of styles, whose number never changes.
    static constexpr U16 kFirst = 15;

    /// The number of the format for cells, from `kFirst` on; `kFirst` itself is the plain format. A new
    /// format is added.
    U16 NumberOf(const CellFormat& format);
    /// The format of a number that `NumberOf` has given.
    const CellFormat& At(U16 number) const { return formats_[static_cast<std::size_t>(number - kFirst)]; }

    /// All records of formats, those of styles too.
    void AppendRecords(std::string& bytes) const;

private:
    std::vector<CellFormat> formats_{CellFormat{}};
};

} // namespace korvane::xls
