#include "table/model/TableHistory.h"

#include "support/TableBytes.h"
#include "support/TestTable.h"
#include "table/TableFile.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TableHistoryTest : public testing::Test {
protected:
    TableHistoryTest() {
        table.grid.SetColCount(Col{2});
        table.grid.SetRowCount(Row{3});
        history.EndStep();
        table.tab.history = &history;
    }
    void Write(int row, const Text& text) {
        table.grid.SetCellValue(Row{row}, Col{1}, text);
        history.EndStep();
    }
    Text Cell(int row) const { return table.grid.CellText(Row{row}, Col{1}); }

    TestTable table;
    TableHistory history{table.model, table.host};
};

TEST_F(TableHistoryTest, StepsAreUndoneLatestFirstAndRedoneInTheirOrder) {
    Write(1, u"a");
    Write(1, u"b");
    Write(2, u"c");
    EXPECT_TRUE(history.Undo());
    EXPECT_TRUE(history.Undo());
    EXPECT_EQ(Cell(1), u"a");
    EXPECT_EQ(Cell(2), u"");
    EXPECT_TRUE(history.Redo());
    EXPECT_EQ(Cell(1), u"b");
    EXPECT_TRUE(history.Redo());
    EXPECT_EQ(Cell(2), u"c");
    EXPECT_FALSE(history.Redo());
}

TEST_F(TableHistoryTest, WhereNothingIsLeftToUndoNothingHappens) {
    EXPECT_TRUE(history.Undo());
    table.model.TableAltered = 0;
    EXPECT_FALSE(history.Undo());
    EXPECT_EQ(table.model.TableAltered, 0);
}

TEST_F(TableHistoryTest, AnUndoAndARedoAlterTheTable) {
    Write(1, u"a");
    table.model.TableAltered = 0;
    history.Undo();
    EXPECT_EQ(table.model.TableAltered, 1);
    table.model.TableAltered = 0;
    history.Redo();
    EXPECT_EQ(table.model.TableAltered, 1);
}

TEST_F(TableHistoryTest, ANewStepForgetsWhatWasUndone) {
    Write(1, u"a");
    history.Undo();
    Write(2, u"b");
    EXPECT_FALSE(history.Redo());
    EXPECT_EQ(Cell(1), u"");
}

TEST_F(TableHistoryTest, WhatNobodyMadeAStepOfIsOneOfItsOwn) {
    Write(1, u"a");
    table.grid.SetCellValue(Row{2}, Col{1}, u"b");
    history.Undo();
    EXPECT_EQ(Cell(1), u"a");
    EXPECT_EQ(Cell(2), u"");
}

TEST_F(TableHistoryTest, TheModelsFieldsComeBackWithTheStepThatChangedThem) {
    table.model.SetRowHeight = std::int16_t{20};
    {
        const TableStep step(history);
        table.model.SetRowHeight = std::int16_t{30};
        table.model.TableBackColour = Colour{255};
        table.model.TableFontName = u"Serif";
        table.model.TableFontSize = std::int16_t{9};
        table.model.ColumnNames.Set(Col{2}, u"Kind");
    }
    history.Undo();
    EXPECT_EQ(table.model.SetRowHeight, 20);
    EXPECT_EQ(table.model.TableBackColour, std::nullopt);
    EXPECT_EQ(table.model.TableFontName, std::nullopt);
    EXPECT_EQ(table.model.TableFontSize, std::nullopt);
    EXPECT_EQ(table.model.ColumnNames[Col{2}], u"");
    EXPECT_EQ(table.host.shownRowHeights, std::vector<std::int16_t>{20});
    history.Redo();
    EXPECT_EQ(table.model.SetRowHeight, 30);
    EXPECT_EQ(table.model.TableFontName, u"Serif");
    EXPECT_EQ(table.model.ColumnNames[Col{2}], u"Kind");
}

TEST_F(TableHistoryTest, NamesOfAnyLengthAreOnlyThereOnce) {
    {
        const TableStep step(history);
        table.model.TableFontName = Text(1000, u'f');
        table.model.ColumnNames.Set(Col{1}, Text(1000, u'n'));
    }
    const TableAttributes copy = table.model;
    EXPECT_EQ(&copy.TableFontName->Whole(), &table.model.TableFontName->Whole());
    EXPECT_EQ(&copy.ColumnNames[Col{1}], &table.model.ColumnNames[Col{1}]);
}

TEST_F(TableHistoryTest, AStepWithinAStepIsUndoneByItself) {
    {
        const TableStep outer(history);
        table.grid.SetCellValue(Row{1}, Col{1}, u"a");
        {
            const TableStep inner(history);
            table.grid.SetCellValue(Row{2}, Col{1}, u"b");
        }
        table.grid.SetCellValue(Row{3}, Col{1}, u"c");
    }
    history.Undo();
    EXPECT_EQ(Cell(3), u"");
    EXPECT_EQ(Cell(2), u"b");
    history.Undo();
    EXPECT_EQ(Cell(2), u"");
    EXPECT_EQ(Cell(1), u"a");
}

TEST_F(TableHistoryTest, TheOldestStepsAreForgottenWhereMemoryRunsOut) {
    TableHistory small(table.model, table.host, 20000);
    for (int step = 1; step <= 100; ++step) {
        table.grid.SetCellValue(Row{1}, Col{1}, Text(1000, static_cast<char16_t>(u'0' + step % 10)));
        small.EndStep();
    }
    int undone = 0;
    while (small.Undo())
        ++undone;
    EXPECT_GT(undone, 2);
    EXPECT_LT(undone, 20);
}

