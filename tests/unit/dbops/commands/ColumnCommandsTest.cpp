#include "dbops/commands/ColumnCommands.h"

#include "common/number/Number.h"
#include "context/ports/FontPicker.h"
#include "dbops/windows/frmTxtDbColName.h"
#include "grid/Grid.h"
#include "table/DesignCommand.h"
#include "table/frmDesignTable.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

class ColumnCommands : public testing::Test {
protected:
    ColumnCommands() {
        t.Fill({{u"a", u"b", u"c"}, {u"d", u"e", u"f"}});
        NameColumns({u"One", u"Two", u"Three"});
    }
    /// Sets the headers and the `ColumnNames`.
    void NameColumns(const Texts& names) {
        Col col{1};
        for (const Text& name : names) {
            t.grid.SetColHeaderText(col, name);
            t.table.ColumnNames.Set(col, name);
            ++col;
        }
    }
    Texts Headers() const {
        Texts headers;
        for (Col col{1}; col <= t.grid.ColCount(); ++col)
            headers.push_back(t.grid.ColHeaderText(col));
        return headers;
    }
    /// The first `count` of the `ColumnNames`.
    Texts Names(int count) const {
        Texts names;
        for (Col col{1}; col <= Col{count}; ++col)
            names.push_back(t.table.ColumnNames[col]);
        return names;
    }
    Texts RowTexts(int row) const {
        Texts texts;
        for (int col = 1; col <= t.grid.ColCount().Number(); ++col)
            texts.push_back(t.Cell(row, col));
        return texts;
    }

    TestTab t;
};

class NamingAColumn : public ColumnCommands {
protected:
    template <class Script>
    void Play(const Script& script) {
        t.user.On<frmTxtDbColName>(script);
        t.watcher.refreshes = 0;
        mnuEdit_ColumnName_Clack(t.tab);
        EXPECT_EQ(t.watcher.focusWanted, 1);
    }
    static bool Press(frmTxtDbColName& window, int code) {
        KeyEvent key{code, Mask::None};
        window.txtNewColumnName.KeyDown(key);
        return key.consumed;
    }
};

TEST_F(NamingAColumn, OffersThePresentCaption) {
    t.GoTo(1, 2);
    Play([](frmTxtDbColName& window) {
        EXPECT_EQ(window.lblOldColumnName.Caption.Get(), u"Two");
        EXPECT_EQ(window.txtNewColumnName.Text.Get(), u"Two");
        EXPECT_EQ(window.cmdColAccept.Caption.Get(), u"A&ccept");
        EXPECT_EQ(window.cmdColReject.Caption.Get(), u"Re&ject");
        EXPECT_TRUE(window.cmdColReject.Cancel);
        window.cmdColReject.Press();
    });
}

TEST_F(NamingAColumn, WritesTheNewNameToCaptionAndColumnNames) {
    t.GoTo(1, 2);
    Play([](frmTxtDbColName& window) {
        window.txtNewColumnName.Type(u"Zwei");
        window.cmdColAccept.Press();
    });
    EXPECT_EQ(Headers(), (Texts{u"One", u"Zwei", u"Three"}));
    EXPECT_EQ(Names(3), (Texts{u"One", u"Zwei", u"Three"}));
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.watcher.refreshes, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(NamingAColumn, TakesAnEmptyNameAsItIs) {
    Play([](frmTxtDbColName& window) {
        window.txtNewColumnName.Type(u"");
        window.cmdColAccept.Press();
    });
    EXPECT_EQ(Headers(), (Texts{u"", u"Two", u"Three"}));
    EXPECT_EQ(Names(3), (Texts{u"", u"Two", u"Three"}));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(NamingAColumn, ChangesNothingWhenRejected) {
    t.app.DialogResult = 1;
    Play([](frmTxtDbColName& window) {
        window.txtNewColumnName.Type(u"other");
        window.cmdColReject.Press();
    });
    EXPECT_EQ(Headers(), (Texts{u"One", u"Two", u"Three"}));
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(NamingAColumn, ReturnInTheBoxAcceptsAndEscRejects) {
    Play([](frmTxtDbColName& window) {
        window.txtNewColumnName.Type(u"by Esc");
        EXPECT_TRUE(Press(window, Key::Escape));
    });
    EXPECT_EQ(Headers().front(), u"One");
    t.watcher.focusWanted = 0;
    Play([](frmTxtDbColName& window) {
        window.txtNewColumnName.Type(u"by Return");
        EXPECT_FALSE(Press(window, 'X'));
        EXPECT_TRUE(window.Shown());
        EXPECT_TRUE(Press(window, Key::Return));
    });
    EXPECT_EQ(Headers().front(), u"by Return");
}

class InsertingAColumn : public ColumnCommands {};

TEST_F(InsertingAColumn, MovesTheTextsOneColumnToTheRight) {
    t.GoTo(2, 2);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(1), (Texts{u"a", u"", u"b", u"c"}));
    EXPECT_EQ(RowTexts(2), (Texts{u"d", u"", u"e", u"f"}));
    EXPECT_EQ(Headers(), (Texts{u"One", u"NEW", u"Two", u"Three"}));
    EXPECT_EQ(t.Current(), At(2, 2));
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(InsertingAColumn, LetsMessagesRunBeforeItLooksForTheCurrentColumn) {
    t.GoTo(1, 1);
    t.screen.QueueMessage([this] { t.GoTo(1, 3); });
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(1), (Texts{u"a", u"b", u"", u"c"}));
}

TEST_F(InsertingAColumn, TellsTheShownGridOnceBeforeItRefreshes) {
    t.watcher.refreshes = t.watcher.rowChanges = 0;
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.watcher.refreshes, 2);
    EXPECT_EQ(t.watcher.rowChanges, 0);
}

TEST_F(InsertingAColumn, AtTheFirstLeavesTheCheckBoxesBesideAnEmptyCell) {
    t.grid.SetCellCheckShown(Row{1}, true);
    t.Tick({1});
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(1), (Texts{u"", u"a", u"b", u"c"}));
    EXPECT_TRUE(t.grid.CellCheckShown(Row{1}));
    EXPECT_EQ(t.Ticks(), (std::vector{1, 0}));
    EXPECT_EQ(Headers(), (Texts{u"NEW", u"One", u"Two", u"Three"}));
}

