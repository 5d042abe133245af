#include "dbops/commands/RowCommands.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmRowColour.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kFile = u"C:\\Data\\a.tbx";
constexpr int kCtrlShift = Mask::Ctrl | Mask::Shift;

/// A table of three rows and two columns on a tab, and what a save would write of it.
class UndoTest : public testing::Test {
protected:
    UndoTest() {
        p.files.AddFile(
            kFile, TableBytes(kFile, {"Name", "Kind"}, {{"pear", "x"}, {"apple", "y x"}, {"fig", "z x"}}));
        Settings settings;
        settings.AllowSorting = 1;
        p.StartWith(settings, kFile);
        first_ = Save();
    }
    frmMDIChild& Tab() { return p.Tab(1); }
    Grid& Store() { return Tab().GridStore(); }
    void GoTo(int row, int col) {
        Store().SetCurRow(Row{row});
        Store().SetCurCol(Col{col});
    }
    Text Cell(int row, int col) { return Store().CellText(Row{row}, Col{col}); }
    bool Undo() { return p.PressKey('Z', Mask::Ctrl); }
    bool Redo() { return p.PressKey('Z', kCtrlShift); }
    /// A save takes the height of the current row for the file, so it is always the same one.
    std::string Save() {
        GoTo(1, 1);
        p.Choose("mnuFile_Save");
        return p.FileBytes(kFile);
    }
    /// Checks that what was done since the table was loaded is one step.
    void ExpectOneStep() {
        const std::string after = Save();
        EXPECT_NE(after, first_);
        EXPECT_TRUE(Undo());
        EXPECT_EQ(Tab().Table().TableAltered, 1);
        EXPECT_EQ(Save(), first_);
        EXPECT_TRUE(Redo());
        EXPECT_EQ(Tab().Table().TableAltered, 1);
        EXPECT_EQ(Save(), after);
        Undo();
        Undo();
        EXPECT_EQ(Save(), first_);
    }

    TestProgram p;
    std::string first_;
};

TEST_F(UndoTest, AnEditInACellIsOneStep) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    ExpectOneStep();
}

TEST_F(UndoTest, AClickOnABoxIsOneStep) {
    Tab().iGrid1.ClickCheck(Row{2});
    ExpectOneStep();
}

TEST_F(UndoTest, ABlockThatIsPastedIsOneStep) {
    GoTo(2, 1);
    p.clipboard.SetText(u"1\t2\n3\t4\n5\t6");
    EXPECT_TRUE(p.PressKey('V', Mask::Ctrl));
    EXPECT_EQ(Cell(4, 2), u"6");
    ExpectOneStep();
}

TEST_F(UndoTest, ACellThatIsCutOrEmptiedIsOneStep) {
    GoTo(2, 1);
    EXPECT_TRUE(p.PressKey('X', Mask::Ctrl));
    ExpectOneStep();
    GoTo(2, 2);
    EXPECT_TRUE(p.PressKey(Key::Delete));
    ExpectOneStep();
}

TEST_F(UndoTest, ARowThatIsAddedByGoingOnIsOneStep) {
    GoTo(3, 2);
    Tab().iGrid1.StepCell(1);
    ExpectOneStep();
}

TEST_F(UndoTest, ASortByAHeaderIsOneStep) {
    Tab().iGrid1.ClickHeader(Col{1});
    ExpectOneStep();
}

TEST_F(UndoTest, AWidthThatWasDraggedIsOneStep) {
    for (int width = 240; width < 300; ++width)
        Tab().iGrid1.DragColumn(Col{1}, width);
    Tab().iGrid1.ReleaseColumn();
    ExpectOneStep();
}

TEST_F(UndoTest, TheSliderIsOneStepFromItsFirstMoveToItsRelease) {
    for (const int height : {30, 60, 90})
        Tab().ZoomSlider.MoveTo(height);
    Tab().ZoomSlider.Release();
    ExpectOneStep();
    EXPECT_EQ(Tab().ZoomSlider.Value, 24);
    EXPECT_EQ(Tab().txtRowHeight.Text.Get(), u"24");
}

TEST_F(UndoTest, ATypedRowHeightIsOneStep) {
    Tab().txtRowHeight.Text = u"77";
    KeyEvent key{Key::Return, kCtrlShift};
    Tab().txtRowHeight.KeyDown(key);
    ExpectOneStep();
}

TEST_F(UndoTest, RowsAndColumnsAreOneStepEach) {
    p.Choose("mnuEdit_AddOneRow");
    ExpectOneStep();
    GoTo(1, 1);
    p.Choose("mnuEdit_InsertColumn");
    ExpectOneStep();
    GoTo(1, 1);
    p.user.Answer(Answer::Yes);
    p.Choose("mnuEdit_DeleteColumn");
    ExpectOneStep();
    GoTo(1, 1);
    Tab().Run(&mnuRowDown_Clack);
    ExpectOneStep();
}

TEST_F(UndoTest, ColumnNamesComeBackWithAnInsertedColumn) {
    GoTo(1, 1);
    p.Choose("mnuEdit_InsertColumn");
    EXPECT_EQ(Tab().Table().ColumnNames[Col{1}], u"NEW");
    Undo();
    EXPECT_EQ(Tab().Table().ColumnNames[Col{1}], u"Name");
}