TEST_F(TableHistoryTest, WhereTheSavedStateIsForgottenTheTableStaysAltered) {
    TableHistory tiny(table.model, table.host, 1);
    tiny.NoteSaved();
    table.grid.SetCellValue(Row{1}, Col{1}, u"a");
    tiny.EndStep();
    table.grid.SetCellValue(Row{1}, Col{1}, u"b");
    tiny.EndStep();
    ASSERT_TRUE(tiny.Undo());
    ASSERT_FALSE(tiny.Undo());
    EXPECT_EQ(Cell(1), u"a") << "what was saved is the state before";
    EXPECT_EQ(table.model.TableAltered, 1);
}

TEST_F(TableHistoryTest, StepsWithoutCellsTakeMemoryToo) {
    TableHistory small(table.model, table.host, 2000);
    for (std::int16_t height = 1; height <= 100; ++height) {
        const TableStep step(small);
        table.model.SetRowHeight = height;
    }
    int undone = 0;
    while (small.Undo())
        ++undone;
    EXPECT_GT(undone, 2);
    EXPECT_LT(undone, 50);
}

TEST_F(TableHistoryTest, UndoingAndRedoingOverAndOverForgetsNothing) {
    TableHistory small(table.model, table.host, 20000);
    const auto write = [&](int row) {
        table.grid.SetCellValue(Row{row}, Col{1}, u"text");
        small.EndStep();
    };
    write(1);
    write(2);
    for (int times = 0; times < 1000; ++times) {
        ASSERT_TRUE(small.Undo());
        ASSERT_TRUE(small.Redo());
    }
    write(3);
    EXPECT_TRUE(small.Undo());
    EXPECT_TRUE(small.Undo());
    EXPECT_TRUE(small.Undo());
}

TEST_F(TableHistoryTest, WhatChangesInTheModelOutsideOfACommandIsNoStep) {
    table.model.SetRowHeight = std::int16_t{30};
    history.EndStep();
    EXPECT_TRUE(history.Undo()) << "the step that made the table";
    EXPECT_FALSE(history.Undo());
    EXPECT_EQ(table.model.SetRowHeight, 30);
    {
        const TableStep step(history);
        table.model.TableFontSize = std::int16_t{9};
    }
    EXPECT_TRUE(history.Undo());
    EXPECT_EQ(table.model.TableFontSize, std::nullopt);
    EXPECT_EQ(table.model.SetRowHeight, 30);
}

TEST_F(TableHistoryTest, TheLatestStepIsKeptHoweverLargeItIs) {
    TableHistory tiny(table.model, table.host, 1);
    table.grid.SetCellValue(Row{1}, Col{1}, u"a");
    tiny.EndStep();
    table.grid.SetCellValue(Row{1}, Col{1}, u"b");
    tiny.EndStep();
    EXPECT_TRUE(tiny.Undo());
    EXPECT_EQ(Cell(1), u"a");
    EXPECT_FALSE(tiny.Undo());
}

TEST_F(TableHistoryTest, ALoadStartsANewHistory) {
    table.grid.SetColCount(Col{0});
    table.grid.SetRowCount(Row{0});
    const Text path = u"C:\\t.tbx";
    table.program.files.AddFile(path, NameTable(path, {"x"}));
    table.model.TxtDbFile = path;
    {
        const TableStep step(history);
        ReadTableData(table.tab);
    }
    EXPECT_FALSE(history.Undo());
    Write(1, u"edited");
    EXPECT_TRUE(history.Undo());
    EXPECT_EQ(Cell(1), u"x");
}

TEST_F(TableHistoryTest, ALoadOfAFileThatCannotBeReadLeavesTheHistoryOfTheTableThatStays) {
    Write(1, u"a");
    const Text path = u"C:\\t.tbx";
    table.program.files.AddFile(path, NameTable(path, {"x"}));
    table.program.files.Faults().FailNth(FileStep::OpenToRead, 1);
    table.program.user.Answer(Answer::Ok);
    table.model.TxtDbFile = path;
    {
        const TableStep step(history);
        ReadTableData(table.tab);
    }
    EXPECT_EQ(Cell(1), u"a");
    EXPECT_TRUE(history.Undo());
    EXPECT_EQ(Cell(1), u"");
}

TEST_F(TableHistoryTest, ASaveKeepsTheHistoryAndIsNoStep) {
    Write(1, u"a");
    table.grid.SetRowHeight(Row{1}, 50);
    history.EndStep();
    table.grid.SetCurRow(Row{1});
    table.model.TxtDbFile = u"C:\\t.tbx";
    {
        const TableStep step(history);
        SaveThisTable(table.tab);
    }
    EXPECT_EQ(table.model.SetRowHeight, 50);
    EXPECT_EQ(table.model.TableAltered, 0);
    history.Undo();
    EXPECT_NE(table.grid.RowHeight(Row{1}), 50);
    EXPECT_EQ(table.model.SetRowHeight, 50);
    EXPECT_EQ(table.model.TableAltered, 1);
    history.Undo();
    EXPECT_EQ(Cell(1), u"");
}

} // namespace
} // namespace korvane
