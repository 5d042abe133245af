#pragma once

#include "common/number/Number.h"
#include "grid/GridStore.h"
#include "support/TestTable.h"
#include "table/model/TbxReader.h"
#include "table/model/TbxWriter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

/// The text as it is in files: every LF becomes CR LF, every "§" the byte of the mark.
inline std::string Lines(std::string_view text) {
    constexpr std::string_view kMark = "§";
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool mark = text.substr(at).starts_with(kMark);
        if (text[at] == '\n')
            bytes += "\r\n";
        else if (mark)
            bytes += '\xA7';
        else
            bytes += text[at];
        if (mark) at += kMark.size() - 1;
    }
    return bytes;
}

inline const std::string kHeader = Lines("!16777215\n!Calibri\n!12\n!372\n");
inline const std::string kTwoColumns = Lines("!Name\n!1920\n!Note\n!960\n");

inline SharedBytes Share(std::string_view bytes) {
    const std::shared_ptr<char[]> data(new char[bytes.size()]);
    bytes.copy(data.get(), bytes.size());
    return {data, bytes.size()};
}

/// Keeps in memory what is written.
class StringWriter final : public FileWriter {
public:
    bool Write(std::string_view part) override {
        bytes += part;
        ++writes;
        return true;
    }
    bool Close() override { return true; }

    std::string bytes;
    int writes = 0;
};

class TbxTest : public testing::Test {
protected:
    using Rows = std::vector<std::vector<Text>>;

    TbxReader::Outcome Read(std::string_view bytes, bool sorting = false) {
        return TbxReader(table.model, table.host, sorting, Share(bytes)).Read();
    }
    /// Reads a file with the usual header, two columns and these lines, in the form that the writer gives it.
    void ReadData(std::string_view data) {
        ASSERT_EQ(Read(kHeader + kTwoColumns + Lines(data) + Lines(";\n; End of File: x\n;\n")),
                  TbxReader::Outcome::Done);
    }
    std::string Write() const {
        StringWriter file;
        TbxWriter(table.model, file).Write();
        return file.bytes;
    }
    Rows Cells() const {
        Rows rows;
        for (Row row{1}; row <= grid.RowCount(); ++row) {
            rows.emplace_back();
            for (Col col{1}; col <= grid.ColCount(); ++col)
                rows.back().push_back(grid.CellValue(row, col));
        }
        return rows;
    }
    std::vector<Text> Headers() const {
        std::vector<Text> headers;
        for (Col col{1}; col <= grid.ColCount(); ++col)
            headers.push_back(grid.ColHeaderText(col));
        return headers;
    }
    void Resize(int rows, int cols) {
        grid.SetColCount(Col{cols});
        grid.SetRowCount(Row{rows});
    }

    TestTable table;
    GridStore& grid = table.grid;
};

} // namespace korvane
