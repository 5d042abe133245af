#pragma once

#include "common/number/Units.h"
#include "common/text/CodePage.h"
#include "grid/FieldText.h"
#include "grid/Grid.h"
#include "platform/ChunkedOutput.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class FileWriter;
class TableModel;

/// What a writer makes of rows that are marked for deletion and of the final line ends of texts: a saved file
/// leaves them out, and a kept table has them.
enum class TbxContent : std::uint8_t { Saved, Whole };

/// Writes a table in the form of `.tbx` files. Colour, font and row height of the table come from the model,
/// all else from the grid.
class TbxWriter {
public:
    TbxWriter(const TableModel& table, FileWriter& file, std::size_t chunkSize = ChunkedOutput::kUsualChunk,
              TbxContent content = TbxContent::Saved);

    /// Writes this text instead of the one that the cell has.
    void Replace(const FieldText& typed) { typed_ = typed; }
    /// False when the file didn't take all of it.
    bool Write();

private:
    void PutTitle(std::string_view title);
    void PutHeader();
    void PutColumns();
    void PutRow(Row row);
    void PutAttributes(Row row);
    void PutCells(Row row);
    void PutValue(std::string_view value);
    void PutText(TextView value);
    std::string_view CellBytes(Row row, Col col);
    std::string ToBytes(TextView text) const { return grid_.Page().ToBytes(text); }

    const TableModel& table_;
    const Grid& grid_;
    ChunkedOutput output_;
    TbxContent content_;
    std::optional<FieldText> typed_;
    /// For each column, what is written before its text in a row.
    std::vector<std::string> cellHeads_;
    /// The bytes of a text that the code page can't hold in full.
    std::string converted_;
};

} // namespace korvane
