#include "context/exchange/ListerRequest.h"
#include "dbops/commands/ColumnCommands.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "support/HandlerFailure.h"
#include "support/TestProgram.h"
#include "table/TableFile.h"
#include "text/frmViewAndPaste.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kFile = u"C:\\Data\\a.tbx";

class TabTest : public testing::Test {
protected:
    TabTest() { p.AddTable(kFile, {"pear", "apple"}); }
    void Start(const Settings& settings = {}) { p.StartWith(settings, kFile); }
    frmMDIChild& Tab() { return p.Tab(1); }
    Text Cell(int row) { return Tab().GridStore().CellText(Row{row}, Col{1}); }

    TestProgram p;
};

TEST_F(TabTest, AnEditAltersTheTable) {
    Start();
    EXPECT_EQ(Tab().Table().TableAltered, 0);
    Tab().iGrid1.CommitEdit(Row{1}, Col{1}, u"plum");
    EXPECT_EQ(Cell(1), u"plum");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(TabTest, ATickAltersTheTable) {
    Start();
    Tab().iGrid1.ClickCheck(Row{2});
    EXPECT_EQ(Tab().GridStore().CellCheck(Row{2}), 1);
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(TabTest, AHeaderClickSortsAndAltersWhenSortingIsAllowed) {
    Settings settings;
    settings.AllowSorting = 1;
    Start(settings);
    Tab().iGrid1.ClickHeader(Col{1});
    EXPECT_EQ(Cell(1), u"apple");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(TabTest, AHeaderClickDoesNothingWhenSortingIsntAllowed) {
    Start();
    Tab().iGrid1.ClickHeader(Col{1});
    EXPECT_EQ(Cell(1), u"pear");
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

// Kept for compatibility: sorting-stays-on.
TEST_F(TabTest, SortingThatIsSwitchedOffStaysOnInAnOpenTab) {
    Settings settings;
    settings.AllowSorting = 1;
    Start(settings);
    Tab().iGrid1.ClickHeader(Col{1});
    p.app.Settings.AllowSorting = 0;
    Tab().Table().TableAltered = 0;
    Tab().iGrid1.ClickHeader(Col{1});
    EXPECT_EQ(Cell(1), u"pear");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(TabTest, GoingOnFromTheLastCellAddsARow) {
    Start();
    Tab().GridStore().SetRowHeight(Row{2}, 40);
    Tab().GridStore().SetCurRow(Row{2});
    Tab().iGrid1.StepCell(1);
    EXPECT_EQ(Tab().GridStore().RowCount(), Row{3});
    EXPECT_EQ(Tab().GridStore().CurRow(), Row{3});
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{3}), 40);
    EXPECT_TRUE(Tab().GridStore().CellCheckShown(Row{3}));
    EXPECT_EQ(Tab().Table().TableAltered, 1);
}

TEST_F(TabTest, GoingOnInATableThatIsFullStays) {
    Start();
    Tab().GridStore().SetRowCount(kMaxRows);
    Tab().GridStore().SetCurRow(kMaxRows);
    Tab().iGrid1.StepCell(1);
    EXPECT_EQ(Tab().GridStore().CurRow(), kMaxRows);
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

TEST_F(TabTest, AKeyGoesToTheBoxForTheTextToFindAndEscBack) {
    Start();
    Tab().txtFindString.Text = u"pear";
    Tab().txtFindString.SelStart = 4;
    EXPECT_TRUE(p.PressKey('F', Mask::Ctrl | Mask::Shift));
    EXPECT_EQ(Tab().Focused(), &Tab().txtFindString);
    EXPECT_EQ(Tab().txtFindString.SelText(), u"pear");
    const FocusCounter focus(Tab().GridStore());
    KeyEvent escape{Key::Escape, Mask::None};
    Tab().txtFindString.KeyDown(escape);
    EXPECT_TRUE(escape.consumed);
    EXPECT_EQ(focus.Count(), 1);
}

TEST_F(TabTest, TheRightButtonShowsTheTablesMenu) {
    Start();
    p.user.ChooseFromPopUp("");
    Tab().iGrid1.MouseUp(MouseButton::Right);
    Tab().iGrid1.MouseUp(MouseButton::Left);
    EXPECT_EQ(p.user.PopUps(), std::vector<std::string>{"mnuPopupMenu"});
}

TEST_F(TabTest, ACommandOfTheTablesMenuRuns) {
    Start();
    p.user.ChooseFromPopUp("mnuFile_SaveAs");
    p.user.CancelChooser();
    Tab().iGrid1.MouseUp(MouseButton::Right);
    EXPECT_EQ(p.user.Requests().at(0).FileDialogCaption, u"Save database to disk");
}

TEST_F(TabTest, F10SavesUnderANewNameAlsoWithCtrl) {
    Start();
    p.user.CancelChooser();
    p.user.CancelChooser();
    EXPECT_TRUE(p.PressKey(Key::F(10)));
    EXPECT_TRUE(p.PressKey(Key::F(10), Mask::Ctrl));
    EXPECT_EQ(p.user.Requests().size(), 2u);
}

TEST_F(TabTest, CtrlAltDTogglesTheDesktop) {
    Start();
    EXPECT_TRUE(p.PressKey('D', Mask::Ctrl | Mask::Alt));
    ASSERT_EQ(p.shell.Calls().size(), 1u);
    EXPECT_EQ(p.shell.Calls()[0].kind, ShellCall::Kind::ToggleDesktop);
}

TEST_F(TabTest, CtrlAltXExploresTheFolderOfTheFile) {
    Start();
    EXPECT_TRUE(p.PressKey('X', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(p.shell.Calls().at(0).argument, u"C:\\Data");
}

TEST_F(TabTest, CtrlAltXExploresTheCurrentDirectoryWhereTheFolderIsGone) {
    Start();
    p.files.Erase(u"C:\\Data");
    p.PressKey('X', Mask::Ctrl | Mask::Alt);
    Tab().Table().TxtDbFile.clear();
    p.PressKey('X', Mask::Ctrl | Mask::Alt);
    EXPECT_EQ(p.shell.Calls().at(0).argument, u"C:\\");
    EXPECT_EQ(p.shell.Calls().at(1).argument, u"C:\\");
}

TEST_F(TabTest, CtrlAltXExploresTheCurrentDirectoryAndNotTheRootForABareName) {
    Start();
    p.files.AddDir(u"C:\\Elsewhere");
    ASSERT_TRUE(p.files.ChangeDir(u"C:\\Elsewhere"));
    Tab().Table().TxtDbFile = u"a.tbx";
    p.PressKey('X', Mask::Ctrl | Mask::Alt);
    EXPECT_EQ(p.shell.Calls().at(0).argument, u"C:\\Elsewhere");
}

TEST_F(TabTest, CtrlAltVShowsTheClipboardAndLeavesTheTableAlone) {
    Start();
    p.user.On<frmViewAndPaste>([](frmViewAndPaste& view) { view.Close(); });
    EXPECT_TRUE(p.PressKey('V', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

TEST_F(TabTest, CtrlAltQReachesTheGrid) {
    Start();
    EXPECT_FALSE(p.PressKey('Q', Mask::Ctrl | Mask::Alt));
    EXPECT_FALSE(p.PressKey(Key::Down));
}

TEST_F(TabTest, AltShiftF7WidensTheSidebarAndGivesTheGridTheFocus) {
    Start();
    FocusCounter focus(Tab().GridStore());
    EXPECT_TRUE(p.PressKey(Key::F(7), Mask::Shift | Mask::Alt));
    EXPECT_EQ(p.app.Settings.SideBarWidthStep, 1);
    EXPECT_EQ(focus.Count(), 1);
}

TEST_F(TabTest, ActivationGivesTheGridTheFocus) {
    Start();
    FocusCounter focus(Tab().GridStore());
    Tab().Activate();
    EXPECT_EQ(focus.Count(), 1);
}

TEST_F(TabTest, ShowsTheRowHeightOfItsFile) {
    Start();
    EXPECT_EQ(Tab().txtRowHeight.Text.Get(), u"24");
    EXPECT_EQ(Tab().ZoomSlider.Value, 24);
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

TEST_F(TabTest, TheSliderSetsTheHeightWhileItMovesAndTheRowsWhenItIsReleased) {
    Start();
    Tab().ZoomSlider.MoveTo(50);
    EXPECT_EQ(Tab().Table().SetRowHeight, 50);
    EXPECT_EQ(Tab().txtRowHeight.Text.Get(), u"50");
    EXPECT_EQ(Tab().Table().TableAltered, 1);
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{1}), 24);
    Tab().ZoomSlider.Release();
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{1}), 50);
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{2}), 50);
}

/// A view that can't show a change.
class FailingView final : public GridListener {
public:
    void RowsChanged(Row, Row) override { FailInHandler(); }
    void TableChanged() override { FailInHandler(); }
    void ColumnChanged(Col) override { FailInHandler(); }
    void LookChanged() override { FailInHandler(); }
    void CurrentCellChanged() override { FailInHandler(); }
    void FocusWanted() override { FailInHandler(); }
    void RowWantedInView(Row) override { FailInHandler(); }
};

TEST_F(TabTest, ASlideThatFailsEndsItsStep) {
    Start();
    FailingView view;
    Tab().ZoomSlider.MoveTo(50);
    Tab().GridStore().SetListener(&view);
    EXPECT_THROW(Tab().ZoomSlider.Release(), HandlerFailure);
    Tab().GridStore().SetListener(nullptr);
    Tab().iGrid1.CommitEdit(Row{1}, Col{1}, u"plum");
    EXPECT_TRUE(Tab().Context().history->Undo());
    EXPECT_EQ(Cell(1), u"pear");
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{1}), 50);
    EXPECT_TRUE(Tab().Context().history->Undo());
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{1}), 24);
}

