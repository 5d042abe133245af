#include "GridFixtures.h"
#include "grid/Grid.h"
#include "grid/TextHandle.h"

namespace korvane {
namespace {

class GridStoreTextsTest : public GridTest {};

TEST_F(GridStoreTextsTest, TextsInsideAndOutsideTheCodePageComeBack) {
    Resize(1, 1);
    for (const TextView text : {u"plain", u"grün €", u"Привет", u"a\r\nb", u"", u"😀"}) {
        grid.SetCellValue(Row{1}, Col{1}, text);
        EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), text);
        EXPECT_EQ(grid.CellText(Row{1}, Col{1}), text);
    }
}

TEST_F(GridStoreTextsTest, TextsShiftRightOverThoseOfTheLastColumn) {
    Resize(2, 3);
    FillColumn(Col{1}, {u"a", u"d"});
    FillColumn(Col{2}, {u"b", u""});
    FillColumn(Col{3}, {u"c", u"f"});
    grid.ShiftTextsRight(Col{2});
    EXPECT_EQ(Column(Col{1}), (std::vector<Text>{u"a", u"d"}));
    EXPECT_EQ(Column(Col{2}), (std::vector<Text>{u"", u""}));
    EXPECT_EQ(Column(Col{3}), (std::vector<Text>{u"b", u""}));
}

TEST_F(GridStoreTextsTest, NothingShiftsFromAColumnThatIsNotThere) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"a");
    grid.ShiftTextsRight(Col{0});
    grid.ShiftTextsRight(Col{2});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"a");
}

TEST_F(GridStoreTextsTest, TheLengthOfTextsIsCountedInCharacters) {
    Resize(2, 3);
    grid.SetCellValue(Row{1}, Col{1}, u"5 €");
    grid.SetCellValue(Row{1}, Col{2}, Text((std::size_t{1} << 22) + 5, u'x'));
    grid.SetCellValue(Row{1}, Col{3}, u"aЯ");
    EXPECT_EQ(grid.TextLength(Row{1}, std::vector{Col{1}, Col{3}}), 5u);
    EXPECT_EQ(grid.TextLength(Row{1}, std::vector{Col{2}}), (std::size_t{1} << 22) + 5);
    EXPECT_EQ(grid.TextLength(Row{2}, std::vector{Col{1}, Col{2}, Col{3}}), 0u);
    EXPECT_EQ(grid.TextLength(Row{1}, std::vector{Col{0}, Col{4}}), 0u);
    EXPECT_EQ(grid.TextLength(Row{3}, std::vector{Col{1}}), 0u);
}

TEST_F(GridStoreTextsTest, CellBytesGivesTheBytesOfThePage) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"5 €");
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1}), "5 \x80");
}

TEST_F(GridStoreTextsTest, BytesThatAreSetAreTheTextOfThePage) {
    Resize(1, 1);
    grid.NoteChanges(true);
    grid.SetCellBytes(Row{1}, Col{1}, "5 \x80");
    EXPECT_EQ(grid.CellText(Row{1}, Col{1}), u"5 €");
    grid.SetCellBytes(Row{2}, Col{1}, "x");
    grid.SetCellBytes(Row{1}, Col{1}, "");
    EXPECT_EQ(grid.CellText(Row{1}, Col{1}), u"");
}

TEST_F(GridStoreTextsTest, CellBytesGivesNothingForATextThePageCannotHold) {
    Resize(1, 2);
    grid.SetCellValue(Row{1}, Col{1}, u"aЯ");
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1}), std::nullopt);
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{2}), "");
}

TEST_F(GridStoreTextsTest, ThePageIsTheOneItWasMadeWith) {
    GridStore cyrillic(*CodePage::ForNumber(1251));
    EXPECT_EQ(cyrillic.Page().Number(), 1251);
    cyrillic.SetColCount(Col{1});
    cyrillic.SetRowCount(Row{1});
    cyrillic.SetCellValue(Row{1}, Col{1}, u"Я");
    EXPECT_EQ(cyrillic.CellBytes(Row{1}, Col{1}), "\xDF");
}

