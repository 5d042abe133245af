#include "GridFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

/// Writes down what a listener hears.
class Protocol final : public GridListener {
public:
    void RowsChanged(Row first, Row last) override {
        Add("rows " + std::to_string(first.Number()) + "-" + std::to_string(last.Number()));
    }
    void TableChanged() override { Add("table"); }
    void ColumnChanged(Col col) override { Add("column " + std::to_string(col.Number())); }
    void LookChanged() override { Add("look"); }
    void CurrentCellChanged() override { Add("current"); }
    void FocusWanted() override { Add("focus"); }
    void RowWantedInView(Row row) override { Add("view " + std::to_string(row.Number())); }

    std::vector<std::string> Take() { return std::exchange(lines_, {}); }

private:
    void Add(std::string line) { lines_.push_back(std::move(line)); }
    std::vector<std::string> lines_;
};

using Lines = std::vector<std::string>;

class GridStoreListenerTest : public GridTest {
protected:
    GridStoreListenerTest() {
        Resize(3, 2);
        grid.AdoptBytes(BytesOf("abc"));
        grid.SetListener(&protocol);
    }
    Lines Heard() { return protocol.Take(); }

    Protocol protocol;
};

TEST_F(GridStoreListenerTest, TextsLooksAndChecksTellTheirRow) {
    const auto expectRowTwo = [this](const char* what) { EXPECT_EQ(Heard(), Lines{"rows 2-2"}) << what; };
    grid.SetCellValue(Row{2}, Col{1}, u"x");
    expectRowTwo("value");
    grid.SetCellSlice(Row{2}, Col{1}, 0, 3);
    expectRowTwo("slice");
    grid.SetCellBackColor(Row{2}, Col{1}, Colour{1});
    expectRowTwo("back");
    grid.SetCellForeColor(Row{2}, Col{1}, Colour{1});
    expectRowTwo("fore");
    grid.SetCellFontFlag(Row{2}, Col{1}, CellFlag::Bold, true);
    expectRowTwo("flag");
    grid.SetRowBackColor(Row{2}, Colour{2});
    expectRowTwo("row back");
    grid.SetRowForeColor(Row{2}, Colour{2});
    expectRowTwo("row fore");
    grid.SetRowFontFlag(Row{2}, CellFlag::Italic, true);
    expectRowTwo("row flag");
    grid.SetCellCheck(Row{2}, 1);
    expectRowTwo("check");
    grid.SetCellCheckShown(Row{2}, true);
    expectRowTwo("check shown");
}

TEST_F(GridStoreListenerTest, ShapeVisibilityHeightAndOrderTellTheTable) {
    const auto expectTable = [this](const char* what) { EXPECT_EQ(Heard(), Lines{"table"}) << what; };
    grid.SetRowCount(Row{4});
    expectTable("rows");
    grid.SetColCount(Col{3});
    expectTable("columns");
    grid.AddCol(u"4no", u"");
    expectTable("add");
    grid.RemoveCol(Col{1});
    expectTable("remove");
    grid.SetRowVisible(Row{1}, false);
    expectTable("hide");
    grid.SetRowHeight(Row{1}, 30);
    expectTable("height");
    grid.SetCellValue(Row{1}, Col{1}, u"z");
    grid.SetCellValue(Row{2}, Col{1}, u"a");
    Heard();
    grid.SortByColumn(Col{1}, SortOrder::Ascending);
    expectTable("sort");
    grid.GridRefresh();
    expectTable("refresh");
}

TEST_F(GridStoreListenerTest, AChangeThatIsTakenBackTellsWhatItTold) {
    const auto takenBack = [this](const auto& change) {
        grid.NoteChanges(true);
        change();
        const auto changes = grid.TakeNotedChanges();
        Heard();
        grid.TurnChanges(*changes);
        return Heard();
    };
    EXPECT_EQ(takenBack([this] { grid.SetRowVisible(Row{2}, false); }), Lines{"table"});
    grid.SetRowHeight(Row{2}, 30);
    EXPECT_EQ(takenBack([this] { grid.SetRowHeight(Row{2}, 40); }), Lines{"table"});
    EXPECT_EQ(takenBack([this] { grid.SetCellCheck(Row{2}, 1); }), Lines{"rows 2-2"});
    EXPECT_EQ(takenBack([this] { grid.SetCellBackColor(Row{2}, Col{1}, Colour{1}); }), Lines{"rows 2-2"});
    EXPECT_EQ(takenBack([this] { grid.SetRowBackColor(Row{2}, Colour{1}); }), Lines{"rows 2-2"});
    EXPECT_EQ(takenBack([this] { grid.SetColWidth(Col{1}, 5); }), Lines{"column 1"});
    EXPECT_EQ(takenBack([this] { grid.SetGridFontSize(7); }), Lines{"look"});
}

TEST_F(GridStoreListenerTest, CaptionAndWidthTellTheColumn) {
    grid.SetColHeaderText(Col{2}, u"x");
    EXPECT_EQ(Heard(), Lines{"column 2"});
    grid.SetColWidth(Col{1}, 5);
    EXPECT_EQ(Heard(), Lines{"column 1"});
}