TEST_F(TabTest, CtrlShiftReturnInTheBoxSetsTheHeightOfAllRows) {
    Start();
    Tab().txtRowHeight.Type(u"500 or so");
    KeyEvent plain{Key::Return, Mask::None};
    Tab().txtRowHeight.KeyDown(plain);
    EXPECT_FALSE(plain.consumed);
    EXPECT_EQ(Tab().Table().SetRowHeight, 24);
    KeyEvent apply{Key::Return, Mask::Ctrl | Mask::Shift};
    Tab().txtRowHeight.KeyDown(apply);
    EXPECT_TRUE(apply.consumed);
    EXPECT_EQ(Tab().Table().SetRowHeight, 500);
    EXPECT_EQ(Tab().txtRowHeight.Text.Get(), u"500");
    EXPECT_EQ(Tab().ZoomSlider.Value, 500);
    EXPECT_EQ(Tab().GridStore().RowHeight(Row{2}), 500);
}

// Kept for compatibility: row-colour-keys-reach-grid.
TEST_F(TabTest, RowColourKeysColourTheCurrentRowAndReachTheGrid) {
    Start();
    struct KeyColour {
        char16_t digit, letter;
        int text;
    };
    constexpr KeyColour kKeys[] = {{u'1', u'F', 0},        {u'2', u'H', 0xE0E0E0}, {u'3', u'Y', 0},
                                   {u'4', u'R', 0xFFFFFF}, {u'5', u'K', 0xFFFFFF}, {u'6', u'L', 0xC00000},
                                   {u'7', u'G', 0xC00000}, {u'8', u'A', 0xFFFFFF}, {u'9', u'O', 0xC00000}};
    for (const KeyColour& key : kKeys) {
        for (const char16_t code : {key.digit, key.letter}) {
            Tab().GridStore().SetRowForeColor(Row{1}, kNoColour);
            Tab().Table().TableAltered = 0;
            EXPECT_FALSE(p.PressKey(code, Mask::Ctrl | Mask::Alt));
            EXPECT_EQ(Tab().GridStore().CellForeColor(Row{1}, Col{1}), Colour{key.text}) << int{code};
            EXPECT_EQ(Tab().Table().TableAltered, 1);
        }
    }
    p.PressKey('3', Mask::Ctrl | Mask::Alt);
    EXPECT_EQ(Tab().GridStore().CellBackColor(Row{1}, Col{1}), Colour{0x00FFFF});
}

