#include "GridFixtures.h"
#include "grid/Grid.h"
#include "support/GridState.h"
#include "support/HandlerFailure.h"

#include <array>
#include <functional>
#include <random>

namespace korvane {
namespace {

/// A table whose changes are noted.
class GridStoreChangesTest : public GridTest {
protected:
    GridStoreChangesTest() {
        Resize(4, 3);
        FillColumn(Col{1}, {u"pear", u"fig", u"plum", u"apple"});
        FillColumn(Col{3}, {u"4", u"", u"2", u"1"});
        grid.SetCellCheckShown(Row{2}, true);
        grid.SetCellCheck(Row{2}, 1);
        grid.SetRowBackColor(Row{3}, Colour{255});
        grid.SetCellFontFlag(Row{1}, Col{2}, CellFlag::Bold, true);
        grid.SetCurRow(Row{2});
        grid.SetCurCol(Col{2});
        grid.NoteChanges(true);
    }

    /// The change can be taken back, made again and taken back, and each time nothing else is different.
    void ExpectTurns(const std::function<void(Grid&)>& change) {
        const std::string before = StateOf(grid);
        change(grid);
        const std::string after = StateOf(grid);
        EXPECT_NE(before, after);
        const auto changes = grid.TakeNotedChanges();
        ASSERT_NE(changes, nullptr);
        grid.TurnChanges(*changes);
        EXPECT_EQ(StateOf(grid), before);
        grid.TurnChanges(*changes);
        EXPECT_EQ(StateOf(grid), after);
        grid.TurnChanges(*changes);
        EXPECT_EQ(StateOf(grid), before);
        EXPECT_EQ(grid.TakeNotedChanges(), nullptr);
    }
    std::size_t MemoryOf(const std::function<void(Grid&)>& change) {
        change(grid);
        const auto changes = grid.TakeNotedChanges();
        return changes == nullptr ? 0 : changes->MemoryUse();
    }
};

TEST_F(GridStoreChangesTest, ATextIsTakenBack) {
    ExpectTurns([](Grid& g) { g.SetCellValue(Row{2}, Col{1}, u"date"); });
    ExpectTurns([](Grid& g) { g.SetCellValue(Row{2}, Col{2}, u"Я"); });
    ExpectTurns([](Grid& g) { g.SetCellValue(Row{1}, Col{1}, u""); });
}

TEST_F(GridStoreChangesTest, OfTwoTextsForACellTheFirstComesBack) {
    ExpectTurns([](Grid& g) {
        g.SetCellValue(Row{2}, Col{1}, u"a");
        g.SetCellValue(Row{2}, Col{1}, u"b");
        g.SetCellValue(Row{1}, Col{1}, u"c");
        g.SetCellValue(Row{2}, Col{1}, u"d");
    });
}

TEST_F(GridStoreChangesTest, WhatARowHasIsTakenBack) {
    ExpectTurns([](Grid& g) { g.SetRowHeight(Row{1}, 40); });
    ExpectTurns([](Grid& g) { g.SetRowHeight(Row{1}, g.RowHeight(Row{1})); });
    ExpectTurns([](Grid& g) { g.SetRowVisible(Row{1}, false); });
    ExpectTurns([](Grid& g) { g.SetCellCheck(Row{2}, 0); });
    ExpectTurns([](Grid& g) { g.SetCellCheckShown(Row{1}, true); });
}

TEST_F(GridStoreChangesTest, ColoursAndFlagsAreTakenBack) {
    ExpectTurns([](Grid& g) { g.SetCellBackColor(Row{3}, Col{2}, Colour{7}); });
    ExpectTurns([](Grid& g) { g.SetRowForeColor(Row{3}, Colour{7}); });
    ExpectTurns([](Grid& g) { g.SetRowFontFlag(Row{1}, CellFlag::Italic, true); });
    ExpectTurns([](Grid& g) { g.SetRowFontFlag(Row{1}, CellFlag::Bold, true); });
}

TEST_F(GridStoreChangesTest, CaptionsWidthsAndTheLookOfTheTableAreTakenBack) {
    ExpectTurns([](Grid& g) { g.SetColHeaderText(Col{2}, u"Kind"); });
    ExpectTurns([](Grid& g) { g.SetColWidth(Col{2}, 33); });
    ExpectTurns([](Grid& g) {
        g.SetGridBackColor(Colour{3});
        g.SetGridForeColor(Colour{4});
        g.SetGridFontName(u"Serif");
        g.SetGridFontSize(20);
    });
}

TEST_F(GridStoreChangesTest, RowsThatCameGoAndComeWithAllTheyHold) {
    ExpectTurns([](Grid& g) {
        g.SetRowCount(Row{6});
        g.SetCellValue(Row{6}, Col{1}, u"new");
        g.SetRowBackColor(Row{5}, Colour{9});
        g.SetCellFontFlag(Row{6}, Col{3}, CellFlag::Italic, true);
        g.SetRowHeight(Row{6}, 12);
        g.SetCellValue(Row{1}, Col{1}, u"old");
    });
}

TEST_F(GridStoreChangesTest, RowsThatWentComeWithAllTheyHold) {
    ExpectTurns([](Grid& g) { g.SetRowCount(Row{1}); });
    ExpectTurns([](Grid& g) { g.SetRowCount(Row{0}); });
    ExpectTurns([](Grid& g) {
        g.SetRowCount(Row{6});
        g.SetCellValue(Row{5}, Col{1}, u"new");
        g.SetRowCount(Row{2});
        g.SetCellValue(Row{2}, Col{1}, u"newer");
        g.SetRowCount(Row{5});
        g.SetCellValue(Row{4}, Col{1}, u"newest");
    });
}

TEST_F(GridStoreChangesTest, ColumnsThatCameGoAndComeWithAllTheyHold) {
    ExpectTurns([](Grid& g) {
        g.AddCol(u"9no", u"Ninth");
        g.SetCellValue(Row{2}, Col{4}, u"new");
        g.SetCellBackColor(Row{4}, Col{4}, Colour{6});
        g.SetColWidth(Col{4}, 66);
    });
    ExpectTurns([](Grid& g) { g.SetColCount(Col{6}); });
}

TEST_F(GridStoreChangesTest, AColumnThatWentComesWhereItStood) {
    ExpectTurns([](Grid& g) { g.RemoveCol(Col{2}); });
    ExpectTurns([](Grid& g) { g.RemoveCol(Col{1}); });
    ExpectTurns([](Grid& g) {
        g.RemoveCol(Col{3});
        g.RemoveCol(Col{1});
        g.SetRowBackColor(Row{1}, Colour{5});
        g.RemoveCol(Col{1});
        g.AddCol(u"x", u"X");
    });
    ExpectTurns([](Grid& g) { g.SetColCount(Col{0}); });
}

TEST_F(GridStoreChangesTest, TextsMovedOneColumnToTheRightMoveBack) {
    ExpectTurns([](Grid& g) { g.ShiftTextsRight(Col{1}); });
    ExpectTurns([](Grid& g) { g.ShiftTextsRight(Col{3}); });
    ExpectTurns([](Grid& g) {
        g.SetColCount(Col{4});
        g.ShiftTextsRight(Col{2});
        g.SetCellValue(Row{1}, Col{4}, u"moved");
    });
}

TEST_F(GridStoreChangesTest, ASortedTableTakesItsOldOrder) {
    ExpectTurns([](Grid& g) { g.SortByColumn(Col{1}, SortOrder::Ascending); });
    ExpectTurns([](Grid& g) {
        g.SetRowCount(Row{5});
        g.SetCellValue(Row{5}, Col{1}, u"lime");
        g.SortByColumn(Col{1}, SortOrder::Descending);
        g.SetCellValue(Row{1}, Col{1}, u"first");
    });
}

TEST_F(GridStoreChangesTest, LooksComeBackWhereTheLastColumnThatFollowedItsRowsWas) {
    Resize(2, 2);
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{1});
    grid.TakeNotedChanges();
    const std::string before = StateOf(grid);
    std::vector<std::unique_ptr<GridChanges>> all;
    const auto step = [&] { all.push_back(grid.TakeNotedChanges()); };
    grid.SetRowBackColor(Row{1}, Colour{2});
    step();
    grid.RemoveCol(Col{1});
    step();
    grid.SetRowBackColor(Row{1}, Colour{3});
    step();
    grid.RemoveCol(Col{1});
    step();
    while (!all.empty()) {
        grid.TurnChanges(*all.back());
        all.pop_back();
    }
    EXPECT_EQ(StateOf(grid), before);
}

TEST_F(GridStoreChangesTest, TheCurrentCellGoesWhereTheChangeWasMadeAndWhereItLed) {
    grid.SetRowCount(Row{9});
    grid.SetCurRow(Row{9});
    const auto changes = grid.TakeNotedChanges();
    grid.SetCurRow(Row{1});
    grid.TurnChanges(*changes);
    EXPECT_EQ(grid.CurRow(), Row{2});
    EXPECT_EQ(grid.CurCol(), Col{2});
    grid.TurnChanges(*changes);
    EXPECT_EQ(grid.CurRow(), Row{9});
}

TEST_F(GridStoreChangesTest, WhatChangesNothingIsntNoted) {
    grid.SetCellValue(Row{1}, Col{1}, u"pear");
    grid.SetCellCheck(Row{2}, 1);
    grid.SetRowBackColor(Row{3}, Colour{255});
    grid.SetColWidth(Col{1}, grid.ColWidth(Col{1}));
    grid.SetCurRow(Row{1});
    grid.SetGridVisible(false);
    grid.SetSortOnHeaderClick(true);
    grid.SetCellValue(Row{99}, Col{1}, u"x");
    EXPECT_EQ(grid.TakeNotedChanges(), nullptr);
}

TEST_F(GridStoreChangesTest, WhatIsAsBeforeInTheEndIsNoChange) {
    const auto comesBack = [this](const std::function<void(Grid&, bool)>& change) {
        change(grid, true);
        change(grid, false);
        return grid.TakeNotedChanges() == nullptr;
    };
    EXPECT_TRUE(comesBack([](Grid& g, bool to) {
        for (Row row{1}; row <= g.RowCount(); ++row)
            g.SetCellCheck(row, to == (row == Row{2}) ? 0 : 1);
    }));
    EXPECT_TRUE(comesBack([](Grid& g, bool to) {
        g.SetCellValue(Row{1}, Col{1}, to ? u"fig" : u"pear");
        g.SetCellValue(Row{2}, Col{1}, to ? u"pear" : u"fig");
    }));
    EXPECT_TRUE(comesBack([](Grid& g, bool to) {
        g.SetRowFontFlag(Row{3}, CellFlag::Bold, to);
        g.SetCellFontFlag(Row{4}, Col{1}, CellFlag::Bold, to);
    }));
    EXPECT_TRUE(comesBack([](Grid& g, bool to) {
        g.SetColWidth(Col{1}, to ? 7 : GridStore::kDefaultColWidth);
        g.SetGridFontSize(to ? 7 : 0);
    }));
}

TEST_F(GridStoreChangesTest, WhatIsOtherwiseInTheEndIsOneStepThatTurnsAsAWhole) {
    ExpectTurns([](Grid& g) {
        g.SetCellCheck(Row{1}, 1);
        g.SetCellCheck(Row{2}, 0);
        g.SetCellCheck(Row{1}, 0);
    });
    ExpectTurns([](Grid& g) {
        g.SetCellValue(Row{4}, Col{1}, u"last");
        g.SetRowCount(Row{2});
    });
    ExpectTurns([](Grid& g) {
        g.SetColWidth(Col{3}, 9);
        g.RemoveCol(Col{3});
    });
}

TEST_F(GridStoreChangesTest, ToMoveTextsWhereThereAreNoneIsNoChange) {
    FillColumn(Col{3}, {u"", u"", u"", u""});
    grid.TakeNotedChanges();
    grid.ShiftTextsRight(Col{2});
    EXPECT_EQ(grid.TakeNotedChanges(), nullptr);
    ExpectTurns([](Grid& g) { g.ShiftTextsRight(Col{1}); });
}

TEST_F(GridStoreChangesTest, ChangesGoOnBeingNotedWhereAListenerFails) {
    class Failing final : public GridListener {
        void RowsChanged(Row, Row) override { FailInHandler(); }
        void TableChanged() override { FailInHandler(); }
        void ColumnChanged(Col) override {}
        void LookChanged() override {}
        void CurrentCellChanged() override {}
        void FocusWanted() override {}
        void RowWantedInView(Row) override {}
    } failing;
    grid.SetCellValue(Row{1}, Col{1}, u"x");
    const auto changes = grid.TakeNotedChanges();
    grid.SetListener(&failing);
    EXPECT_THROW(grid.TurnChanges(*changes), HandlerFailure);
    EXPECT_THROW(grid.SetRowCount(Row{5}), HandlerFailure);
    grid.SetListener(nullptr);
    grid.SetCellValue(Row{2}, Col{1}, u"y");
    EXPECT_NE(grid.TakeNotedChanges(), nullptr);
}

TEST_F(GridStoreChangesTest, NothingIsNotedUnlessAskedFor) {
    grid.NoteChanges(false);
    grid.SetCellValue(Row{1}, Col{1}, u"date");
    EXPECT_EQ(grid.TakeNotedChanges(), nullptr);
    grid.NoteChanges(true);
    EXPECT_EQ(grid.TakeNotedChanges(), nullptr);
}

TEST_F(GridStoreChangesTest, MemoryGoesByWhatChangedNotByTheTable) {
    constexpr std::size_t kLittle = 1000;
    Resize(32767, 24);
    for (Row row{1}; row <= grid.RowCount(); ++row)
        grid.SetCellValue(row, Col{2}, u"a text of some length in every row");
    grid.TakeNotedChanges();
    EXPECT_LT(MemoryOf([](Grid& g) { g.SetCellValue(Row{9}, Col{2}, u"b"); }), kLittle);
    EXPECT_LT(MemoryOf([](Grid& g) { g.ShiftTextsRight(Col{1}); }), kLittle);
    EXPECT_LT(MemoryOf([](Grid& g) { g.SetColCount(Col{25}); }), kLittle);
    EXPECT_LT(MemoryOf([](Grid& g) { g.SetRowCount(Row{100}), g.SetRowCount(kMaxRows); }), 40'000'000u);
    EXPECT_LT(MemoryOf([](Grid& g) {
                  for (Row row{101}; row <= kMaxRows; ++row)
                      g.SetCellValue(row, Col{1}, NumberText(40000 - row.Number()));
              }),
              10'000'000u);
    EXPECT_LT(MemoryOf([](Grid& g) { g.SortByColumn(Col{1}, SortOrder::Ascending); }), 70'000u);
}

TEST_F(GridStoreChangesTest, WhatIsFilledInWithItsRowsTakesNoMemoryUntilItIsTakenBack) {
    const std::size_t use = MemoryOf([](Grid& g) {
        for (Row row{5}; row <= Row{1000}; ++row) {
            g.SetRowCount(row);
            g.SetCellValue(row, Col{1}, u"imported");
        }
    });
    EXPECT_LT(use, 1000u);
    EXPECT_EQ(grid.CellValue(Row{1000}, Col{1}), u"imported");
}

/// Hears what a shown grid would.
class CountingListener final : public GridListener {
public:
    int rows = 0;
    int tables = 0;

    void RowsChanged(Row, Row) override { ++rows; }
    void TableChanged() override { ++tables; }
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override {}
    void RowWantedInView(Row) override {}
};

TEST_F(GridStoreChangesTest, AViewHearsOfOneRowForOneTextAndOnceForManyChanges) {
    CountingListener listener;
    grid.SetListener(&listener);
    grid.SetCellValue(Row{1}, Col{1}, u"x");
    const auto one = grid.TakeNotedChanges();
    for (Row row{1}; row <= Row{4}; ++row)
        grid.SetCellCheck(row, 2);
    const auto many = grid.TakeNotedChanges();
    listener.rows = listener.tables = 0;
    grid.TurnChanges(*many);
    EXPECT_EQ(listener.rows, 0);
    EXPECT_EQ(listener.tables, 1);
    grid.TurnChanges(*one);
    EXPECT_EQ(listener.rows, 1);
    EXPECT_EQ(listener.tables, 1);
    grid.SetListener(nullptr);
}

/// Makes random changes in steps of random length.
class RandomChanges {
public:
    RandomChanges(unsigned seed, Grid& grid) : random_(seed), grid_(grid) {}

    void Step() {
        for (int count = 1 + Below(4); count > 0; --count)
            Change();
    }

private:
    void Change() {
        const Row row{1 + Below(12)};
        const Col col{1 + Below(5)};
        switch (Below(18)) {
        case 0:
            return grid_.SetRowCount(Row{Below(10)});
        case 1:
            return grid_.SetColCount(Col{Below(5)});
        case 2:
            return grid_.AddCol(NumberText(Below(9)) + u"no", u"caption");
        case 3:
            return grid_.RemoveCol(col);
        case 4:
            return grid_.ShiftTextsRight(col);
        case 5:
            return grid_.SortByColumn(col, Below(2) == 0 ? SortOrder::Ascending : SortOrder::Descending);
        case 6:
            return grid_.SetRowHeight(row, Below(99));
        case 7:
            return grid_.SetRowVisible(row, Below(2) == 0);
        case 8:
            return grid_.SetCellCheck(row, Below(2));
        case 9:
            return grid_.SetCellCheckShown(row, Below(2) == 0);
        case 10:
            return grid_.SetRowBackColor(row, Colour{Below(3)});
        case 11:
            return grid_.SetCellForeColor(row, col, Colour{Below(3)});
        case 12:
            return grid_.SetCellFontFlag(row, col, CellFlag::Bold, Below(2) == 0);
        case 13:
            return grid_.SetColHeaderText(col, NumberText(Below(99)));
        case 14:
            return grid_.SetColWidth(col, Below(99));
        case 15:
            return grid_.SetGridFontSize(Below(99));
        default:
            return grid_.SetCellValue(row, col, Below(5) == 0 ? Text() : NumberText(Below(999)));
        }
    }
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

    std::mt19937 random_;
    Grid& grid_;
};

class GridStoreChangesRandomTest : public testing::TestWithParam<unsigned> {};

TEST_P(GridStoreChangesRandomTest, EveryStateComesBackOnTheWayBackAndForth) {
    GridStore grid(CodePage::Windows1252());
    grid.NoteChanges(true);
    RandomChanges random(GetParam(), grid);
    std::vector<std::string> states{StateOf(grid)};
    std::vector<std::unique_ptr<GridChanges>> steps;
    while (steps.size() < 150) {
        random.Step();
        auto changes = grid.TakeNotedChanges();
        if (changes == nullptr) continue;
        steps.push_back(std::move(changes));
        states.push_back(StateOf(grid));
    }
    for (std::size_t step = steps.size(); step > 0; --step) {
        grid.TurnChanges(*steps[step - 1]);
        ASSERT_EQ(StateOf(grid), states[step - 1]) << "back before step " << step;
    }
    for (std::size_t step = 0; step < steps.size(); ++step) {
        grid.TurnChanges(*steps[step]);
        ASSERT_EQ(StateOf(grid), states[step + 1]) << "forth past step " << step + 1;
    }
    for (std::size_t step = steps.size(); step > 0; --step)
        grid.TurnChanges(*steps[step - 1]);
    EXPECT_EQ(StateOf(grid), states.front());
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridStoreChangesRandomTest, testing::Range(1u, 25u));

} // namespace
} // namespace korvane