TEST_F(InsertingAColumn, LeavesColoursFlagsAndWidthsAtTheirPositions) {
    t.GoTo(1, 2);
    t.grid.SetCellBackColor(Row{1}, Col{2}, Colour{255});
    t.grid.SetCellForeColor(Row{1}, Col{2}, Colour{9});
    t.grid.SetCellFontFlag(Row{1}, Col{2}, CellFlag::Italic, true);
    t.grid.SetColWidth(Col{2}, 77);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.CellBackColor(Row{1}, Col{2}), Colour{255});
    EXPECT_EQ(t.grid.CellForeColor(Row{1}, Col{2}), Colour{9});
    EXPECT_TRUE(t.grid.CellFontFlag(Row{1}, Col{2}, CellFlag::Italic));
    EXPECT_EQ(t.grid.CellBackColor(Row{1}, Col{3}), kNoColour);
    EXPECT_FALSE(t.grid.CellFontFlag(Row{1}, Col{3}, CellFlag::Italic));
    EXPECT_EQ(t.grid.ColWidth(Col{2}), 77);
    EXPECT_NE(t.grid.ColWidth(Col{3}), 77);
}

// Kept for compatibility: column-names-not-shifted.
TEST_F(InsertingAColumn, DoesNotShiftColumnNamesSoThatASecondInsertTakesStaleCaptions) {
    t.GoTo(1, 2);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(Names(4), (Texts{u"One", u"NEW", u"Three", u""}));
    t.GoTo(1, 1);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(1), (Texts{u"", u"a", u"", u"b", u"c"}));
    EXPECT_EQ(Headers(), (Texts{u"NEW", u"One", u"NEW", u"Three", u""}));
    EXPECT_EQ(Names(4), (Texts{u"NEW", u"NEW", u"Three", u""}));
}

TEST_F(InsertingAColumn, ReachesHiddenRows) {
    t.Hide({2});
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(2), (Texts{u"", u"d", u"e", u"f"}));
}

class InsertingIntoAWideTable : public ColumnCommands, public testing::WithParamInterface<int> {
protected:
    void Widen(int cols) {
        t.grid.SetColCount(Col{cols});
        Texts names;
        for (int col = 1; col <= cols; ++col) {
            t.SetCell(1, col, NumberText(col));
            names.push_back(u"N" + NumberText(col));
        }
        NameColumns(names);
    }
};

TEST_F(InsertingIntoAWideTable, GrowsTo23Columns) {
    Widen(22);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{23});
    EXPECT_EQ(t.Cell(1, 23), u"22");
}

