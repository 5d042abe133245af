#include "GridFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

class GridStoreFindTest : public GridTest {
protected:
    std::optional<CellPosition> Find(TextView part, int row = 1, int col = 1) const {
        return grid.FindText(part, {Row{row}, Col{col}});
    }
    static std::optional<CellPosition> At(int row, int col) { return CellPosition{Row{row}, Col{col}}; }
};

TEST_F(GridStoreFindTest, FindsRowByRowFromTheGivenCellOn) {
    Resize(3, 2);
    FillColumn(Col{1}, {u"one", u"two", u"two"});
    FillColumn(Col{2}, {u"twofold", u"", u"x two"});
    EXPECT_EQ(Find(u"two"), At(1, 2));
    EXPECT_EQ(Find(u"two", 1, 2), At(1, 2));
    EXPECT_EQ(Find(u"two", 2, 1), At(2, 1));
    EXPECT_EQ(Find(u"two", 2, 2), At(3, 1));
    EXPECT_EQ(Find(u"two", 3, 2), At(3, 2));
}

TEST_F(GridStoreFindTest, CaseCounts) {
    Resize(1, 1);
    FillColumn(Col{1}, {u"ABC"});
    EXPECT_EQ(Find(u"abc"), std::nullopt);
    EXPECT_EQ(Find(u"ABC"), At(1, 1));
}

TEST_F(GridStoreFindTest, AStartPastTheLastColumnGoesOnInTheNextRow) {
    Resize(2, 2);
    FillColumn(Col{2}, {u"x", u"x"});
    EXPECT_EQ(Find(u"x", 1, 3), At(2, 2));
    EXPECT_EQ(Find(u"x", 2, 3), std::nullopt);
    EXPECT_EQ(Find(u"x", 3, 1), std::nullopt);
}

TEST_F(GridStoreFindTest, AStartBeforeTheTableIsTheFirstCell) {
    Resize(1, 2);
    FillColumn(Col{1}, {u"x"});
    EXPECT_EQ(Find(u"x", 0, 2), At(1, 1));
    EXPECT_EQ(Find(u"x", 1, 0), At(1, 1));
    EXPECT_EQ(Find(u"x", -3, -3), At(1, 1));
}

TEST_F(GridStoreFindTest, AnEmptyTableHoldsNothing) {
    EXPECT_EQ(Find(u"x"), std::nullopt);
    EXPECT_EQ(Find(u""), std::nullopt);
    Resize(3, 0);
    EXPECT_EQ(Find(u""), std::nullopt);
}

TEST_F(GridStoreFindTest, AnEmptyTextIsInEveryCell) {
    Resize(2, 2);
    EXPECT_EQ(Find(u"", 1, 2), At(1, 2));
    EXPECT_EQ(Find(u"", 1, 3), At(2, 1));
    EXPECT_EQ(Find(u"", 2, 3), std::nullopt);
}

TEST_F(GridStoreFindTest, HiddenRowsAreSearched) {
    Resize(2, 1);
    FillColumn(Col{1}, {u"a", u"b"});
    grid.SetRowVisible(Row{2}, false);
    EXPECT_EQ(Find(u"b"), At(2, 1));
}

TEST_F(GridStoreFindTest, WhatComesBetweenTheTextsInTheFileIsNotFound) {
    Resize(2, 2);
    grid.AdoptBytes(BytesOf("@col_1\r\nab\r\n@col_2\r\ncd\r\n@row_2\r\n@col_1\r\nef\r\n@col_2\r\ncol"));
    grid.SetCellSlice(Row{1}, Col{1}, 8, 2);
    grid.SetCellSlice(Row{1}, Col{2}, 20, 2);
    grid.SetCellSlice(Row{2}, Col{1}, 40, 2);
    grid.SetCellSlice(Row{2}, Col{2}, 52, 3);
    EXPECT_EQ(Column(Col{2}), (std::vector<Text>{u"cd", u"col"}));
    EXPECT_EQ(Find(u"\r\n"), std::nullopt);
    EXPECT_EQ(Find(u"abcd"), std::nullopt);
    EXPECT_EQ(Find(u"@col"), std::nullopt);
    EXPECT_EQ(Find(u"col"), At(2, 2));
    EXPECT_EQ(Find(u"ef"), At(2, 1));
}

TEST_F(GridStoreFindTest, LoadedAndEditedTextsAreFoundAlike) {
    Resize(1, 3);
    grid.AdoptBytes(BytesOf("loaded\x80"));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 7);
    grid.SetCellValue(Row{1}, Col{2}, u"edited€");
    grid.SetCellValue(Row{1}, Col{3}, u"wide Я €");
    EXPECT_EQ(Find(u"d€"), At(1, 1));
    EXPECT_EQ(Find(u"ted"), At(1, 2));
    EXPECT_EQ(Find(u"€", 1, 3), At(1, 3));
    EXPECT_EQ(Find(u"Я"), At(1, 3));
    EXPECT_EQ(Find(u"Ю"), std::nullopt);
}

TEST_F(GridStoreFindTest, ATextOutsideThePageIsNotTakenForItsSubstitute) {
    Resize(1, 1);
    FillColumn(Col{1}, {u"why?"});
    EXPECT_EQ(Find(u"Я"), std::nullopt);
}

TEST_F(GridStoreFindTest, TextsFarApartInTheFileAreSearchedOneByOne) {
    const std::string bytes = "first" + std::string(100000, 'n') + "last";
    Resize(1, 2);
    grid.AdoptBytes(BytesOf(bytes));
    grid.SetCellSlice(Row{1}, Col{1}, 0, 5);
    grid.SetCellSlice(Row{1}, Col{2}, 100005, 4);
    EXPECT_EQ(Find(u"last"), At(1, 2));
    EXPECT_EQ(Find(u"nn"), std::nullopt);
}

TEST_F(GridStoreFindTest, RowsOutOfTheFilesOrderAreFound) {
    Resize(300, 1);
    std::string bytes;
    for (int i = 0; i < 300; ++i)
        bytes += std::to_string(1000 + i) + "\r\n";
    grid.AdoptBytes(BytesOf(bytes));
    for (int i = 0; i < 300; ++i)
        grid.SetCellSlice(Row{i + 1}, Col{1}, static_cast<std::size_t>(i) * 6, 4);
    grid.SortByColumn(Col{1}, SortOrder::Descending);
    EXPECT_EQ(Find(u"1299"), At(1, 1));
    EXPECT_EQ(Find(u"1000"), At(300, 1));
    EXPECT_EQ(Find(u"128", 2, 1), At(11, 1));
}

} // namespace
} // namespace korvane
