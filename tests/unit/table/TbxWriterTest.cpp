#include "TbxFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

class TbxWriterTest : public TbxTest {
protected:
    /// What the writer makes of the rows, without what comes before and after them.
    std::string RowsWritten() const {
        const std::string file = Write();
        const std::string before = Lines("; File data\n;\n");
        const std::size_t begin = file.find(before) + before.size();
        return file.substr(begin, file.rfind(Lines(";\n; End of File: ")) - begin);
    }
};

TEST_F(TbxWriterTest, TheWholeFileOfTheWorkedExample) {
    table.model.TxtDbFile = u"D:\\data\\people.tbx";
    table.model.TableBackColour = Colour{16777215};
    table.model.TableFontName = u"Calibri";
    table.model.TableFontSize = 12;
    table.model.SetRowHeight = 24;
    grid.AddCol(u"1no", u"Name");
    grid.AddCol(u"2no", u"Note");
    grid.SetRowCount(Row{3});
    grid.SetCellCheck(Row{1}, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"Anna");
    grid.SetCellValue(Row{1}, Col{2}, u"first line\r\nsecond line");
    grid.SetCellValue(Row{2}, Col{1}, u"---");
    grid.SetCellValue(Row{2}, Col{2}, u"lost");
    grid.SetCellValue(Row{3}, Col{1}, u"Bert");
    grid.SetRowFontFlag(Row{3}, CellFlag::Bold, true);
    grid.SetRowBackColor(Row{3}, Colour{65535});
    grid.SetRowForeColor(Row{3}, Colour{0});
    EXPECT_EQ(Write(), Lines(";\n; Values for colour, font type, font size, cell height, cell width\n;\n"
                             "!16777215\n!Calibri\n!12\n!372\n"
                             ";\n; Column names\n;\n!Name\n!1920\n!Note\n!1920\n;\n; File data\n;\n"
                             "@row_1\n?1000\n§-1\n§-1\n@col_1\nAnna\n@col_2\nfirst line\nsecond line\n"
                             "@row_3\n?00B0\n§65535\n§0\n@col_1\nBert\n@col_2\n\n"
                             ";\n; End of File: D:\\data\\people.tbx\n;\n"));
}

// Kept for compatibility: tbx-title-names-five.
TEST_F(TbxWriterTest, ATableThatIsNothingIsWrittenAsZerosAndEmptyTexts) {
    EXPECT_EQ(Write(), Lines(";\n; Values for colour, font type, font size, cell height, cell width\n;\n"
                             "!0\n!\n!0\n!0\n;\n; Column names\n;\n;\n; File data\n;\n"
                             ";\n; End of File: \n;\n"));
}

TEST_F(TbxWriterTest, HeightsKeepTheirFraction) {
    table.model.SetRowHeight = 25;
    EXPECT_NE(Write().find("!387.5\r\n"), std::string::npos);
    table.model.SetRowHeight = -1;
    EXPECT_NE(Write().find("!-15.5\r\n"), std::string::npos);
}

TEST_F(TbxWriterTest, ColourAndFontComeFromTheModelAndNotFromTheGrid) {
    table.model.TableBackColour = Colour{1};
    table.model.TableFontName = u"Arial";
    table.model.TableFontSize = 8;
    grid.SetGridBackColor(Colour{2});
    grid.SetGridFontName(u"Times");
    grid.SetGridFontSize(9);
    EXPECT_NE(Write().find("!1\r\n!Arial\r\n!8\r\n"), std::string::npos);
}

TEST_F(TbxWriterTest, ColumnNamesComeFromTheGridAndNotFromTheModel) {
    grid.AddCol(u"1no", u"in the grid");
    table.model.ColumnNames.Set(Col{1}, u"in the model");
    EXPECT_NE(Write().find("!in the grid\r\n!1920\r\n"), std::string::npos);
    EXPECT_EQ(Write().find("in the model"), std::string::npos);
}

TEST_F(TbxWriterTest, ATableCanHaveMoreColumnsThanAFileCanBeReadWith) {
    Resize(1, 30);
    EXPECT_NE(RowsWritten().find("@col_30\r\n"), std::string::npos);
}

TEST_F(TbxWriterTest, RowNumbersSkipWhatIsLeftOut) {
    Resize(3, 1);
    grid.SetCellValue(Row{2}, Col{1}, u"---");
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@col_1\n\n@row_3\n?0000\n§-1\n§-1\n@col_1\n\n"));
}

TEST_F(TbxWriterTest, OnlyExactlyThreeHyphensInColumnOneMarkARow) {
    Resize(4, 2);
    grid.SetCellValue(Row{1}, Col{1}, u"--- ");
    grid.SetCellValue(Row{2}, Col{1}, u"----");
    grid.SetCellValue(Row{3}, Col{1}, u"---\r\n");
    grid.SetCellValue(Row{4}, Col{2}, u"---");
    for (const char* const row : {"@row_1", "@row_2", "@row_3", "@row_4"})
        EXPECT_NE(RowsWritten().find(row), std::string::npos) << row;
}