TEST_F(UndoTest, AMarkForDeletionGivesTheTextBackThatItDestroyed) {
    GoTo(2, 1);
    p.user.Answer(Answer::Yes);
    p.Choose("mnuEdit_Delete");
    ExpectOneStep();
    EXPECT_EQ(Cell(2, 1), u"apple");
}

TEST_F(UndoTest, TicksColoursAndFlagsAreOneStepEach) {
    p.user.Answer(Answer::Yes);
    p.Choose("mnuSelAll_TickBoxes");
    ExpectOneStep();
    p.PressKey('R', Mask::Ctrl | Mask::Alt);
    ExpectOneStep();
    p.PressKey('B', kCtrlShift);
    ExpectOneStep();
    p.user.ChooseColour(Colour{0x123456});
    p.Choose("mnuFormat_BColor");
    ExpectOneStep();
}

TEST_F(UndoTest, AFilterIsOneStep) {
    p.user.On<frmRowColour>([](frmRowColour& window) { window.cmdFilterToAttribute.Press(); });
    p.user.Answer(Answer::Ok);
    p.Choose("mnuFormat_RowColour");
    EXPECT_FALSE(Store().RowVisible(Row{1}));
    Undo();
    EXPECT_TRUE(Store().RowVisible(Row{1}));
    Redo();
    EXPECT_FALSE(Store().RowVisible(Row{1}));
}

TEST_F(UndoTest, EachReplacementIsAStepThoughTheWindowStands) {
    GoTo(1, 2);
    p.user.On<frmFindReplace>([](frmFindReplace& window) {
        window.Text1.Text = u"x";
        window.Text2.Text = u"!";
        window.cmdReplaceButton.Press();
        window.cmdReplaceButton.Press();
        window.cmdCancel.Press();
    });
    p.Choose("mnuEdit_Replace");
    EXPECT_EQ(Cell(3, 2), u"z !");
    Undo();
    EXPECT_EQ(Cell(3, 2), u"z x");
    EXPECT_EQ(Cell(2, 2), u"y !");
    Undo();
    EXPECT_EQ(Save(), first_);
}

TEST_F(UndoTest, AButtonOfADialogThatRunsACommandIsAStep) {
    p.user.On<frmRowColour>([](frmRowColour& window) {
        window.cmdBold.Press();
        window.cmdItalic.Press();
        window.cmdCancel.Press();
    });
    p.Choose("mnuFormat_RowColour");
    Undo();
    EXPECT_TRUE(Store().CellFontFlag(Row{1}, Col{1}, CellFlag::Bold));
    EXPECT_FALSE(Store().CellFontFlag(Row{1}, Col{1}, CellFlag::Italic));
    Undo();
    EXPECT_FALSE(Store().CellFontFlag(Row{1}, Col{1}, CellFlag::Bold));
}

TEST_F(UndoTest, ACommandThatChangesNothingIsNoStep) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    p.Choose("mnuFile_Save");
    GoTo(3, 1);
    Tab().Run(&mnuRowDown_Clack);
    p.user.Answer(Answer::No);
    p.Choose("mnuEdit_DeleteColumn");
    Undo();
    EXPECT_EQ(Cell(2, 1), u"apple");
}

TEST_F(UndoTest, SavingKeepsTheHistory) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    p.Choose("mnuFile_Save");
    EXPECT_EQ(Tab().Table().TableAltered, 0);
    Undo();
    EXPECT_EQ(Cell(2, 1), u"apple");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(UndoTest, AfterALoadThereIsNothingToUndo) {
    EXPECT_TRUE(Undo());
    EXPECT_TRUE(Redo());
    EXPECT_EQ(Tab().Table().TableAltered, 0);
    EXPECT_EQ(Save(), first_);
}

TEST_F(UndoTest, EachTabHasItsOwnHistory) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    p.AddTable(u"C:\\Data\\b.tbx", {"one"});
    p.Open(u"C:\\Data\\b.tbx");
    p.Tab(2).iGrid1.CommitEdit(Row{1}, Col{1}, u"two");
    Undo();
    EXPECT_EQ(p.Tab(2).GridStore().CellText(Row{1}, Col{1}), u"one");
    EXPECT_EQ(Cell(2, 1), u"plum");
}

TEST_F(UndoTest, TheCurrentCellGoesToWhatWasUndone) {
    GoTo(3, 2);
    Tab().iGrid1.CommitEdit(Row{3}, Col{2}, u"plum");
    GoTo(1, 1);
    Undo();
    EXPECT_EQ(Store().CurRow(), Row{3});
    EXPECT_EQ(Store().CurCol(), Col{2});
}

TEST_F(UndoTest, BackAtTheSavedStateTheTableIsNotAlteredAnyMore) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    Tab().iGrid1.CommitEdit(Row{3}, Col{1}, u"date");
    Undo();
    EXPECT_EQ(Tab().Table().TableAltered, 1);
    Undo();
    EXPECT_EQ(Tab().Table().TableAltered, 0);
    Redo();
    EXPECT_EQ(Tab().Table().TableAltered, 1);
    Save();
    EXPECT_EQ(Tab().Table().TableAltered, 0);
    Undo();
    EXPECT_EQ(Tab().Table().TableAltered, 1);
    Redo();
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

TEST_F(UndoTest, AStateThatIsNoLongerReachedIsNotTakenForTheSavedOne) {
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"plum");
    Save();
    Undo();
    Tab().iGrid1.CommitEdit(Row{2}, Col{1}, u"date");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
    Undo();
    Redo();
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

} // namespace
} // namespace korvane