// Kept for compatibility: insert-column-full-table.
TEST_P(InsertingIntoAWideTable, KeepsTheColumnCountAndLosesTheLastColumnsText) {
    const int cols = GetParam();
    Widen(cols);
    t.GoTo(1, 3);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{cols});
    EXPECT_EQ(t.Cell(1, 2), u"2");
    EXPECT_EQ(t.Cell(1, 3), u"");
    EXPECT_EQ(t.Cell(1, 4), u"3");
    EXPECT_EQ(t.Cell(1, cols), NumberText(cols - 1));
    EXPECT_EQ(Headers()[2], u"NEW");
    EXPECT_EQ(Headers().back(), u"N" + NumberText(cols - 1));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_P(InsertingIntoAWideTable, AtTheLastColumnChangesItsCaptionAlone) {
    const int cols = GetParam();
    Widen(cols);
    t.GoTo(1, cols);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.Cell(1, cols), NumberText(cols));
    EXPECT_EQ(t.Cell(1, cols - 1), NumberText(cols - 1));
    EXPECT_EQ(Headers().back(), u"NEW");
    EXPECT_EQ(Names(cols).back(), u"NEW");
    EXPECT_EQ(t.table.TableAltered, 1);
}

INSTANTIATE_TEST_SUITE_P(AtTheLimit, InsertingIntoAWideTable, testing::Values(23, 24));

TEST_F(InsertingIntoAWideTable, LeavesTheCaptionsOfColumnsThatHaveNoName) {
    Widen(27);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.Cell(1, 27), u"26");
    EXPECT_EQ(Headers()[24], u"N24");
    EXPECT_EQ(Headers()[25], u"N26");
    EXPECT_EQ(Headers()[26], u"N27");
}

TEST(InsertingIntoADesignedTable, OfTwentyFourColumnsAddsNoFurtherOne) {
    TestTab t;
    t.user.On<frmDesignTable>([](frmDesignTable& window) {
        window.cmdAutoLabel.Press();
        window.cmdMake.Press();
    });
    mnuEdit_DesignDb_Clack(t.tab);
    t.GoTo(1, 1);
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), MaxColumns);
    EXPECT_EQ(t.grid.ColHeaderText(Col{1}), u"NEW");
    EXPECT_EQ(t.grid.ColHeaderText(Col{2}), u"Col 1");
    EXPECT_EQ(t.grid.ColHeaderText(MaxColumns), u"Col 23");
}

TEST(InsertingWithoutACurrentColumn, AddsAColumnWithoutTouchingOthersCaptions) {
    TestTab t;
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{1});
    EXPECT_EQ(t.grid.ColHeaderText(Col{1}), u"");
    EXPECT_EQ(t.table.ColumnNames[Col{1}], u"");
}

TEST(InsertingWithoutACurrentColumn, MovesAllTextsAndKeepsTheFirstCaption) {
    TestTab t;
    t.grid.AddCol(u"1no", u"One");
    t.grid.AddCol(u"2no", u"Two");
    t.grid.SetRowCount(Row{1});
    t.table.ColumnNames.Set(Col{1}, u"One");
    t.table.ColumnNames.Set(Col{2}, u"Two");
    t.SetCell(1, 1, u"a");
    t.SetCell(1, 2, u"b");
    ASSERT_EQ(t.grid.CurCol(), Col{0});
    mnuEdit_InsertColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColHeaderText(Col{1}), u"One");
    EXPECT_EQ(t.grid.ColHeaderText(Col{2}), u"One");
    EXPECT_EQ(t.grid.ColHeaderText(Col{3}), u"Two");
    EXPECT_EQ(t.Cell(1, 1), u"");
    EXPECT_EQ(t.Cell(1, 2), u"a");
    EXPECT_EQ(t.Cell(1, 3), u"b");
}

class RemovingAColumn : public ColumnCommands {};

