#pragma once

#include "common/number/Number.h"
#include "grid/GridStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

inline SharedBytes BytesOf(std::string_view bytes) {
    const std::shared_ptr<char[]> data(new char[bytes.size()]);
    std::memcpy(data.get(), bytes.data(), bytes.size());
    return {data, bytes.size()};
}

/// An empty table of so many rows and columns.
class GridTest : public testing::Test {
protected:
    void Resize(int rows, int cols) {
        grid.SetColCount(Col{cols});
        grid.SetRowCount(Row{rows});
    }
    void FillColumn(Col col, const std::vector<Text>& texts) {
        Row row{1};
        for (const Text& text : texts) {
            grid.SetCellValue(row, col, text);
            ++row;
        }
    }
    std::vector<Text> Column(Col col) const {
        std::vector<Text> texts;
        for (Row row{1}; row <= grid.RowCount(); ++row)
            texts.push_back(grid.CellValue(row, col));
        return texts;
    }

    GridStore grid{CodePage::Windows1252()};
};

} // namespace korvane