TEST_F(TbxWriterTest, HiddenRowsAreWritten) {
    Resize(1, 1);
    grid.SetRowVisible(Row{1}, false);
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@col_1\n\n"));
}

TEST_F(TbxWriterTest, ARowWithoutColumnsHasItsFirstFourLines) {
    Resize(2, 0);
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@row_2\n?0000\n§-1\n§-1\n"));
}

TEST_F(TbxWriterTest, TicksAndFlagsHaveTheirPlaces) {
    Resize(3, 1);
    grid.SetCellCheck(Row{1}, 1);
    grid.SetRowFontFlag(Row{2}, CellFlag::Italic, true);
    grid.SetRowFontFlag(Row{2}, CellFlag::Strikethrough, true);
    grid.SetCellCheck(Row{3}, 1);
    for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough})
        grid.SetRowFontFlag(Row{3}, flag, true);
    const std::string rows = RowsWritten();
    EXPECT_NE(rows.find("@row_1\r\n?1000\r\n"), std::string::npos);
    EXPECT_NE(rows.find("@row_2\r\n?0I0X\r\n"), std::string::npos);
    EXPECT_NE(rows.find("@row_3\r\n?1IBX\r\n"), std::string::npos);
}

TEST_F(TbxWriterTest, ACheckThatIsNeitherLeavesTheLineOut) {
    Resize(1, 1);
    grid.SetCellCheck(Row{1}, 2);
    grid.SetRowFontFlag(Row{1}, CellFlag::Bold, true);
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n§-1\n§-1\n@col_1\n\n"));
}

TEST_F(TbxWriterTest, ColumnOneSpeaksForTheRowsLook) {
    Resize(1, 2);
    grid.SetCellBackColor(Row{1}, Col{1}, Colour{1});
    grid.SetCellForeColor(Row{1}, Col{1}, Colour{2});
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{3});
    grid.SetCellFontFlag(Row{1}, Col{2}, CellFlag::Bold, true);
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§1\n§2\n@col_1\n\n@col_2\n\n"));
}

TEST_F(TbxWriterTest, OneFinalLineBreakOfATextIsTakenOff) {
    Resize(1, 3);
    grid.SetCellValue(Row{1}, Col{1}, u"a\r\n");
    grid.SetCellValue(Row{1}, Col{2}, u"b\r\n\r\n");
    grid.SetCellValue(Row{1}, Col{3}, u"c\n");
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@col_1\na\n@col_2\nb\n\n@col_3\n") + "c\n\r\n");
}

TEST_F(TbxWriterTest, NothingIsEscaped) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"@row_9\r\n;x\r\n!y");
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@col_1\n@row_9\n;x\n!y\n"));
}

TEST_F(TbxWriterTest, CharactersOutsideTheCodePageBecomeQuestionMarks) {
    Resize(1, 2);
    grid.SetColHeaderText(Col{1}, u"Имя");
    table.model.TableFontName = u"細明體";
    table.model.TxtDbFile = u"C:\\я.tbx";
    grid.SetCellValue(Row{1}, Col{1}, u"a Я €");
    grid.SetCellValue(Row{1}, Col{2}, u"Я\r\n");
    const std::string file = Write();
    for (const char* const expected :
         {"!???\r\n", "; End of File: C:\\?.tbx\r\n", "@col_1\r\na ? \x80\r\n@col_2\r\n?\r\n;"})
        EXPECT_NE(file.find(expected), std::string::npos) << expected;
}

TEST_F(TbxWriterTest, WideColumnsDoNotOverflow) {
    grid.AddCol(u"1no", u"");
    grid.SetColWidth(Col{1}, 2147483647);
    EXPECT_NE(Write().find("!17179869176\r\n"), std::string::npos);
}

TEST_F(TbxWriterTest, ManyRowsTakeFewWrites) {
    Resize(5000, 2);
    for (Row row{1}; row <= grid.RowCount(); ++row)
        grid.SetCellValue(row, Col{1}, Text(100, u'x'));
    StringWriter file;
    TbxWriter(table.model, file).Write();
    EXPECT_LT(file.writes, 10);
    EXPECT_GT(file.bytes.size(), 500000u);
}

TEST_F(TbxWriterTest, TheFileIsTheSameInChunksOfAnySize) {
    Resize(3, 2);
    grid.SetCellValue(Row{1}, Col{2}, Text(50, u'x'));
    const std::string whole = Write();
    for (std::size_t chunkSize = 1; chunkSize < 100; ++chunkSize) {
        StringWriter file;
        TbxWriter(table.model, file, chunkSize).Write();
        EXPECT_EQ(file.bytes, whole) << chunkSize;
    }
}

TEST_F(TbxWriterTest, ATextLargerThanAChunkIsWrittenInItsPlace) {
    Resize(1, 2);
    grid.SetCellValue(Row{1}, Col{1}, Text(1000000, u'x'));
    grid.SetCellValue(Row{1}, Col{2}, u"behind");
    EXPECT_EQ(RowsWritten(), Lines("@row_1\n?0000\n§-1\n§-1\n@col_1\n") + std::string(1000000, 'x') +
                                 Lines("\n@col_2\nbehind\n"));
}

} // namespace
} // namespace korvane
