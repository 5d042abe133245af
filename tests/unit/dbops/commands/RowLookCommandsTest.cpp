#include "dbops/commands/RowLookCommands.h"

#include "context/exchange/RowColourMemory.h"
#include "context/ports/ColourPicker.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/rules/RowColours.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/windows/frmRowColour.h"
#include "grid/Grid.h"
#include "support/ScriptedPickers.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

using Numbers = std::vector<int>;
using Flags = std::vector<bool>;

constexpr int kYellow = 2;
constexpr int kRed = 3;

class RowLookCommands : public testing::Test {
protected:
    RowLookCommands() {
        t.Fill({{u"a", u"A"}, {u"b", u"B"}, {u"c", u"C"}, {u"d", u"D"}});
        t.table.TableBackColour = Colour{0xABCDEF};
        t.GoTo(2, 1);
    }
    RowColours ColoursAt(int row, int col) const {
        return {t.grid.CellBackColor(Row{row}, Col{col}), t.grid.CellForeColor(Row{row}, Col{col})};
    }
    void ColourRow(int row, const RowColours& colours) {
        t.grid.SetRowBackColor(Row{row}, colours.back);
        t.grid.SetRowForeColor(Row{row}, colours.text);
    }
    /// Chooses the entry and presses the button.
    void Choose(int index, CommandButton frmRowColour::*button) {
        t.user.On<frmRowColour>([=](frmRowColour& window) {
            window.lstColourOptions.Select(index);
            (window.*button).Press();
        });
    }
    /// Chooses the attribute and filters to it.
    void ChooseFilter(CellFlag flag) {
        t.user.On<frmRowColour>([flag](frmRowColour& window) {
            window.optAttribute[static_cast<std::size_t>(flag)].Press();
            window.cmdFilterToAttribute.Press();
        });
    }

    TestTab t;
};

const RowColours kUncoloured{kNoColour, kNoColour};

class RowColourKeys : public RowLookCommands {};

TEST_F(RowColourKeys, ColourAllCellsOfTheCurrentRow) {
    for (int index = 0; index < 9; ++index) {
        t.table.TableAltered = 0;
        ColourCurrentRowByKey(t.tab, index);
        const RowColours expected = RowColourChoiceAt(index)->ByKey(Colour{0xABCDEF});
        EXPECT_EQ(ColoursAt(2, 1), expected) << index;
        EXPECT_EQ(ColoursAt(2, 2), expected) << index;
        EXPECT_EQ(t.table.TableAltered, 1);
    }
    EXPECT_EQ(ColoursAt(1, 1), kUncoloured);
    EXPECT_EQ(ColoursAt(3, 1), kUncoloured);
}

TEST_F(RowColourKeys, TakeBlackForTheBackgroundOfATableThatHasNone) {
    t.table.TableBackColour.reset();
    ColourCurrentRowByKey(t.tab, 1);
    EXPECT_EQ(ColoursAt(2, 1), (RowColours{Colour{0}, Colour{0xE0E0E0}}));
}

TEST_F(RowColourKeys, OfNoColourDoNothing) {
    ColourCurrentRowByKey(t.tab, 9);
    EXPECT_EQ(ColoursAt(2, 1), kUncoloured);
    EXPECT_EQ(t.table.TableAltered, 0);
}

struct FlagCommand {
    void (*run)(const TabContext&);
    CellFlag flag;
};

class FontFlags : public RowLookCommands, public testing::WithParamInterface<FlagCommand> {
protected:
    /// The flag in both cells of the row.
    Flags FlagsOf(int row) const {
        return {t.grid.CellFontFlag(Row{row}, Col{1}, GetParam().flag),
                t.grid.CellFontFlag(Row{row}, Col{2}, GetParam().flag)};
    }
};