TEST_F(GridStoreListenerTest, TheWholeTablesLookTellsTheLook) {
    grid.SetGridBackColor(Colour{1});
    grid.SetGridForeColor(Colour{1});
    grid.SetGridFontName(u"Arial");
    grid.SetGridFontSize(9);
    grid.SetGridVisible(false);
    EXPECT_EQ(Heard(), Lines(5, "look"));
}

TEST_F(GridStoreListenerTest, TheCurrentCellFocusAndViewAreTold) {
    grid.SetCurRow(Row{1});
    grid.SetCurCol(Col{2});
    grid.GridSetFocus();
    grid.EnsureRowVisible(Row{3});
    EXPECT_EQ(Heard(), (Lines{"current", "current", "focus", "view 3"}));
}

TEST_F(GridStoreListenerTest, AShrinkingTableTellsThatItTookTheCurrentCellAlong) {
    grid.SetCurRow(Row{3});
    Heard();
    grid.SetRowCount(Row{2});
    EXPECT_EQ(Heard(), (Lines{"current", "table"}));
    grid.SetRowCount(Row{3});
    EXPECT_EQ(Heard(), Lines{"table"});
}

TEST_F(GridStoreListenerTest, WhatChangesNothingIsNotTold) {
    grid.SetRowBackColor(Row{1}, kNoColour);
    grid.SetCellBackColor(Row{1}, Col{1}, kNoColour);
    grid.SetCellFontFlag(Row{1}, Col{1}, CellFlag::Bold, false);
    grid.SetRowFontFlag(Row{1}, CellFlag::Bold, false);
    grid.SetCellColourMode(Row{1}, Col{1}, 1);
    grid.SetRowColourMode(Row{1}, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"");
    grid.SetCellCheck(Row{1}, 0);
    grid.SetCellCheckShown(Row{1}, false);
    grid.SetRowVisible(Row{1}, true);
    grid.SetRowHeight(Row{1}, 24);
    grid.SetRowCount(Row{3});
    grid.SetColCount(Col{2});
    grid.SetColHeaderText(Col{1}, u"");
    grid.SetColWidth(Col{1}, grid.ColWidth(Col{1}));
    grid.SetGridVisible(true);
    grid.SetCurRow(Row{9});
    grid.EnsureRowVisible(Row{9});
    grid.SortByColumn(Col{1}, SortOrder::Ascending);
    grid.SetSortOnHeaderClick(true);
    EXPECT_EQ(Heard(), Lines{});
}

TEST_F(GridStoreListenerTest, AnEqualTextOrLookIsNotToldAgain) {
    grid.SetCellValue(Row{1}, Col{1}, u"x€Я");
    grid.SetCellValue(Row{1}, Col{2}, u"x€");
    grid.SetCellBackColor(Row{1}, Col{1}, Colour{3});
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{3});
    Heard();
    grid.SetCellValue(Row{1}, Col{1}, u"x€Я");
    grid.SetCellValue(Row{1}, Col{2}, u"x€");
    grid.SetRowBackColor(Row{1}, Colour{3});
    EXPECT_EQ(Heard(), Lines{});
}

TEST_F(GridStoreListenerTest, ABracketTellsOnceAtItsEnd) {
    grid.GridBeginUpdate();
    grid.SetCellValue(Row{1}, Col{1}, u"x");
    grid.SetRowCount(Row{9});
    grid.SetGridVisible(false);
    grid.SetCurRow(Row{2});
    EXPECT_EQ(Heard(), Lines{});
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), Lines{"table"});
}

TEST_F(GridStoreListenerTest, BracketsNest) {
    grid.GridBeginUpdate();
    grid.GridBeginUpdate();
    grid.SetCellValue(Row{1}, Col{1}, u"x");
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), Lines{});
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), Lines{"table"});
}

TEST_F(GridStoreListenerTest, ABracketWithoutAChangeTellsNothing) {
    grid.GridBeginUpdate();
    grid.SetCellCheck(Row{1}, 0);
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), Lines{});
}

TEST_F(GridStoreListenerTest, AnEndWithoutABeginHasNoEffect) {
    grid.GridEndUpdate();
    grid.GridBeginUpdate();
    grid.SetCellCheck(Row{1}, 1);
    EXPECT_EQ(Heard(), Lines{});
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), Lines{"table"});
}

TEST_F(GridStoreListenerTest, ARowWantedInViewWithinABracketIsShownAfterIt) {
    grid.GridBeginUpdate();
    grid.SetRowCount(Row{9});
    grid.EnsureRowVisible(Row{9});
    grid.GridEndUpdate();
    EXPECT_EQ(Heard(), (Lines{"table", "view 9"}));
}

TEST_F(GridStoreListenerTest, TheFocusClosesABracketThatAStoppedLoadLeftOpen) {
    grid.GridBeginUpdate();
    grid.GridBeginUpdate();
    grid.SetCellCheck(Row{1}, 1);
    grid.GridSetFocus();
    EXPECT_EQ(Heard(), (Lines{"table", "focus"}));
    grid.SetCellCheck(Row{1}, 0);
    EXPECT_EQ(Heard(), Lines{"rows 1-1"});
}

TEST_F(GridStoreListenerTest, ALeavingListenerHearsNothingMore) {
    grid.SetListener(nullptr);
    grid.SetCellCheck(Row{1}, 1);
    grid.GridSetFocus();
    grid.EnsureRowVisible(Row{1});
    EXPECT_EQ(Heard(), Lines{});
}

} // namespace
} // namespace korvane
