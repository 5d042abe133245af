#include "TbxFixtures.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"

#include <ostream>

namespace korvane {
namespace {

/// The header, the columns and what they do to the table as a whole.
class TbxReaderTest : public TbxTest {};

TEST_F(TbxReaderTest, TheWorkedExampleGivesTwoRows) {
    const std::string file =
        Lines(";\n; Values for colour, font type, font size, cell height, cell width\n;\n"
              "!16777215\n!Calibri\n!12\n!372\n"
              ";\n; Column names\n;\n!Name\n!1920\n!Note\n!1920\n;\n; File data\n;\n"
              "@row_1\n?1000\n§-1\n§-1\n@col_1\nAnna\n@col_2\nfirst line\nsecond line\n"
              "@row_3\n?00B0\n§65535\n§0\n@col_1\nBert\n@col_2\n\n"
              ";\n; End of File: D:\\data\\people.tbx\n;\n");
    EXPECT_EQ(Read(file), TbxReader::Outcome::Done);
    EXPECT_EQ(Cells(), (Rows{{u"Anna", u"first line\r\nsecond line"}, {u"Bert", u""}}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
    EXPECT_EQ(grid.CellCheck(Row{2}), 0);
    EXPECT_TRUE(grid.CellFontFlag(Row{2}, Col{2}, CellFlag::Bold));
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{1}), Colour{65535});
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{1}), Colour{0});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{-1});
}

TEST_F(TbxReaderTest, TheHeaderGoesToTheModel) {
    Read(kHeader);
    EXPECT_EQ(table.model.TableBackColour, Colour{16777215});
    EXPECT_EQ(table.model.TableFontName, u"Calibri");
    EXPECT_EQ(table.model.TableFontSize, 12);
    EXPECT_EQ(table.model.SetRowHeight, 24);
    EXPECT_EQ(table.host.shownRowHeights, std::vector<std::int16_t>{24});
}

TEST_F(TbxReaderTest, TheHeaderIsTheFirstFourLinesWhateverTheyBeginWith) {
    Read(Lines("@255\n;comment\nxArial\n?11\n§310\n"));
    EXPECT_EQ(table.model.TableBackColour, Colour{255});
    EXPECT_EQ(table.model.TableFontName, u"Arial");
    EXPECT_EQ(table.model.TableFontSize, 11);
    EXPECT_EQ(table.model.SetRowHeight, 20);
}

TEST_F(TbxReaderTest, AnEmptyLineIsAHeaderLineToo) {
    Read(Lines("\n\n\n\n!Name\n!1920\n@row_1\n"));
    EXPECT_EQ(table.model.TableBackColour, Colour{0});
    EXPECT_EQ(table.model.TableFontName, u"");
    EXPECT_EQ(table.model.TableFontSize, 0);
    EXPECT_EQ(table.model.SetRowHeight, 0);
    EXPECT_EQ(Headers(), std::vector<Text>{u"Name"});
}

TEST_F(TbxReaderTest, WhatAShortFileDoesNotSayStaysUnset) {
    Read(Lines("!255\n!Arial\n"));
    EXPECT_EQ(table.model.TableBackColour, Colour{255});
    EXPECT_EQ(table.model.TableFontName, u"Arial");
    EXPECT_EQ(table.model.TableFontSize, std::nullopt);
    EXPECT_EQ(table.model.SetRowHeight, std::nullopt);
    EXPECT_TRUE(table.host.shownRowHeights.empty());
}

TEST_F(TbxReaderTest, BadNumbersCountAsZero) {
    Read(Lines("!white\n!Arial\n!big\n!-\n"));
    EXPECT_EQ(table.model.TableBackColour, Colour{0});
    EXPECT_EQ(table.model.TableFontSize, 0);
    EXPECT_EQ(table.model.SetRowHeight, 0);
}

TEST_F(TbxReaderTest, BlanksInNumbersAreSkipped) {
    Read(Lines("! 1 6 x\n!Arial\n!  1 2\n!3 7 2\n"));
    EXPECT_EQ(table.model.TableBackColour, Colour{16});
    EXPECT_EQ(table.model.TableFontSize, 12);
    EXPECT_EQ(table.model.SetRowHeight, 24);
}