TEST_P(FontFlags, FlipInTheWholeCurrentRowAlone) {
    GetParam().run(t.tab);
    EXPECT_EQ(FlagsOf(2), (Flags{true, true}));
    EXPECT_EQ(FlagsOf(1), (Flags{false, false}));
    for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough})
        EXPECT_EQ(t.grid.CellFontFlag(Row{2}, Col{1}, flag), flag == GetParam().flag);
    GetParam().run(t.tab);
    EXPECT_EQ(FlagsOf(2), (Flags{false, false}));
}

TEST_P(FontFlags, LeaveAMixedRowMixed) {
    t.grid.SetCellFontFlag(Row{2}, Col{2}, GetParam().flag, true);
    GetParam().run(t.tab);
    EXPECT_EQ(FlagsOf(2), (Flags{true, false}));
}

// Kept for compatibility: font-flags-are-no-change.
TEST_P(FontFlags, DoNotCountAsAChange) {
    GetParam().run(t.tab);
    EXPECT_EQ(t.table.TableAltered, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, FontFlags,
                         testing::Values(FlagCommand{&MakeEmailItalic, CellFlag::Italic},
                                         FlagCommand{&MakeEmailBold, CellFlag::Bold},
                                         FlagCommand{&MakeEmailStrikethru, CellFlag::Strikethrough}));

TEST(LooksWithoutACurrentRow, ChangeNothing) {
    TestTab t;
    t.grid.SetColCount(Col{1});
    MakeEmailItalic(t.tab);
    ColourCurrentRowByKey(t.tab, kRed);
    t.grid.SetRowCount(Row{1});
    ASSERT_EQ(t.grid.CurRow(), Row{0});
    MakeEmailItalic(t.tab);
    ColourCurrentRowByKey(t.tab, kRed);
    EXPECT_FALSE(t.grid.CellFontFlag(Row{1}, Col{1}, CellFlag::Italic));
    EXPECT_EQ(t.grid.CellBackColor(Row{1}, Col{1}), kNoColour);
}

class RowColourCommand : public RowLookCommands {
protected:
    void Run() {
        mnuFormat_RowColour_Clack(t.tab);
        EXPECT_EQ(t.screen.Pointers(), (std::vector{Pointer::Hourglass, Pointer::Default}));
        EXPECT_GE(t.watcher.focusWanted, 1);
    }
    /// Two red rows, one of them hidden, and a row that is red in its second column alone.
    void PaintRedRows() {
        const RowColours red{Colour{0x0000FF}, Colour{0xFFFFFF}};
        ColourRow(1, red);
        ColourRow(4, red);
        t.Hide({4});
        t.grid.SetCellBackColor(Row{2}, Col{2}, red.back);
        t.grid.SetCellForeColor(Row{2}, Col{2}, red.text);
        t.grid.SetCellBackColor(Row{3}, Col{1}, red.back);
    }
};

// Kept for compatibility: colour-for-current-row.
TEST_F(RowColourCommand, ColoursTheCurrentRowAloneWhateverIsTicked) {
    t.Tick({1, 3});
    Choose(kYellow, &frmRowColour::cmdAccept);
    Run();
    const RowColours yellow{Colour{0x80FFFF}, Colour{0}};
    EXPECT_EQ(ColoursAt(2, 1), yellow);
    EXPECT_EQ(ColoursAt(2, 2), yellow);
    EXPECT_EQ(ColoursAt(1, 1), kUncoloured);
    EXPECT_EQ(ColoursAt(3, 1), kUncoloured);
    EXPECT_EQ(t.watcher.looks, (Flags{false, true}));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowColourCommand, TakesTheTableBackgroundForTheDefault) {
    Choose(0, &frmRowColour::cmdAccept);
    Run();
    EXPECT_EQ(ColoursAt(2, 1), (RowColours{Colour{0xABCDEF}, Colour{0}}));
}

TEST_F(RowColourCommand, DoesNothingAfterACancelWhateverTheLastDialogLeft) {
    t.app.DialogResult = 1;
    Choose(kRed, &frmRowColour::cmdCancel);
    Run();
    EXPECT_EQ(ColoursAt(2, 1), kUncoloured);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(RowColourCommand, SelectsTheRowsWhoseFirstCellHasBothColours) {
    PaintRedRows();
    t.Tick({2});
    Choose(kRed, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 2 ] items selected.");
    t.watcher.rowChanges = 0;
    Run();
    EXPECT_EQ(t.Ticks(), (Numbers{1, 1, 0, 1}));
    EXPECT_EQ(t.watcher.looks, (Flags{false, true}));
    EXPECT_TRUE(t.grid.GridVisible());
    EXPECT_EQ(t.watcher.rowChanges, 0);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowColourCommand, SelectsAfterTakingAllTicksAwayWithoutAsking) {
    PaintRedRows();
    t.Tick({2, 3});
    t.Hide({3});
    t.app.Exchange<RowColourMemory>().RemoveChecksAtStart = 1;
    Choose(kRed, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 2 ] items selected.");
    Run();
    EXPECT_EQ(t.Ticks(), (Numbers{1, 0, 0, 1}));
}

TEST_F(RowColourCommand, CountsAsAChangeEvenWhenNothingWasSelected) {
    Choose(kRed, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 0 ] items selected.");
    Run();
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: two-yellows.
TEST_F(RowColourCommand, DoesNotFindRowsThatTheKeyMadeYellow) {
    ColourCurrentRowByKey(t.tab, kYellow);
    Choose(kYellow, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 0 ] items selected.");
    Run();
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
}

TEST_F(RowColourCommand, NoLongerFindsDefaultRowsAfterAChangeOfBackground) {
    ColourCurrentRowByKey(t.tab, 0);
    Choose(0, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 1 ] items selected.");
    Run();
    t.user.ChooseColour(Colour{0x654321});
    mnuFormat_BColor_Clack(t.tab);
    Choose(0, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 0 ] items selected.");
    mnuFormat_RowColour_Clack(t.tab);
}

TEST_F(RowColourCommand, FiltersToTheRowsWhoseFirstCellHasTheAttribute) {
    for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough}) {
        TestTab fresh;
        fresh.Fill({{u"a", u"A"}, {u"b", u"B"}, {u"c", u"C"}});
        fresh.Hide({3});
        fresh.grid.SetRowFontFlag(Row{1}, flag, true);
        fresh.grid.SetRowFontFlag(Row{3}, flag, true);
        fresh.grid.SetCellFontFlag(Row{2}, Col{2}, flag, true);
        fresh.user.On<frmRowColour>([flag](frmRowColour& window) {
            window.optAttribute[static_cast<std::size_t>(flag)].Press();
            window.cmdFilterToAttribute.Press();
        });
        fresh.AnswerInformation(u"[ 2 ] items with chosen attribute.");
        fresh.watcher.refreshes = 0;
        mnuFormat_RowColour_Clack(fresh.tab);
        EXPECT_EQ(fresh.Visible(), (Flags{true, false, true}));
        EXPECT_EQ(fresh.watcher.refreshes, 1);
    }
}

TEST_F(RowColourCommand, AFilterToAnAttributeOfNoRowHidesAllRows) {
    ChooseFilter(CellFlag::Bold);
    t.AnswerInformation(u"[ 0 ] items with chosen attribute.");
    Run();
    EXPECT_EQ(t.Visible(), (Flags{false, false, false, false}));
    EXPECT_EQ(t.grid.RowCount(), Row{4});
}

// Kept for compatibility: filters-are-no-change.
TEST_F(RowColourCommand, AFilterDoesNotCountAsAChange) {
    ChooseFilter(CellFlag::Bold);
    t.user.Answer(Answer::Ok);
    Run();
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(RowColourCommand, AFilteredRowStaysTicked) {
    t.Tick({3});
    ChooseFilter(CellFlag::Bold);
    t.user.Answer(Answer::Ok);
    Run();
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 1, 0}));
}

