#include "TbxFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

/// What the reader makes of cell texts, above all of lines that look like marks, which the writer doesn't
/// escape.
class TbxCellsTest : public TbxTest {
protected:
    /// The cells of one row whose first cell is `text` in the file, with "second" in the second cell.
    Rows CellsOf(std::string_view text) {
        ReadData("@row_1\n@col_1\n" + std::string(text) + "\n@col_2\nsecond\n");
        return Cells();
    }
};

TEST_F(TbxCellsTest, AnEmptyCellIsOneEmptyLine) {
    EXPECT_EQ(CellsOf(""), (Rows{{u"", u"second"}}));
}

TEST_F(TbxCellsTest, LinesAreJoinedByCrLf) {
    EXPECT_EQ(CellsOf("one\ntwo\n\nfour"), (Rows{{u"one\r\ntwo\r\n\r\nfour", u"second"}}));
}

TEST_F(TbxCellsTest, TrailingEmptyLinesStayButOne) {
    EXPECT_EQ(CellsOf("one\n"), (Rows{{u"one\r\n", u"second"}}));
    EXPECT_EQ(Write().find("one\r\n\r\n@col_2"), std::string::npos);
}

TEST_F(TbxCellsTest, TwoEmptyLinesAreOneLineBreak) {
    EXPECT_EQ(CellsOf("\n"), (Rows{{u"\r\n", u"second"}}));
}

// Kept for compatibility: tbx-escapes-nothing.
TEST_F(TbxCellsTest, ALaterLineBeginningWithAMarkEndsTheCell) {
    for (const std::string mark : {"@", "?", ";", "§"}) {
        TestTable other;
        const std::string data = "@row_1\n@col_1\nkept\n" + mark + "lost\nlost too\n@col_2\nsecond\n;\n";
        TbxReader(other.model, other.host, false, Share(kHeader + kTwoColumns + Lines(data))).Read();
        EXPECT_EQ(other.grid.CellValue(Row{1}, Col{1}), u"kept") << mark;
        EXPECT_EQ(other.grid.CellValue(Row{1}, Col{2}), u"second") << mark;
        EXPECT_EQ(other.grid.RowCount(), Row{1}) << mark;
    }
}

TEST_F(TbxCellsTest, ALaterLineBeginningWithRowStartsANewRow) {
    EXPECT_EQ(CellsOf("kept\n@rowan tree\nlost"), (Rows{{u"kept", u""}, {u"second", u""}}));
}

TEST_F(TbxCellsTest, ALaterLineBeginningWithColStartsTheNextCell) {
    EXPECT_EQ(CellsOf("kept\n@colour\ngreen"), (Rows{{u"kept", u"green"}}));
}

TEST_F(TbxCellsTest, ALaterQuestionOrColourLineActsOnTheRow) {
    CellsOf("kept\n?1I");
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
    EXPECT_TRUE(grid.CellFontFlag(Row{1}, Col{1}, CellFlag::Italic));
    CellsOf("kept\n§77");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{77});
}

TEST_F(TbxCellsTest, ALaterLineBeginningWithAnExclamationMarkIsText) {
    EXPECT_EQ(CellsOf("kept\n!kept too"), (Rows{{u"kept\r\n!kept too", u"second"}}));
}

TEST_F(TbxCellsTest, AFirstLineBeginningWithASemicolonIsSkipped) {
    EXPECT_EQ(CellsOf("; lost\nfirst"), (Rows{{u"first", u"second"}}));
}

TEST_F(TbxCellsTest, ACellOfCommentsAloneTakesNothing) {
    EXPECT_EQ(CellsOf("; lost\n; lost too"), (Rows{{u"", u"second"}}));
}

TEST_F(TbxCellsTest, AFirstLineBeginningWithAnExclamationMarkNamesAColumnAndStartsTheRowsAnew) {
    ReadData("@row_1\n@col_1\na\n@col_2\nb\n@row_2\n@col_1\n!Third\n@col_2\nlost\n@row_3\n@col_1\nc\n");
    EXPECT_EQ(Headers(), (std::vector<Text>{u"Name", u"Note", u"Third"}));
    EXPECT_EQ(table.model.ColumnNames[Col{3}], u"Third");
    EXPECT_EQ(grid.ColWidth(Col{3}), 0);
    EXPECT_EQ(Cells(), (Rows{{u"c", u"b", u""}}));
}

TEST_F(TbxCellsTest, ASecondSuchLineIsAWidth) {
    ReadData("@row_1\n@col_1\n!Third\n@col_2\n!160\n@row_2\n@col_1\nc\n");
    EXPECT_EQ(grid.ColWidth(Col{3}), 20);
    EXPECT_EQ(Cells(), (Rows{{u"c", u"", u""}}));
}