TEST_F(GridStoreTextsTest, ASliceIsAPartOfTheAdoptedBytes) {
    Resize(1, 3);
    grid.AdoptBytes(BytesOf("abc\x80"
                            "def"));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 3);
    grid.SetCellSlice(Row{1}, Col{2}, 3, 4);
    grid.SetCellSlice(Row{1}, Col{3}, 7, 0);
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"abc");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{2}), u"€def");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{3}), u"");
}

TEST_F(GridStoreTextsTest, ASlicePointsIntoTheSharedBytesThemselves) {
    Resize(1, 1);
    const SharedBytes bytes = BytesOf("abc");
    grid.AdoptBytes(bytes);
    grid.SetCellSlice(Row{1}, Col{1}, 1, 2);
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1})->data(), bytes.data.get() + 1);
}

TEST_F(GridStoreTextsTest, ASlicePastTheAdoptedBytesHasNoEffect) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"kept");
    grid.SetCellSlice(Row{1}, Col{1}, 0, 1);
    grid.AdoptBytes(BytesOf("abc"));
    grid.SetCellSlice(Row{1}, Col{1}, 4, 0);
    grid.SetCellSlice(Row{1}, Col{1}, 2, 2);
    grid.SetCellSlice(Row{1}, Col{1}, 1, static_cast<std::size_t>(-1));
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"kept");
}

TEST_F(GridStoreTextsTest, ASliceCanBeEditedLikeAnyText) {
    Resize(1, 2);
    grid.AdoptBytes(BytesOf("abcdef"));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 3);
    grid.SetCellSlice(Row{1}, Col{2}, 3, 3);
    grid.SetCellValue(Row{1}, Col{1}, u"longer than before");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"longer than before");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{2}), u"def");
}

TEST_F(GridStoreTextsTest, TextsOfAnEarlierFileSurviveTheNextOne) {
    Resize(2, 1);
    grid.AdoptBytes(BytesOf("old"));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 3);
    grid.AdoptBytes(BytesOf("new"));
    grid.SetCellSlice(Row{2}, Col{1}, 0, 3);
    EXPECT_EQ(Column(Col{1}), (std::vector<Text>{u"old", u"new"}));
}

TEST_F(GridStoreTextsTest, ATextTooLongForAHandleIsKeptAllTheSame) {
    const std::size_t size = TextHandle::kMaxLength + 7;
    const std::string bytes = "<" + std::string(size, 'b') + "end>";
    Resize(3, 1);
    grid.AdoptBytes(BytesOf(bytes));
    grid.SetCellSlice(Row{1}, Col{1}, 1, size + 3);
    grid.SetCellValue(Row{2}, Col{1}, Text(size, u'c'));
    grid.SetCellValue(Row{3}, Col{1}, Text(size, u'Я'));
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1}), std::string(size, 'b') + "end");
    EXPECT_EQ(grid.CellValue(Row{2}, Col{1}), Text(size, u'c'));
    EXPECT_EQ(grid.CellValue(Row{3}, Col{1}), Text(size, u'Я'));
    EXPECT_EQ(grid.FindText(u"bend", {Row{1}, Col{1}}), (CellPosition{Row{1}, Col{1}}));
    EXPECT_EQ(grid.FindText(u"ЯЯ", {Row{1}, Col{1}}), (CellPosition{Row{3}, Col{1}}));
    grid.SortByColumn(Col{1}, SortOrder::Descending);
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), Text(size, u'Я'));
    grid.SetCellValue(Row{1}, Col{1}, u"short");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"short");
    EXPECT_EQ(grid.CellValue(Row{2}, Col{1}), Text(size, u'c'));
}

TEST_F(GridStoreTextsTest, AllByteValuesComeBackAsBytesAndAsText) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    Resize(2, 1);
    grid.AdoptBytes(BytesOf(bytes));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 256);
    grid.SetCellValue(Row{2}, Col{1}, grid.CellValue(Row{1}, Col{1}));
    EXPECT_EQ(grid.CellBytes(Row{1}, Col{1}), bytes);
    EXPECT_EQ(grid.CellBytes(Row{2}, Col{1}), bytes);
}

} // namespace
} // namespace korvane