TEST_F(RowColourCommand, RemovesTheFilterAndCountsAllRows) {
    t.Hide({1, 4});
    Choose(0, &frmRowColour::cmdRemoveFilter);
    t.AnswerInformation(u"[ 4 ] rows made visible again.");
    t.watcher.refreshes = 0;
    Run();
    EXPECT_EQ(t.Visible(), (Flags{true, true, true, true}));
    EXPECT_EQ(t.watcher.refreshes, 1);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(RowColourCommand, TellsItsCountWhenAllIsDoneButBeforeThePointerComesBack) {
    const auto expectDone = [this] {
        EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Hourglass);
        EXPECT_TRUE(t.grid.GridVisible());
    };
    for (CommandButton frmRowColour::*button :
         {&frmRowColour::cmdSelect, &frmRowColour::cmdFilterToAttribute, &frmRowColour::cmdRemoveFilter}) {
        t.watcher.focusWanted = 0;
        Choose(kRed, button);
        t.user.AnswerAfter(expectDone, Answer::Ok);
        mnuFormat_RowColour_Clack(t.tab);
        EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
        EXPECT_EQ(t.watcher.focusWanted, 1);
    }
}

TEST_F(RowColourCommand, TickAllCountsAndReachesOnlyTheRowsThatTheFilterLeaves) {
    t.grid.SetRowFontFlag(Row{3}, CellFlag::Bold, true);
    ChooseFilter(CellFlag::Bold);
    t.AnswerInformation(u"[ 1 ] items with chosen attribute.");
    Run();
    t.AnswerQuestion(u"Tick the boxes in [ 1 ] visible rows?", Answer::Yes);
    mnuSelAll_TickBoxes_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 1, 0}));
}