TEST_F(RemovingAColumn, AsksAndTakesItsCellsAway) {
    t.GoTo(1, 2);
    t.AnswerQuestion(u"Remove this column: \r\n\"Two\"\t", Answer::Yes, 2);
    mnuEdit_DeleteColumn_Clack(t.tab);
    EXPECT_EQ(RowTexts(1), (Texts{u"a", u"c"}));
    EXPECT_EQ(RowTexts(2), (Texts{u"d", u"f"}));
    EXPECT_EQ(Headers(), (Texts{u"One", u"Three"}));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: column-names-not-shifted.
TEST_F(RemovingAColumn, LeavesColumnNamesAsTheyWere) {
    t.GoTo(1, 2);
    t.user.Answer(Answer::Yes);
    mnuEdit_DeleteColumn_Clack(t.tab);
    EXPECT_EQ(Names(3), (Texts{u"One", u"Two", u"Three"}));
}

TEST_F(RemovingAColumn, AsksByTheCaptionWhateverItsNameWasAtFirst) {
    t.grid.SetColHeaderText(Col{1}, u"Caption");
    t.AnswerQuestion(u"Remove this column: \r\n\"Caption\"\t", Answer::No, 2);
    mnuEdit_DeleteColumn_Clack(t.tab);
}

TEST_F(RemovingAColumn, LeavesItOnNo) {
    t.AnswerQuestion(u"Remove this column: \r\n\"One\"\t", Answer::No, 2);
    mnuEdit_DeleteColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{3});
    EXPECT_EQ(t.watcher.focusWanted, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

// Kept for compatibility: first-column-takes-marks.
TEST_F(RemovingAColumn, TakesCheckBoxesAndMarksWithTheFirstOne) {
    t.grid.SetCellCheckShown(Row{1}, true);
    t.Tick({1});
    t.SetCell(2, 1, u"---");
    t.user.Answer(Answer::Yes);
    mnuEdit_DeleteColumn_Clack(t.tab);
    EXPECT_FALSE(t.grid.CellCheckShown(Row{1}));
    EXPECT_EQ(t.Ticks(), (std::vector{0, 0}));
    EXPECT_EQ(t.Column(1), (Texts{u"b", u"e"}));
}

TEST(RemovingWithoutACurrentColumn, TakesNothingAway) {
    TestTab t;
    t.AnswerQuestion(u"Remove this column: \r\n\"\"\t", Answer::Yes, 2);
    mnuEdit_DeleteColumn_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{0});
}

class RefreshingWidths : public ColumnCommands {};

TEST_F(RefreshingWidths, MakesAllColumnsEqual) {
    t.host.gridWidth = Twips{9300};
    t.grid.SetColWidth(Col{2}, 10);
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    for (Col col{1}; col <= Col{3}; ++col)
        EXPECT_EQ(t.grid.ColWidth(col), 200);
}

TEST_F(RefreshingWidths, RoundsToTheNearestWholeNumber) {
    t.host.gridWidth = Twips{3 * 155 + 24};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.grid.ColWidth(Col{1}), 11);
    t.host.gridWidth = Twips{3 * 155 + 23};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.grid.ColWidth(Col{1}), 10);
}

TEST_F(RefreshingWidths, RoundsAHalfToTheEvenNumber) {
    t.grid.SetColCount(Col{4});
    t.host.gridWidth = Twips{4 * 155 + 31};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.grid.ColWidth(Col{1}), 10);
    t.host.gridWidth = Twips{4 * 155 + 93};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.grid.ColWidth(Col{4}), 12);
}

// Kept for compatibility: widths-are-no-change.
TEST_F(RefreshingWidths, DoesNotCountAsAChange) {
    t.host.gridWidth = Twips{9300};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST(RefreshingWidthsOfNoColumns, DoesNothing) {
    TestTab t;
    t.host.gridWidth = Twips{9300};
    MnuEdit_RefreshColumnWidths_Clack(t.tab);
    EXPECT_EQ(t.grid.ColCount(), Col{0});
}

class ChoosingTheFont : public ColumnCommands {
protected:
    ChoosingTheFont() {
        t.grid.SetGridFontName(u"Arial");
        t.grid.SetGridFontSize(9);
    }
};

TEST_F(ChoosingTheFont, TakesNameAndSizeForGridAndTable) {
    t.user.ChooseFont(FontSpec{u"Courier", 12, true});
    mnuEdit_Font_Clack(t.tab);
    EXPECT_EQ(t.user.FontRequests(), (std::vector<FontSpec>{{u"Arial", 9}}));
    EXPECT_EQ(t.grid.GridFontName(), u"Courier");
    EXPECT_EQ(t.grid.GridFontSize(), 12);
    EXPECT_EQ(t.table.TableFontName, u"Courier");
    EXPECT_EQ(t.table.TableFontSize, 12);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(ChoosingTheFont, LeavesWhatWasNotChosen) {
    t.table.TableFontName = u"Arial";
    t.table.TableFontSize = std::int16_t{9};
    t.user.ChooseFont(FontSpec{u"", 12});
    mnuEdit_Font_Clack(t.tab);
    EXPECT_EQ(t.grid.GridFontName(), u"Arial");
    EXPECT_EQ(t.table.TableFontName, u"Arial");
    EXPECT_EQ(t.table.TableFontSize, 12);
    t.user.ChooseFont(FontSpec{u"Courier", 0});
    mnuEdit_Font_Clack(t.tab);
    EXPECT_EQ(t.grid.GridFontSize(), 12);
    EXPECT_EQ(t.table.TableFontSize, 12);
    EXPECT_EQ(t.table.TableFontName, u"Courier");
}

TEST_F(ChoosingTheFont, OnlyTakesTheFocusAfterACancel) {
    t.user.ChooseFont(std::nullopt);
    mnuEdit_Font_Clack(t.tab);
    EXPECT_EQ(t.grid.GridFontName(), u"Arial");
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(ChoosingTheFont, OnlyTakesTheFocusWithoutAFontDialog) {
    t.app.SetPort<FontPicker>(nullptr);
    mnuEdit_Font_Clack(t.tab);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 0);
}

} // namespace
} // namespace korvane
