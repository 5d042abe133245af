#include "TbxFixtures.h"
#include "grid/Grid.h"

#include <random>

namespace korvane {
namespace {

class TbxRoundTripTest : public TbxTest {
protected:
    /// What is written of a table that was read from `bytes`.
    static std::string Rewrite(std::string_view bytes) {
        TestTable other;
        TbxReader(other.model, other.host, false, Share(bytes)).Read();
        StringWriter file;
        TbxWriter(other.model, file).Write();
        return file.bytes;
    }
    void ReadBack() {
        const std::string file = Write();
        TestTable other;
        TbxReader(other.model, other.host, false, Share(file)).Read();
        Resize(0, 0);
        TbxReader(table.model, table.host, false, Share(file)).Read();
    }
};

TEST_F(TbxRoundTripTest, EveryByteSurvivesInsideACell) {
    Resize(256, 1);
    for (int byte = 0; byte < 256; ++byte) {
        const char text[] = {'a', static_cast<char>(byte), 'b'};
        grid.SetCellValue(Row{byte + 1}, Col{1}, grid.Page().ToText({text, sizeof text}));
    }
    ReadBack();
    ASSERT_EQ(grid.RowCount(), Row{256});
    for (int byte = 0; byte < 256; ++byte) {
        const char plain[] = {'a', static_cast<char>(byte), 'b'};
        const std::string_view expected = byte == '\r' ? "a\r\nb" : std::string_view(plain, sizeof plain);
        EXPECT_EQ(grid.CellBytes(Row{byte + 1}, Col{1}), expected) << byte;
    }
}

TEST_F(TbxRoundTripTest, EveryByteButTheMarksSurvivesAtTheStartOfACell) {
    constexpr std::string_view kMarks = ";!@?\xA7\r";
    for (int byte = 0; byte < 256; ++byte) {
        const char text[] = {static_cast<char>(byte), 'b'};
        if (kMarks.find(text[0]) != std::string_view::npos) continue;
        Resize(1, 1);
        grid.SetCellValue(Row{1}, Col{1}, grid.Page().ToText({text, sizeof text}));
        ReadBack();
        ASSERT_EQ(grid.RowCount(), Row{1}) << byte;
        EXPECT_EQ(grid.CellBytes(Row{1}, Col{1}), std::string_view(text, sizeof text)) << byte;
    }
}

TEST_F(TbxRoundTripTest, AllBytesTogetherComeBackFromNames) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r') bytes += static_cast<char>(byte);
    const Text all = grid.Page().ToText(bytes);
    Resize(1, 1);
    grid.SetColHeaderText(Col{1}, all);
    table.model.TableFontName = all;
    ReadBack();
    EXPECT_EQ(grid.ColHeaderText(Col{1}), all);
    EXPECT_EQ(table.model.TableFontName, all);
}

TEST_F(TbxRoundTripTest, AFileInTheWritersFormIsRewrittenByteForByte) {
    const std::string file =
        Lines(";\n; Values for colour, font type, font size, cell height, cell width\n;\n"
              "!255\n!Arial\n!10\n!387.5\n"
              ";\n; Column names\n;\n!A\n!8\n!B\n!0\n!C\n!1920\n;\n; File data\n;\n"
              "@row_1\n?1IBX\n§-1\n§255\n@col_1\nx\n@col_2\n\n@col_3\n1\n2\n\n3\n"
              "@row_2\n?0000\n§16777215\n§0\n@col_1\n\n@col_2\n\n@col_3\n\n"
              ";\n; End of File: \n;\n");
    EXPECT_EQ(Rewrite(file), file);
}

TEST_F(TbxRoundTripTest, AMarkedRowIsGoneAfterTheNextLoad) {
    Resize(3, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"a");
    grid.SetCellValue(Row{2}, Col{1}, u"---");
    grid.SetCellValue(Row{3}, Col{1}, u"c");
    ReadBack();
    EXPECT_EQ(Cells(), (Rows{{u"a"}, {u"c"}}));
}

TEST_F(TbxRoundTripTest, ATableWhoseRowsAreAllMarkedComesBackWithoutColumns) {
    Resize(1, 2);
    grid.SetCellValue(Row{1}, Col{1}, u"---");
    ReadBack();
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(grid.RowCount(), Row{0});
}

TEST_F(TbxRoundTripTest, EachSaveTakesOneFinalLineBreak) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"a\r\n\r\n");
    ReadBack();
    EXPECT_EQ(Cells(), Rows{{u"a\r\n"}});
    ReadBack();
    EXPECT_EQ(Cells(), Rows{{u"a"}});
}

TEST_F(TbxRoundTripTest, RandomTablesComeBack) {
    std::mt19937 random(20261121);
    const auto below = [&random](int bound) {
        return std::uniform_int_distribution<int>(0, bound - 1)(random);
    };
    for (int round = 0; round < 50; ++round) {
        TestTable original;
        original.grid.SetColCount(Col{1 + below(24)});
        original.grid.SetRowCount(Row{1 + below(40)});
        for (Row row{1}; row <= original.grid.RowCount(); ++row) {
            original.grid.SetCellCheck(row, below(2));
            original.grid.SetRowBackColor(row, Colour{below(0x1000000) - 1});
            original.grid.SetRowFontFlag(row, CellFlag::Bold, below(2) == 1);
            for (Col col{1}; col <= original.grid.ColCount(); ++col) {
                Text text = u"t";
                for (int left = below(20); left > 0; --left)
                    text += below(5) == 0 ? u"\r\n" : u" ";
                original.grid.SetCellValue(row, col, text + u"ü");
            }
        }
        StringWriter file;
        TbxWriter(original.model, file).Write();
        EXPECT_EQ(Rewrite(file.bytes), file.bytes);
    }
}

} // namespace
} // namespace korvane
