#include "TbxFixtures.h"
#include "grid/Grid.h"

#include <ostream>

namespace korvane {
namespace {

/// Rows, ticks, flags and colours.
class TbxRowsTest : public TbxTest {
protected:
    std::string Flags(Row row, Col col) const {
        std::string flags;
        for (const auto& [flag, letter] :
             {std::pair{CellFlag::Italic, 'I'}, {CellFlag::Bold, 'B'}, {CellFlag::Strikethrough, 'X'}})
            flags += grid.CellFontFlag(row, col, flag) ? letter : '0';
        return flags;
    }
};

TEST_F(TbxRowsTest, RowsAreCountedAndTheirNumbersIgnored) {
    ReadData("@row_7\n@col_1\na\n@row\n@col_1\nb\n@rowing\n@col_1\nc\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u""}, {u"b", u""}, {u"c", u""}}));
}

TEST_F(TbxRowsTest, ColumnsAreCountedAndTheirNumbersIgnored) {
    ReadData("@row_1\n@col_2\na\n@column\nb\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u"b"}}));
}

TEST_F(TbxRowsTest, AMissingColLeavesTheCellEmpty) {
    ReadData("@row_1\n@col_1\na\n@row_2\n@col_1\nb\n@col_2\nc\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u""}, {u"b", u"c"}}));
}

TEST_F(TbxRowsTest, CellsBeyondTheColumnsAreDropped) {
    ReadData("@row_1\n@col_1\na\n@col_2\nb\n@col_3\nc\nd\n@row_2\n@col_1\ne\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u"b"}, {u"e", u""}}));
}

TEST_F(TbxRowsTest, ARowBlockMayLeaveOutItsTickAndColours) {
    ReadData("@row_1\n@col_1\na\n");
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(Flags(Row{1}, Col{1}), "000");
}

struct Tick {
    const char* line;
    int check;
    const char* flags;
};

void PrintTo(const Tick& tick, std::ostream* stream) {
    *stream << tick.line;
}

class TbxTickTest : public TbxRowsTest, public testing::WithParamInterface<Tick> {};

TEST_P(TbxTickTest, EachCharacterHasItsPlace) {
    ReadData("@row_1\n" + std::string(GetParam().line) + "\n@col_1\na\n");
    EXPECT_EQ(grid.CellCheck(Row{1}), GetParam().check);
    EXPECT_EQ(Flags(Row{1}, Col{1}), GetParam().flags);
    EXPECT_EQ(Flags(Row{1}, Col{2}), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(Lines, TbxTickTest,
                         testing::Values(Tick{"?1000", 1, "000"}, Tick{"?0IBX", 0, "IBX"},
                                         Tick{"?10B0", 1, "0B0"}, Tick{"?0I", 0, "I00"}, Tick{"?1", 1, "000"},
                                         Tick{"?", 0, "000"}, Tick{"?2IBX", 0, "IBX"},
                                         Tick{"?0ibx", 0, "000"}, Tick{"?1XBI", 1, "0B0"},
                                         Tick{"?100XX", 1, "00X"}));

TEST_F(TbxRowsTest, AnUnknownTickLeavesTheOneBefore) {
    ReadData("@row_1\n?1000\n?x000\n@col_1\na\n");
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
}

TEST_F(TbxRowsTest, AZeroDoesNotTakeAFlagBack) {
    ReadData("@row_1\n?0IB0\n?0000\n@col_1\na\n");
    EXPECT_EQ(Flags(Row{1}, Col{1}), "IB0");
}

TEST_F(TbxRowsTest, TheFirstColourIsTheBackgroundTheSecondTheText) {
    ReadData("@row_1\n§255\n§ 16711680 x\n@col_1\na\n");
    for (const Col col : {Col{1}, Col{2}}) {
        EXPECT_EQ(grid.CellBackColor(Row{1}, col), Colour{255});
        EXPECT_EQ(grid.CellForeColor(Row{1}, col), Colour{0xFF0000});
    }
}

TEST_F(TbxRowsTest, AThirdColourOverridesTheSecond) {
    ReadData("@row_1\n§1\n§2\n§3\n@col_1\na\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{1});
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), Colour{3});
}

TEST_F(TbxRowsTest, EachRowStartsItsColoursAnew) {
    ReadData("@row_1\n§1\n§2\n@col_1\na\n@row_2\n§3\n@col_1\nb\n");
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{1}), Colour{3});
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{1}), kNoColour);
}

TEST_F(TbxRowsTest, Minus999LeavesTheColourAlone) {
    ReadData("@row_1\n§-999\n§-999\n@col_1\na\n@row_2\n§5\n§6\n§-999\n@col_1\nb\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{1}), Colour{6});
}

TEST_F(TbxRowsTest, AFractionIsRoundedBeforeItIsTakenForMinus999) {
    ReadData("@row_1\n§-999.4\n§-998.4\n@col_1\na\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), Colour{-998});
}

TEST_F(TbxRowsTest, Minus999CountsAsAColourLine) {
    ReadData("@row_1\n§-999\n§7\n@col_1\na\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), Colour{7});
}

TEST_F(TbxRowsTest, ABadColourIsZeroAndOneThatDoesNotFitIsNone) {
    ReadData("@row_1\n§red\n§99999999999\n@col_1\na\n");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{0});
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{1}), kNoColour);
}

TEST_F(TbxRowsTest, TicksAndColoursBeforeTheFirstRowGoNowhere) {
    ReadData("?1IBX\n§1\n@col_1\nlost\n@row_1\n@col_1\na\n");
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_EQ(Flags(Row{1}, Col{1}), "000");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(Cells(), (Rows{{u"a", u""}}));
}

TEST_F(TbxRowsTest, ACollectedCellDressesItsRow) {
    ReadData("@row_1\n@row_2\n@col_1\na\n@row_3\n@col_3\nbeyond\n");
    EXPECT_FALSE(grid.HasRowHeight(Row{1}));
    EXPECT_FALSE(grid.CellCheckShown(Row{1}));
    EXPECT_TRUE(grid.HasRowHeight(Row{2}));
    EXPECT_EQ(grid.RowHeight(Row{2}), 24);
    EXPECT_TRUE(grid.CellCheckShown(Row{2}));
    EXPECT_TRUE(grid.HasRowHeight(Row{3}));
}

TEST_F(TbxRowsTest, TheGridIsHiddenFromTheFirstLineBehindARowOn) {
    ReadData("\n@row_1");
    EXPECT_TRUE(grid.GridVisible());
    TestTable other;
    TbxReader(other.model, other.host, false, Share(kHeader + kTwoColumns + Lines("@row_1\n\n"))).Read();
    EXPECT_FALSE(other.grid.GridVisible());
}

TEST_F(TbxRowsTest, RowsPastTheLimitDoNotArriveAndTheLastKeepsItsCells) {
    std::string data;
    for (int row = 1; row <= 32769; ++row)
        data += "@row\n?" + std::string(row > 32767 ? "1I" : "0") + "\n§" + std::to_string(row) + "\n@col\n" +
                std::to_string(row) + "\n";
    ReadData(data);
    EXPECT_EQ(grid.RowCount(), Row{32767});
    EXPECT_EQ(grid.CellValue(Row{32767}, Col{1}), u"32767");
    EXPECT_EQ(grid.CellBackColor(Row{32767}, Col{1}), Colour{32767});
    EXPECT_EQ(grid.CellCheck(Row{32767}), 0);
    EXPECT_EQ(Flags(Row{32767}, Col{1}), "000");
}

TEST_F(TbxRowsTest, AColumnLineBehindTheLimitStartsTheRowsAnew) {
    std::string data;
    for (int row = 1; row <= 32770; ++row)
        data += "@row\n";
    ReadData(data + "!Third\n@row\n@col\na\n");
    EXPECT_EQ(grid.RowCount(), Row{1});
    EXPECT_EQ(Cells(), (Rows{{u"a", u"", u""}}));
}

} // namespace
} // namespace korvane