TEST_F(RowColourCommand, WorksOnATableWithoutRows) {
    t.grid.SetRowCount(Row{0});
    Choose(kRed, &frmRowColour::cmdAccept);
    mnuFormat_RowColour_Clack(t.tab);
    Choose(kRed, &frmRowColour::cmdSelect);
    t.AnswerInformation(u"[ 0 ] items selected.");
    mnuFormat_RowColour_Clack(t.tab);
    Choose(kRed, &frmRowColour::cmdRemoveFilter);
    t.AnswerInformation(u"[ 0 ] rows made visible again.");
    mnuFormat_RowColour_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{0});
}

class TableBackground : public RowLookCommands {};

TEST_F(TableBackground, TakesTheChosenColour) {
    t.user.ChooseColour(Colour{0x00FF00});
    t.watcher.refreshes = 0;
    mnuFormat_BColor_Clack(t.tab);
    EXPECT_EQ(t.user.ColourRequests(),
              (std::vector<ColourRequest>{{Colour{0xABCDEF}, ColourPicker::Extent::Full}}));
    EXPECT_EQ(t.table.TableBackColour, Colour{0x00FF00});
    EXPECT_EQ(t.grid.GridBackColor(), Colour{0x00FF00});
    EXPECT_EQ(t.watcher.refreshes, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: background-never-black.
TEST_F(TableBackground, CannotBeBlack) {
    t.user.ChooseColour(Colour{0});
    mnuFormat_BColor_Clack(t.tab);
    EXPECT_EQ(t.table.TableBackColour, Colour{0xABCDEF});
    EXPECT_EQ(t.grid.GridBackColor(), kNoColour);
    EXPECT_EQ(t.watcher.focusWanted, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(TableBackground, StaysAfterACancelAndWithoutAColourDialog) {
    t.user.ChooseColour(std::nullopt);
    mnuFormat_BColor_Clack(t.tab);
    t.app.SetPort<ColourPicker>(nullptr);
    mnuFormat_BColor_Clack(t.tab);
    EXPECT_EQ(t.table.TableBackColour, Colour{0xABCDEF});
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(TableBackground, TheDialogOpensOnBlackForATableThatHasNone) {
    t.table.TableBackColour.reset();
    t.user.ChooseColour(std::nullopt);
    mnuFormat_BColor_Clack(t.tab);
    EXPECT_EQ(t.user.ColourRequests().front().start, Colour{0});
}

} // namespace
} // namespace korvane
