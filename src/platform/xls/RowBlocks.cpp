#include "platform/xls/RowBlocks.h"

#include "platform/xls/BiffRecords.h"

#include <algorithm>
#include <span>

namespace korvane::xls {

namespace {

using Rows = std::span<const SheetRow>;

constexpr std::size_t kRowsInBlock = 32;

/// A height for all lines of the row, in twips.
U16 HeightOf(const SheetRow& row) {
    constexpr int kLine = 255;
    constexpr int kHighest = 8190;
    return static_cast<U16>(std::min(row.lines * kLine, kHighest));
}

void AppendRow(std::string& bytes, std::size_t number, const SheetRow& row) {
    constexpr U16 kAlwaysSet = 0x0100;
    const std::vector<Cell>& cells = row.cells;
    const U16 firstCol = cells.empty() ? U16{0} : cells.front().col;
    const auto pastLastCol = static_cast<U16>(cells.empty() ? 0 : cells.back().col + 1);
    AppendRecord(bytes, RecordType::Row, static_cast<U16>(number), firstCol, pastLastCol, HeightOf(row),
                 U16{0}, U16{0}, kAlwaysSet, CellFormats::kFirst);
}

void AppendCells(std::string& bytes, std::size_t row, const std::vector<Cell>& cells) {
    const auto number = static_cast<U16>(row);
    for (const Cell& cell : cells) {
        if (cell.text == Cell::kNoText)
            AppendRecord(bytes, RecordType::Blank, number, cell.col, cell.format);
        else
            AppendRecord(bytes, RecordType::LabelSst, number, cell.col, cell.format, cell.text);
    }
}

/// Writes the distance back to the beginning of the block, and the distances from each row's first cell to
/// the next row's. The first of these starts after the block's first row record.
void AppendEnd(RowBlocks& blocks, std::size_t start, std::size_t cellsStart,
               std::span<const std::size_t> rowStarts) {
    const std::size_t end = blocks.bytes.size();
    blocks.ends.push_back(static_cast<U32>(end));
    std::string data;
    AppendLittle(data, static_cast<U32>(end - start));
    std::size_t from = start + (cellsStart - start) / rowStarts.size();
    for (const std::size_t at : rowStarts) {
        AppendLittle(data, static_cast<U16>(at - from));
        from = at;
    }
    AppendRecord(blocks.bytes, RecordType::DbCell, data);
}

void AppendBlock(RowBlocks& blocks, std::size_t firstRow, Rows rows) {
    const std::size_t start = blocks.bytes.size();
    for (std::size_t i = 0; i < rows.size(); ++i)
        AppendRow(blocks.bytes, firstRow + i, rows[i]);
    const std::size_t cellsStart = blocks.bytes.size();
    std::vector<std::size_t> rowStarts;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rowStarts.push_back(blocks.bytes.size());
        AppendCells(blocks.bytes, firstRow + i, rows[i].cells);
    }
    AppendEnd(blocks, start, cellsStart, rowStarts);
}

} // namespace

RowBlocks MakeRowBlocks(const Workbook& book) {
    const Rows rows = book.Rows();
    RowBlocks blocks;
    for (std::size_t first = 0; first < rows.size(); first += kRowsInBlock)
        AppendBlock(blocks, first, rows.subspan(first, std::min(kRowsInBlock, rows.size() - first)));
    return blocks;
}

} // namespace korvane::xls