TEST_F(TabTest, CtrlShiftLettersFlipTheFontFlagsOfTheCurrentRow) {
    Start();
    const std::pair<int, CellFlag> keys[] = {
        {'I', CellFlag::Italic}, {'B', CellFlag::Bold}, {'X', CellFlag::Strikethrough}};
    for (const auto& [code, flag] : keys) {
        EXPECT_TRUE(p.PressKey(code, Mask::Ctrl | Mask::Shift));
        EXPECT_TRUE(Tab().GridStore().CellFontFlag(Row{1}, Col{1}, flag));
    }
    EXPECT_EQ(Tab().Table().TableAltered, 0);
}

TEST_F(TabTest, Ctrl1ChoosesTheFontOfTheTable) {
    Start();
    p.user.ChooseFont(FontSpec{u"Courier", 12});
    EXPECT_TRUE(p.PressKey('1', Mask::Ctrl));
    EXPECT_EQ(Tab().GridStore().GridFontName(), u"Courier");
}

TEST_F(TabTest, RefreshedColumnsFillTheShownGrid) {
    Start();
    Tab().iGrid1.ShownWidth = Twips{3100};
    Tab().Run(&MnuEdit_RefreshColumnWidths_Clack);
    EXPECT_EQ(Tab().GridStore().ColWidth(Col{1}), 200);
}

