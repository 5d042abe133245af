#include "TbxFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

/// Files that are made to do harm, or aren't tables at all. Each has to be read to its end, and the time and
/// memory for it have to be in proportion to its size.
class TbxHostileFilesTest : public TbxTest {
protected:
    static std::string Repeat(std::string_view part, std::size_t bytes) {
        std::string text;
        while (text.size() < bytes)
            text += part;
        return text;
    }
    /// Reads a file in which `part` is repeated for two megabytes after 24 columns.
    void ReadRepeated(std::string_view part) {
        std::string file = kHeader;
        for (int col = 1; col <= 24; ++col)
            file += "!c\r!8\r";
        Read(file + "@row\r" + Repeat(part, 2000000));
    }
};

TEST_F(TbxHostileFilesTest, NothingAndNextToNothing) {
    for (const std::string_view bytes :
         {"", "\r", "\r\n", "\n", "!", ";", "@", "\xA7", "\r\r\r\r\r", "@col\r@row"})
        EXPECT_EQ(Read(bytes), TbxReader::Outcome::Done);
    EXPECT_EQ(grid.RowCount(), Row{0});
}

TEST_F(TbxHostileFilesTest, EveryFileOfOneByteRepeated) {
    for (int byte = 0; byte < 256; ++byte) {
        TestTable other;
        const std::string file = kHeader + std::string(1000, static_cast<char>(byte));
        EXPECT_EQ(TbxReader(other.model, other.host, false, Share(file)).Read(), TbxReader::Outcome::Done);
    }
}

TEST_F(TbxHostileFilesTest, EveryFileCutShort) {
    const std::string file =
        kHeader + kTwoColumns + Lines("@row_1\n?1I\n§5\n§6\n@col_1\na\rb\nc\n@col_2\n\n@row_2\n!x\n@col_1\n");
    for (std::size_t size = 0; size <= file.size(); ++size) {
        TestTable other;
        EXPECT_EQ(TbxReader(other.model, other.host, false, Share(file.substr(0, size))).Read(),
                  TbxReader::Outcome::Done);
    }
}

TEST_F(TbxHostileFilesTest, EmptyLinesBeforeTheFirstRow) {
    std::string file = kHeader;
    for (int col = 1; col <= 24; ++col)
        file += "!c\r!8\r";
    Read(file + std::string(2000000, '\r') + "@row\r@row\r");
    EXPECT_EQ(grid.ColCount(), Col{24});
    EXPECT_EQ(grid.RowCount(), Row{2});
}

TEST_F(TbxHostileFilesTest, RowsWithoutEnd) {
    ReadRepeated("@row\r");
    EXPECT_EQ(grid.RowCount(), Row{32767});
}

TEST_F(TbxHostileFilesTest, ColumnsWithoutEnd) {
    ReadRepeated("@col\r");
    EXPECT_EQ(grid.RowCount(), Row{1});
}

TEST_F(TbxHostileFilesTest, TicksAndColoursWithoutEnd) {
    ReadRepeated("?1IBX\r");
    EXPECT_TRUE(grid.CellFontFlag(Row{1}, Col{24}, CellFlag::Strikethrough));
    ReadRepeated("\xA7\r");
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{24}), Colour{0});
}

TEST_F(TbxHostileFilesTest, ACellOfLoneCrsGrowsToTwiceItsSizeAndNoMore) {
    ReadRepeated("@col\r" + std::string(100000, '\r'));
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1})->size(), 200000u - 2);
}

TEST_F(TbxHostileFilesTest, ANumberOfAMillionDigits) {
    Read(kHeader + kTwoColumns + "@row\r\xA7" + std::string(1000000, '1') + "\r\xA7" +
         std::string(1000000, ' ') + "7\r\n@col\r\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), Colour{7});
}

} // namespace
} // namespace korvane
