// Runs every command on tables that have too little, or too much, to work on.

#include "common/number/Number.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FontPicker.h"
#include "grid/GridStore.h"
#include "support/FakeSystemFileDialog.h"
#include "support/GridState.h"
#include "support/TableRoutines.h"
#include "testing/MemorySpreadsheet.h"
#include "unit/dbops/FakePorts.h"
#include "unit/dbops/OneMindedUser.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace korvane {
namespace {

/// No window of the commands has more buttons than this.
constexpr std::size_t kMostButtons = 10;
/// What the window for adding rows offers at most.
constexpr int kMostRowsAdded = 12;
constexpr Col kWidestByInsert{23};

struct Shape {
    const char* name;
    int rows;
    int cols;
    /// 0 leaves the grid without a current row or column.
    int curRow;
    int curCol;
};

constexpr std::array kShapes{
    Shape{"Empty", 0, 0, 0, 0},           Shape{"NoRows", 0, 3, 0, 2},
    Shape{"NoColumns", 3, 0, 2, 0},       Shape{"OneCell", 1, 1, 1, 1},
    Shape{"OneRow", 1, 3, 1, 3},          Shape{"OneColumn", 3, 1, 3, 1},
    Shape{"NoCurrentRow", 3, 3, 0, 2},    Shape{"NoCurrentColumn", 3, 3, 2, 0},
    Shape{"NoCurrentCell", 3, 3, 0, 0},   Shape{"WidestByInsert", 3, 23, 2, 2},
    Shape{"WidestInAFile", 3, 24, 3, 24}, Shape{"WiderThanAFile", 3, 30, 2, 30},
};

/// A ticked table of this shape on a tab, with everything around it that commands use.
class Bench {
public:
    Bench(const Shape& shape, std::optional<std::size_t> button) : user(button) {
        watcher.watched = &grid;
        grid.SetListener(&watcher);
        Fill(shape);
        app.SetPort<ColourPicker>(&user);
        app.SetPort<FontPicker>(&user);
        clipboardView.retrieves = button.has_value();
        if (button) dialog.answer = u"C:\\out.xls";
    }

    /// Whether a shown grid would be told of changes. It isn't when an update bracket was left open.
    bool IsHeard() {
        watcher.looks.clear();
        grid.SetGridForeColor(Colour{grid.GridForeColor().value + 1});
        return !watcher.looks.empty();
    }

    OneMindedUser user;
    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    std::vector<std::string> spreadsheetSteps;
    App app{{files, user, clipboard, clock, screen, shell, instance, user,
             [] { return std::make_unique<GridStore>(CodePage::Windows1252()); }, CodePage::Windows1252(),
             nullptr, [this] { return std::make_unique<MemorySpreadsheet>(spreadsheetSteps); }}};
    FakeTextWindow textWindow{app};
    FakeClipboardView clipboardView{app};
    FakeWordList wordList{app};
    FakeInsertTools insertTools{app};
    FakeMarkupPicker markupPicker{app};
    FakeSystemFileDialog dialog{app};
    GridStore grid{CodePage::Windows1252()};
    GridWatcher watcher;
    TableModel table{grid};
    RecordingHost host;
    TabContext tab{app, table, host};

private:
    void Fill(const Shape& shape) {
        grid.SetColCount(Col{shape.cols});
        grid.SetRowCount(Row{shape.rows});
        for (Row row{1}; row <= grid.RowCount(); ++row) {
            for (Col col{1}; col <= grid.ColCount(); ++col)
                grid.SetCellValue(row, col, NumberText(10 * row.Number() + col.Number()));
            grid.SetCellCheck(row, 1);
        }
        grid.SetCurRow(Row{shape.curRow});
        grid.SetCurCol(Col{shape.curCol});
    }
};

class DegenerateTable : public testing::TestWithParam<Shape> {
protected:
    /// Runs the command on a fresh table and checks what holds after any command.
    template <class Check>
    static void Run(const TableRoutine& command, std::optional<std::size_t> button, const Check& check) {
        SCOPED_TRACE(std::string(command.name) + " with button " + (button ? std::to_string(*button) : "-"));
        Bench bench(GetParam(), button);
        ASSERT_EQ(bench.grid.CurRow(), Row{GetParam().curRow});
        ASSERT_EQ(bench.grid.CurCol(), Col{GetParam().curCol});
        const std::string before = StateOf(bench.grid);
        command.run(bench.tab);
        EXPECT_LE(bench.grid.CurRow(), bench.grid.RowCount());
        EXPECT_LE(bench.grid.CurCol(), bench.grid.ColCount());
        EXPECT_EQ(bench.screen.CurrentPointer(), Pointer::Default);
        EXPECT_TRUE(bench.grid.GridVisible());
        EXPECT_TRUE(bench.user.LoadedForms().empty());
        check(bench, before);
        EXPECT_TRUE(bench.IsHeard());
    }

    static int RowsAdded(const Bench& bench) { return bench.grid.RowCount() - Row{GetParam().rows}; }

    /// How many columns the table has after the command.
    static Col ColsAfter(std::string_view command) {
        const Col cols{GetParam().cols};
        const bool hasCurrent = GetParam().curCol > 0;
        if (command == "mnuEdit_InsertColumn" && cols < kWidestByInsert) return cols + 1;
        if (command == "mnuEdit_DeleteColumn" && hasCurrent) return cols - 1;
        return cols;
    }
};

int MostRowsAddedBy(std::string_view command) {
    if (command == "mnuEdit_AddRows") return kMostRowsAdded;
    return command == "mnuEdit_AddOneRow" || command == "mnuCalc_Add" ? 1 : 0;
}

TEST_P(DegenerateTable, KeepsItsLimitsUnderEveryButtonOfEveryCommandsWindows) {
    for (const TableRoutine& command : TableRoutines()) {
        for (std::size_t button = 0; button < kMostButtons; ++button) {
            Run(command, button, [&](const Bench& bench, const std::string&) {
                EXPECT_EQ(bench.grid.ColCount(), ColsAfter(command.name));
                EXPECT_GE(RowsAdded(bench), 0);
                EXPECT_LE(RowsAdded(bench), MostRowsAddedBy(command.name));
            });
        }
    }
}

TEST_P(DegenerateTable, GetsTheRowsOfEachCommandThatAddsSome) {
    for (const TableRoutine& command : TableRoutines()) {
        Run(command, 0, [&](const Bench& bench, const std::string&) {
            EXPECT_EQ(RowsAdded(bench), MostRowsAddedBy(command.name));
        });
    }
}

TEST_P(DegenerateTable, IsLeftAloneByEveryCommandThatAsksAndIsCancelled) {
    for (const TableRoutine& command : TableRoutines()) {
        Run(command, std::nullopt, [&](const Bench& bench, const std::string& before) {
            if (bench.user.asked == 0) return;
            EXPECT_EQ(StateOf(bench.grid), before);
            EXPECT_EQ(bench.table.TableAltered, command.name == "mnuEdit_SetRowHeight" ? 1 : 0);
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Each, DegenerateTable, testing::ValuesIn(kShapes),
                         [](const auto& shape) { return std::string(shape.param.name); });

} // namespace
} // namespace korvane