TEST_F(TbxReaderTest, ANumberThatDoesNotFitLeavesItsFieldUnset) {
    Read(Lines("!4294967296\n!Arial\n!32768\n!999999999\n!Name\n!1\n@row_1\n@col_1\na\n@row_2\n"));
    EXPECT_EQ(table.model.TableBackColour, std::nullopt);
    EXPECT_EQ(table.model.TableFontSize, std::nullopt);
    EXPECT_EQ(table.model.SetRowHeight, std::nullopt);
    EXPECT_EQ(grid.GridBackColor(), Colour{0});
    EXPECT_EQ(grid.GridFontSize(), 0);
    EXPECT_EQ(grid.RowHeight(Row{1}), 0);
    EXPECT_EQ(table.host.shownRowHeights, std::vector<std::int16_t>{0});
}

struct Height {
    const char* stored;
    int read;
};

void PrintTo(const Height& height, std::ostream* stream) {
    *stream << height.stored;
}

class TbxRowHeightTest : public TbxTest, public testing::WithParamInterface<Height> {};

TEST_P(TbxRowHeightTest, IsRoundedToTheNearestTiesToEven) {
    Read(
        Lines("!0\n!Arial\n!10\n!" + std::string(GetParam().stored) + "\n!Name\n!1\n@row_1\n@col_1\na\n;\n"));
    EXPECT_EQ(table.model.SetRowHeight, GetParam().read);
    EXPECT_EQ(grid.RowHeight(Row{1}), GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(Heights, TbxRowHeightTest,
                         testing::Values(Height{"372", 24}, Height{"387.5", 25}, Height{"7.75", 0},
                                         Height{"23.25", 2}, Height{"38.75", 2}, Height{"7.76", 1},
                                         Height{"-31", -2}, Height{"387,5", 25}));

TEST_F(TbxReaderTest, ColumnsGetKeyCaptionAndWidth) {
    ReadData("@row_1\n");
    EXPECT_EQ(Headers(), (std::vector<Text>{u"Name", u"Note"}));
    EXPECT_EQ(grid.ColKey(Col{1}), u"1no");
    EXPECT_EQ(grid.ColKey(Col{2}), u"2no");
    EXPECT_EQ(grid.ColWidth(Col{1}), 240);
    EXPECT_EQ(grid.ColWidth(Col{2}), 120);
    EXPECT_EQ(table.model.ColumnNames[Col{2}], u"Note");
    EXPECT_EQ(table.model.ColumnWidths[Col{2}], u"120");
}

struct Width {
    const char* stored;
    const char16_t* kept;
    int set;
};

void PrintTo(const Width& width, std::ostream* stream) {
    *stream << width.stored;
}

class TbxColWidthTest : public TbxTest, public testing::WithParamInterface<Width> {};

TEST_P(TbxColWidthTest, IsAnEighthRoundedTiesToEven) {
    Read(kHeader + Lines("!Name\n!" + std::string(GetParam().stored) + "\n@row_1\n"));
    EXPECT_EQ(table.model.ColumnWidths[Col{1}], GetParam().kept);
    EXPECT_EQ(grid.ColWidth(Col{1}), GetParam().set);
}

INSTANTIATE_TEST_SUITE_P(Widths, TbxColWidthTest,
                         testing::Values(Width{"1920", u"240", 240}, Width{"1921", u"240.125", 240},
                                         Width{"1924", u"240.5", 240}, Width{"1932", u"241.5", 242},
                                         Width{"wide", u"0", 0}, Width{"", u"0", 0}));

TEST_F(TbxReaderTest, AWidthPastItsFieldLeavesTheColumnsOwn) {
    Read(kHeader + Lines("!Name\n!999999999999999\n!Note\n!" + std::string(400, '9') + "\n@row_1\n"));
    EXPECT_EQ(grid.ColWidth(Col{1}), GridStore::kDefaultColWidth);
    EXPECT_EQ(table.model.ColumnWidths[Col{2}], u"");
    EXPECT_EQ(grid.ColWidth(Col{2}), 0);
}

TEST_F(TbxReaderTest, ANameWithoutAWidthGivesAColumnOfWidthZero) {
    Read(kHeader + Lines("!Name\n@row_1\n@col_1\na\n;\n"));
    EXPECT_EQ(Headers(), std::vector<Text>{u"Name"});
    EXPECT_EQ(grid.ColWidth(Col{1}), 0);
    EXPECT_EQ(Cells(), Rows{{u"a"}});
}

TEST_F(TbxReaderTest, TheColumnSetUpGivesTheGridTheTablesLook) {
    ReadData("@row_1\n");
    EXPECT_EQ(grid.GridForeColor(), Colour{0xC00000});
    EXPECT_EQ(grid.GridBackColor(), Colour{16777215});
    EXPECT_EQ(grid.GridFontName(), u"Calibri");
    EXPECT_EQ(grid.GridFontSize(), 12);
}

TEST_F(TbxReaderTest, SortingByHeaderFollowsTheSetting) {
    grid.SetSortOnHeaderClick(true);
    Read(kHeader + kTwoColumns + Lines("@row_1\n"), false);
    EXPECT_FALSE(grid.SortOnHeaderClick());
    TestTable other;
    TbxReader(other.model, other.host, true, Share(kHeader + kTwoColumns + Lines("@row_1\n"))).Read();
    EXPECT_TRUE(other.grid.SortOnHeaderClick());
}

TEST_F(TbxReaderTest, AFileWithoutDataLinesGivesNoColumns) {
    ReadData("");
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(table.model.ColumnNames[Col{1}], u"Name");
    EXPECT_EQ(grid.GridFontName(), u"");
}

TEST_F(TbxReaderTest, AnEmptyLineBehindTheColumnsSetsThemUpAndAddsThemOnce) {
    ReadData("\n\n\n@row_1\n@col_1\na\n@col_2\nb\n");
    EXPECT_EQ(Headers(), (std::vector<Text>{u"Name", u"Note"}));
    EXPECT_EQ(Cells(), (Rows{{u"a", u"b"}}));
}

TEST_F(TbxReaderTest, ColumnsNamedBehindAnEmptyLineAreSetUpWithTheNextLine) {
    ReadData("\n!Third\n!80\n@row_1\n@col_1\na\n@col_2\nb\n@col_3\nc\n");
    EXPECT_EQ(Headers(), (std::vector<Text>{u"Name", u"Note", u"Third"}));
    EXPECT_EQ(grid.ColWidth(Col{3}), 10);
    EXPECT_EQ(Cells(), (Rows{{u"a", u"b", u"c"}}));
}

TEST_F(TbxReaderTest, TwentyFourColumnsAreRead) {
    std::string columns;
    for (int col = 1; col <= 24; ++col)
        columns += "!c" + std::to_string(col) + "\r\n!8\r\n";
    EXPECT_EQ(Read(kHeader + columns + Lines("@row_1\n")), TbxReader::Outcome::Done);
    EXPECT_EQ(grid.ColCount(), Col{24});
    EXPECT_EQ(grid.ColHeaderText(Col{24}), u"c24");
}

TEST_F(TbxReaderTest, TheNameOfA25thColumnStopsTheReadingBeforeAnyColumnIsMade) {
    std::string columns;
    for (int col = 1; col <= 25; ++col)
        columns += "!c" + std::to_string(col) + "\r\n!8\r\n";
    EXPECT_EQ(Read(kHeader + columns + Lines("@row_1\n")), TbxReader::Outcome::TooManyColumns);
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(table.model.ColumnNames[Col{24}], u"c24");
    EXPECT_EQ(table.model.SetRowHeight, 24);
}

TEST_F(TbxReaderTest, NamesAreReadInTheCodePage) {
    Read(Lines("!0\n!Schr\xF6"
               "der\n!12\n!372\n!Preis \x80\n!80\n@row_1\n@col_1\n\x84\xFC\x93\n;\n"));
    EXPECT_EQ(table.model.TableFontName, u"Schröder");
    EXPECT_EQ(Headers(), std::vector<Text>{u"Preis €"});
    EXPECT_EQ(Cells(), Rows{{u"„ü“"}});
}

TEST_F(TbxReaderTest, TheColourMarkIsAByteWhateverTheCodePageHasThere) {
    TestTable thai(PathStyle::Windows, *CodePage::ForNumber(874));
    const std::string file = kHeader + kTwoColumns +
                             "@row_1\r\n\xA7"
                             "255\r\n@col_1\r\na\xA7\r\n;\r\n";
    TbxReader(thai.model, thai.host, false, Share(file)).Read();
    EXPECT_EQ(thai.grid.CellBackColor(Row{1}, Col{1}), Colour{255});
    EXPECT_EQ(thai.grid.CellValue(Row{1}, Col{1}), u"aง");
}

TEST_F(TbxReaderTest, TheByteThatOnceEndedFilesIsAnOrdinaryCharacter) {
    ReadData("@row_1\n@col_1\na\x1A"
             "b\n@col_2\nc\n");
    EXPECT_EQ(Cells(), (Rows{{u"a\x1A"
                              u"b",
                              u"c"}}));
}

} // namespace
} // namespace korvane
