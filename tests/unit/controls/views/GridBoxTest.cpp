#include "controls/views/GridBox.h"

#include "controls/Form.h"
#include "grid/GridStore.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

/// A grid of two rows and two columns that writes down its events.
class GridBoxTest : public testing::Test {
protected:
    GridBoxTest() {
        box.Store().SetColCount(Col{2});
        box.Store().SetRowCount(Row{2});
        box.Store().SetCellValue(Row{1}, Col{1}, u"pear");
        box.Store().SetCellValue(Row{2}, Col{1}, u"apple");
        box.AfterEdit = [this](Row row, Col col) {
            log += "edit " + std::to_string(row.Number()) + "," + std::to_string(col.Number()) + " ";
        };
        box.HeaderClick = [this](Col col) {
            // Before the sorting.
            log += "header " + std::to_string(col.Number()) + " " + ToUtf8(First()) + " ";
        };
        box.CellClick = [this](Row row, Col) { log += "click " + std::to_string(row.Number()) + " "; };
    }
    Text First() { return box.Store().CellText(Row{1}, Col{1}); }

    ScriptedUser user;
    Form form{user, "Form", u""};
    GridBox box{form, "iGrid1", std::make_unique<GridStore>(CodePage::Windows1252())};
    std::string log;
};

TEST_F(GridBoxTest, ACommittedEditIsInTheStoreBeforeItIsTold) {
    box.AfterEdit = [this](Row, Col) { log += ToUtf8(First()); };
    box.CommitEdit(Row{1}, Col{1}, u"fig");
    EXPECT_EQ(log, "fig");
}

TEST_F(GridBoxTest, AnEditThatChangesNothingIsNone) {
    box.CommitEdit(Row{1}, Col{1}, u"pear");
    EXPECT_EQ(log, "");
}

TEST_F(GridBoxTest, AnEditOutsideTheTableHasNoEffect) {
    box.CommitEdit(Row{3}, Col{1}, u"x");
    box.CommitEdit(Row{1}, Col{3}, u"x");
    box.CommitEdit(Row{0}, Col{1}, u"x");
    EXPECT_EQ(log, "");
}

TEST_F(GridBoxTest, AClickOnTheBoxTogglesItAndCountsAsAnEdit) {
    box.Store().SetCellCheckShown(Row{2}, true);
    box.ClickCheck(Row{2});
    EXPECT_EQ(box.Store().CellCheck(Row{2}), 1);
    box.ClickCheck(Row{2});
    EXPECT_EQ(box.Store().CellCheck(Row{2}), 0);
    EXPECT_EQ(log, "edit 2,1 edit 2,1 ");
}

TEST_F(GridBoxTest, ABoxThatIsntShownCannotBeClicked) {
    box.Store().SetCellCheckShown(Row{1}, false);
    box.ClickCheck(Row{1});
    box.ClickCheck(Row{9});
    EXPECT_EQ(log, "");
}

TEST_F(GridBoxTest, AHeaderClickSortsWhenTheHandlerAllowsIt) {
    box.ClickHeader(Col{1});
    EXPECT_EQ(First(), u"pear");
    box.Store().SetSortOnHeaderClick(true);
    box.ClickHeader(Col{1});
    EXPECT_EQ(First(), u"apple");
    EXPECT_EQ(log, "header 1 pear header 1 pear ");
}

TEST_F(GridBoxTest, ASecondClickTurnsTheOrderRoundAndAnotherColumnStartsAgain) {
    box.Store().SetSortOnHeaderClick(true);
    box.ClickHeader(Col{1});
    box.ClickHeader(Col{1});
    EXPECT_EQ(First(), u"pear");
    box.ClickHeader(Col{1});
    EXPECT_EQ(First(), u"apple");
    box.Store().SetCellValue(Row{1}, Col{2}, u"z");
    box.Store().SetCellValue(Row{2}, Col{2}, u"a");
    box.ClickHeader(Col{2});
    EXPECT_EQ(First(), u"pear");
}

TEST_F(GridBoxTest, AClickMakesTheCellTheCurrentOne) {
    box.ClickCell(Row{2}, Col{2});
    EXPECT_EQ(box.Store().CurRow(), Row{2});
    EXPECT_EQ(box.Store().CurCol(), Col{2});
    box.ClickCell(Row{3}, Col{1});
    EXPECT_EQ(box.Store().CurRow(), Row{2});
    EXPECT_EQ(log, "click 2 ");
}