TEST_F(TabTest, ALoadClearsTheDirtyFlagOfItsSlot) {
    Start();
    p.AllTabs().TabState[1].Dirty = -1;
    Tab().Run(&ReadTableData);
    EXPECT_EQ(p.AllTabs().TabState[1].Dirty, 0);
}

TEST_F(TabTest, TakesOverTheFindTextOfTheTabThatWasClosedLast) {
    Settings settings;
    settings.LastDbFindText = u"plum";
    Start(settings);
    EXPECT_EQ(Tab().txtFindString.Text.Get(), u"plum");
    Tab().txtFindString.Type(u"fig");
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.app.Settings.LastDbFindText, u"fig");
    p.OpenNewTab();
    EXPECT_EQ(Tab().txtFindString.Text.Get(), u"fig");
}

TEST_F(TabTest, ANewTabIsEmpty) {
    p.StartWith({});
    p.OpenNewTab();
    EXPECT_EQ(Tab().GridStore().RowCount(), Row{0});
    EXPECT_EQ(Tab().GridStore().CurRow(), Row{0});
    EXPECT_EQ(Tab().Table().TxtDbFile, u"");
    EXPECT_EQ(Tab().Table().ColumnNames[Col{1}], u"");
    EXPECT_EQ(Tab().Tag, u"1");
}

TEST_F(TabTest, CaptionsAndToolTips) {
    Start();
    EXPECT_EQ(Tab().cmdWebsites.Caption.Get(), u"Websites");
    EXPECT_EQ(Tab().cmdWallpaper.Caption.Get(), u"Wallpaper");
    EXPECT_EQ(Tab().cmdSettings.Caption.Get(), u"Settings");
    EXPECT_EQ(Tab().cmdHelp.Caption.Get(), u"Help");
    EXPECT_EQ(Tab().cmdFind.ToolTipText.Get(), u"Find string in database");
    EXPECT_EQ(Tab().txtRowHeight.ToolTipText.Get(), u"Row height (set with Ctrl-Shift+Return)");
    EXPECT_EQ(Tab().ZoomSlider.ToolTipText.Get(), u"Move to change row height");
}

TEST_F(TabTest, WhatStandsInTheFindBoxIsMarkedInTheTable) {
    Settings settings;
    settings.LastDbFindText = u"app";
    Start(settings);
    EXPECT_EQ(Tab().iGrid1.MarkedText.Get(), u"app");
    Tab().txtFindString.Type(u"pe");
    EXPECT_EQ(Tab().iGrid1.MarkedText.Get(), u"pe");
    Tab().txtFindString.Text = u"";
    EXPECT_EQ(Tab().iGrid1.MarkedText.Get(), u"");
}

TEST_F(TabTest, TheStripIsToldOfEachChangeOfTheMark) {
    Start();
    const auto altered = [this] { return p.Main().MDITabs1.NoteOf(Tab()).altered; };
    EXPECT_FALSE(altered());
    EXPECT_EQ(p.Main().MDITabs1.NoteOf(Tab()).toolTip, kFile);
    int told = 0;
    Tab().Told = [&told] { ++told; };
    Tab().iGrid1.CommitEdit(Row{1}, Col{1}, u"plum");
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(altered());
    Tab().iGrid1.CommitEdit(Row{1}, Col{1}, u"fig");
    EXPECT_EQ(told, 1);
    p.PressKey('Z', Mask::Ctrl);
    p.PressKey('Z', Mask::Ctrl);
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(altered());
}

TEST_F(TabTest, TheStripTellsWhereTheUserIs) {
    Start();
    const auto& status = p.Main().MDITabs1.StatusParts;
    EXPECT_EQ(status().at(0), u"Row 1 of 2");
    Tab().GridStore().SetCurRow(Row{2});
    Tab().iGrid1.ClickCheck(Row{2});
    p.Choose("mnuFile_Save");
    EXPECT_EQ(status(), (std::vector<Text>{u"Row 2 of 2", u"1 ticked",
                                           u"saved " + FormatDate(p.clock.Now(), u"hh:nn")}));
    p.Choose("mnuFile_Close");
    EXPECT_TRUE(status().empty());
}

TEST_F(TabTest, TheBoxAndTheSliderOfTheHeightFollowASave) {
    Start();
    Tab().GridStore().SetRowHeight(Row{1}, 40);
    p.Choose("mnuFile_Save");
    EXPECT_EQ(Tab().txtRowHeight.Text.Get(), u"40");
    EXPECT_EQ(Tab().ZoomSlider.Value, 40);
}

} // namespace
} // namespace korvane