TEST_F(TbxCellsTest, RowOneKeepsWhatTheNextRowDoesNotFillAgain) {
    ReadData("@row_1\n?1I\n§5\n@col_1\na\n@col_2\nb\n@row_2\n@col_1\n!Third\n@row_3\n@col_1\nc\n");
    EXPECT_EQ(Cells(), (Rows{{u"c", u"b", u""}}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{5});
}

TEST_F(TbxCellsTest, TheRestOfACellBehindAColumnLineGoesNowhere) {
    ReadData("@row_1\n@col_1\na\n@row_2\n@col_1\n!Third\nlost\n@col_2\nlost\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u"", u""}, {u"", u"", u""}}));
}

TEST_F(TbxCellsTest, ATwentyFifthColumnNamedInACellStopsTheReading) {
    std::string data;
    for (int col = 3; col <= 25; ++col)
        data += "@row\n@col\n!c\n!8\n";
    EXPECT_EQ(Read(kHeader + kTwoColumns + Lines(data)), TbxReader::Outcome::TooManyColumns);
    EXPECT_EQ(grid.ColCount(), Col{24});
}

TEST_F(TbxCellsTest, AFirstLineThatIsAMarkActsAsOne) {
    EXPECT_EQ(CellsOf("@row_9\n@col_1\nnew row"), (Rows{{u"", u""}, {u"new row", u"second"}}));
    EXPECT_EQ(CellsOf("?1"), (Rows{{u"", u"second"}}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
}

TEST_F(TbxCellsTest, AFirstLineThatIsAColourColours) {
    EXPECT_EQ(CellsOf("§9\ntext"), (Rows{{u"", u"second"}}));
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{9});
}

TEST_F(TbxCellsTest, AFirstLineThatIsColTakesTheNextColumn) {
    EXPECT_EQ(CellsOf("@col_5\nin two"), (Rows{{u"", u"in two"}}));
}

TEST_F(TbxCellsTest, AFirstLineBeginningWithAnyOtherAtEmptiesTheCell) {
    EXPECT_EQ(CellsOf("@home\nlost"), (Rows{{u"", u"second"}}));
    EXPECT_TRUE(grid.HasRowHeight(Row{1}));
}

TEST_F(TbxCellsTest, MarksAreComparedWithCase) {
    EXPECT_EQ(CellsOf("kept\n@ROW\n@Col"), (Rows{{u"kept", u"second"}}));
}

TEST_F(TbxCellsTest, ALoneCrComesBackAsCrLf) {
    EXPECT_EQ(CellsOf("one\rtwo\r\rfour"), (Rows{{u"one\r\ntwo\r\n\r\nfour", u"second"}}));
}

TEST_F(TbxCellsTest, ALoneLfStays) {
    Read(kHeader + kTwoColumns + "@row\r\n@col\r\none\n@two\n\r\n@col\r\n\n\r\n;\r\n");
    EXPECT_EQ(Cells(), (Rows{{u"one\n@two\n", u"\n"}}));
}

TEST_F(TbxCellsTest, LoneCrsAtTheEndOfACellCountAsLineEnds) {
    Read(kHeader + kTwoColumns + "@row\r@col\rone\r@col\rtwo\r\r;\r");
    EXPECT_EQ(Cells(), (Rows{{u"one", u"two\r\n"}}));
}

TEST_F(TbxCellsTest, TextsArePartsOfTheFileItself) {
    const SharedBytes bytes = Share(kHeader + kTwoColumns + Lines("@row\n@col\none\ntwo\n@col\nlast\n;\n"));
    TbxReader(table.model, table.host, false, bytes).Read();
    for (const Col col : {Col{1}, Col{2}}) {
        const char* const data = grid.CellBytes(Row{1}, col)->data();
        EXPECT_TRUE(data > bytes.data.get() && data < bytes.data.get() + bytes.size);
    }
}

TEST_F(TbxCellsTest, AFileThatEndsInACellsOnlyLineLeavesTheCellEmpty) {
    for (const std::string end : {"", "\r\n", "\r"}) {
        TestTable other;
        const std::string file = kHeader + kTwoColumns + Lines("@row\n@col\none\n@col\ntwo") + end;
        TbxReader(other.model, other.host, false, Share(file)).Read();
        EXPECT_EQ(other.grid.CellValue(Row{1}, Col{1}), u"one");
        EXPECT_EQ(other.grid.CellValue(Row{1}, Col{2}), u"");
    }
}

// Kept for compatibility: tbx-last-line-dropped.
TEST_F(TbxCellsTest, TheLastLineOfAFileInsideACellIsNotAppended) {
    Read(kHeader + kTwoColumns + Lines("@row\n@col\none\ntwo\nthree"));
    EXPECT_EQ(Cells(), (Rows{{u"one\r\ntwo", u""}}));
}

TEST_F(TbxCellsTest, AMarkInTheLastLineBehindACellDoesNotAct) {
    Read(kHeader + kTwoColumns + Lines("@row\n@col\none\n?1"));
    EXPECT_EQ(Cells(), (Rows{{u"one", u""}}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    Read(kHeader + kTwoColumns + Lines("@row\n@col\none\n@row"));
    EXPECT_EQ(grid.RowCount(), Row{1});
}

TEST_F(TbxCellsTest, AMarkInTheLastLineElsewhereActs) {
    Read(kHeader + kTwoColumns + Lines("@row\n@col\none\n@row\n@row"));
    EXPECT_EQ(grid.RowCount(), Row{3});
    Read(kHeader + kTwoColumns + Lines("@row\n?1"));
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
}

TEST_F(TbxCellsTest, ACommentKeepsTheCellWaitingForItsFirstLine) {
    ReadData("@row_1\n;\n@col_1\n;\n;\nfirst\n;\nlost\n@col_2\nsecond\n");
    EXPECT_EQ(Cells(), (Rows{{u"first", u"second"}}));
}

TEST_F(TbxCellsTest, LinesOutsideOfCellsAreSkipped) {
    ReadData("@row_1\nlost\n?1\nlost\n§5\nlost\n@col_1\na\n@col_2\nb\n");
    EXPECT_EQ(Cells(), (Rows{{u"a", u"b"}}));
}

} // namespace
} // namespace korvane