TEST_F(GridBoxTest, EachChangeByTheUserIsToldWhenAllOfItHasHappened) {
    box.AfterChange = [this] { log += "change " + ToUtf8(First()) + " "; };
    box.CommitEdit(Row{1}, Col{1}, u"plum");
    EXPECT_EQ(log, "edit 1,1 change plum ");
    log.clear();
    box.Store().SetSortOnHeaderClick(true);
    box.ClickHeader(Col{1});
    EXPECT_EQ(log, "header 1 plum change apple ");
    log.clear();
    box.Store().SetCellCheckShown(Row{1}, true);
    box.ClickCheck(Row{1});
    EXPECT_EQ(log, "edit 1,1 change apple ");
}

TEST_F(GridBoxTest, ADraggedColumnIsToldOnceItIsLetGoOf) {
    int changes = 0;
    box.AfterChange = [&changes] { ++changes; };
    box.DragColumn(Col{1}, 50);
    box.DragColumn(Col{1}, 51);
    EXPECT_EQ(changes, 0);
    box.ReleaseColumn();
    box.ReleaseColumn();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.Store().ColWidth(Col{1}), 51);
}

TEST_F(GridBoxTest, AStepGoesFromCellToCellThroughTheRowsThatAreShown) {
    box.Store().SetRowCount(Row{4});
    box.Store().SetRowVisible(Row{2}, false);
    box.Store().SetCurRow(Row{1});
    box.Store().SetCurCol(Col{2});
    box.StepCell(1);
    EXPECT_EQ(box.Store().CurRow(), Row{3});
    EXPECT_EQ(box.Store().CurCol(), Col{1});
    box.StepCell(-1);
    EXPECT_EQ(box.Store().CurRow(), Row{1});
    EXPECT_EQ(box.Store().CurCol(), Col{2});
    box.StepCell(-1);
    box.StepCell(-1);
    EXPECT_EQ(box.Store().CurRow(), Row{1});
    EXPECT_EQ(box.Store().CurCol(), Col{1});
}

TEST_F(GridBoxTest, AStepPastTheLastCellIsTold) {
    box.PastEnd = [this] { log += "end "; };
    box.Store().SetCurRow(Row{2});
    box.Store().SetCurCol(Col{2});
    box.StepCell(1);
    EXPECT_EQ(log, "end ");
    EXPECT_EQ(box.Store().CurCol(), Col{2});
    box.PastEnd = nullptr;
    box.StepCell(1);
    box.Store().SetColCount(Col{0});
    box.StepCell(1);
    EXPECT_EQ(log, "end ");
}

TEST_F(GridBoxTest, WhatIsNoCellIsNeitherWrittenNorTold) {
    box.CommitEdit(Row{3}, Col{1}, u"x");
    box.CommitEdit(Row{1}, Col{3}, u"x");
    box.ClickCell(Row{3}, Col{1});
    box.ClickCell(Row{1}, Col{3});
    box.ClickCheck(Row{3});
    box.ClickHeader(Col{3});
    EXPECT_EQ(log, "");
    EXPECT_EQ(First(), u"pear");
    EXPECT_EQ(box.Store().RowCount(), Row{2});
}

TEST_F(GridBoxTest, WithoutAListenerTheGridIsChangedAllTheSame) {
    box.AfterEdit = nullptr;
    box.HeaderClick = nullptr;
    box.CellClick = nullptr;
    box.CommitEdit(Row{1}, Col{1}, u"zebra");
    EXPECT_EQ(First(), u"zebra");
    box.Store().SetCellCheckShown(Row{1}, true);
    box.ClickCheck(Row{1});
    EXPECT_EQ(box.Store().CellCheck(Row{1}), 1);
    box.ClickCell(Row{2}, Col{2});
    EXPECT_EQ(box.Store().CurRow(), Row{2});
    EXPECT_EQ(box.Store().CurCol(), Col{2});
    box.Store().SetSortOnHeaderClick(true);
    box.ClickHeader(Col{1});
    EXPECT_EQ(First(), u"apple");
}

} // namespace
} // namespace korvane
