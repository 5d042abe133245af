#include "RandomTab.h"

#include "TableWatch.h"
#include "common/number/Number.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FilePicker.h"
#include "context/ports/FontPicker.h"
#include "dbops/rules/UndoCommands.h"
#include "grid/Grid.h"
#include "support/GridState.h"
#include "support/TableBytes.h"
#include "support/TableRoutines.h"
#include "table/TableFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace korvane {

namespace {

const Text kPath = u"C:\\Data\\random.tbx";

bool IsUndoing(TabRoutine routine) {
    return routine == &UndoEdit || routine == &RedoEdit;
}

std::string RandomFile(Chance& chance) {
    const CodePage page = CodePage::Windows1252();
    const int cols = chance.OneIn(5) ? 22 + chance.Below(3) : chance.Below(5);
    std::vector<TestRow> rows(static_cast<std::size_t>(chance.Below(8)));
    TestRow names;
    for (int col = 0; col < cols; ++col) {
        names.push_back("Column" + std::to_string(col));
        for (TestRow& row : rows)
            row.push_back(page.ToBytes(chance.SomeText()));
    }
    return TableBytes(kPath, names, rows);
}

} // namespace

RandomTab::RandomTab(unsigned seed) : chance_(seed) {
    app_.SetPort<FilePicker>(&user_);
    app_.SetPort<ColourPicker>(&user_);
    app_.SetPort<FontPicker>(&user_);
    app_.Settings.AllowSorting = chance_.OneIn(4) ? std::int16_t{0} : std::int16_t{1};
    tab_.Tag = NumberText(states_.FindFreeIndex());
    tab_.EnsureLoaded();
    files_.AddFile(kPath, RandomFile(chance_));
    tab_.Table().TxtDbFile = kPath;
    tab_.iGrid1.ShownWidth = Twips{9000};
    tab_.Run(&ReadTableData);
    firstBytes_ = SavedBytes();
    firstState_ = State();
}

void RandomTab::Act() {
    static constexpr void (RandomTab::*kGestures[])() = {
        &RandomTab::Edit,       &RandomTab::Edit,       &RandomTab::Tick,          &RandomTab::Sort,
        &RandomTab::DragColumn, &RandomTab::MoveSlider, &RandomTab::TypeRowHeight, &RandomTab::Find,
        &RandomTab::Go,         &RandomTab::Save,       &RandomTab::UndoOrRedo,
    };
    user_.ForgetMessages();
    if (chance_.OneIn(3))
        (this->*chance_.Pick(kGestures))();
    else
        RunCommand();
}

void RandomTab::RunCommand() {
    static const std::vector<TableRoutine> kRoutines = TableRoutines();
    const TableRoutine& routine = chance_.Pick(kRoutines);
    if (IsUndoing(routine.run)) return UndoOrRedo();
    trace_.append(routine.name).append(" ");
    const TableMoment before(tab_);
    tab_.Run(routine.run);
    CheckCommand(routine.name, before, TableMoment(tab_), user_.Messages());
}

void RandomTab::UndoOrRedo() {
    const bool undoes = chance_.OneIn(2);
    const TabRoutine turn = undoes ? &UndoEdit : &RedoEdit;
    trace_ += undoes ? "undo " : "redo ";
    const std::string before = State();
    if (!Turn(turn)) {
        EXPECT_EQ(State(), before);
        return;
    }
    const std::string after = State();
    EXPECT_TRUE(Turn(undoes ? &RedoEdit : &UndoEdit));
    EXPECT_EQ(State(), before);
    EXPECT_TRUE(Turn(turn));
    EXPECT_EQ(State(), after);
}

bool RandomTab::Turn(TabRoutine routine) {
    // Undoing sets the mark either way: at the saved state the table isn't altered any more.
    constexpr std::int16_t kUntouched = 7;
    tab_.Table().TableAltered = kUntouched;
    tab_.Run(routine);
    const bool turned = tab_.Table().TableAltered != kUntouched;
    if (!turned) tab_.Table().TableAltered = 0;
    return turned;
}

void RandomTab::Edit() {
    const Row row = SomeRow();
    const Col col = SomeCol();
    trace_ += "edit(" + std::to_string(row.Number()) + "," + std::to_string(col.Number()) + ") ";
    const bool there = Store().HasRow(row) && Store().HasCol(col);
    TableMoment expected(tab_);
    const Text text = chance_.SomeText();
    tab_.iGrid1.CommitEdit(row, col, text);
    if (there)
        expected
            .texts[static_cast<std::size_t>(row.Number() - 1)][static_cast<std::size_t>(col.Number() - 1)] =
            text;
    EXPECT_EQ(TableMoment(tab_).texts, expected.texts);
}

void RandomTab::Tick() {
    trace_ += "tick ";
    const TableMoment before(tab_);
    tab_.iGrid1.ClickCheck(SomeRow());
    EXPECT_EQ(TableMoment(tab_).texts, before.texts);
}

void RandomTab::Sort() {
    const Col col = SomeCol();
    trace_ += "sort" + std::to_string(col.Number()) + " ";
    const TableMoment before(tab_);
    tab_.iGrid1.ClickHeader(col);
    const TableMoment after(tab_);
    if (Store().SortOnHeaderClick() && Store().HasCol(col)) {
        CheckSort(col, before, after);
    } else {
        EXPECT_EQ(after.texts, before.texts);
    }
}

void RandomTab::DragColumn() {
    trace_ += "drag ";
    for (int steps = chance_.Below(4); steps > 0; --steps)
        tab_.iGrid1.DragColumn(SomeCol(), chance_.Below(500));
    if (!chance_.OneIn(4)) tab_.iGrid1.ReleaseColumn();
}

void RandomTab::MoveSlider() {
    trace_ += "slider ";
    for (int moves = 1 + chance_.Below(3); moves > 0; --moves)
        tab_.ZoomSlider.MoveTo(13 + chance_.Below(348));
    if (!chance_.OneIn(4)) tab_.ZoomSlider.Release();
}

void RandomTab::TypeRowHeight() {
    trace_ += "height ";
    tab_.txtRowHeight.Text = NumberText(chance_.Below(500) - 20);
    KeyEvent key{Key::Return, Mask::Ctrl | Mask::Shift};
    tab_.txtRowHeight.KeyDown(key);
}

void RandomTab::Find() {
    trace_ += "find ";
    const TableMoment before(tab_);
    const Text part = chance_.SomeText();
    tab_.txtFindString.Text = part;
    tab_.cmdFind.Press();
    const TableMoment after(tab_);
    EXPECT_EQ(after.texts, before.texts);
    EXPECT_EQ(after.altered, before.altered);
    const bool found = !part.empty() && user_.Messages().empty();
    if (found) {
        EXPECT_NE(Store().CellText(after.curRow, after.curCol).find(part), Text::npos);
    }
}

void RandomTab::Go() {
    Store().SetCurRow(SomeRow());
    Store().SetCurCol(SomeCol());
}

void RandomTab::Save() {
    // A save gives the model the height of the current row, and a table without rows has no row that could
    // set the height back. So nothing is saved when the table has, or had at first, no rows.
    if (Store().RowCount() == Row{0} || firstState_.starts_with("0|")) return;
    trace_ += "save ";
    const std::string before = State();
    tab_.Run(&SaveThisTable);
    EXPECT_EQ(tab_.Table().TableAltered, 0);
    EXPECT_EQ(State(), before);
}

void RandomTab::GoBackAndForth() {
    if (tab_.ZoomSlider.Value > 13) tab_.ZoomSlider.Release();
    const std::string lastBytes = SavedBytes();
    const std::string lastState = State();
    int undone = 0;
    while (Turn(&UndoEdit))
        ++undone;
    EXPECT_EQ(SavedBytes(), firstBytes_);
    EXPECT_EQ(State(), firstState_);
    for (int redone = 0; redone < undone; ++redone)
        EXPECT_TRUE(Turn(&RedoEdit));
    EXPECT_EQ(SavedBytes(), lastBytes);
    EXPECT_EQ(State(), lastState);
}

/// Saves with the first cell as the current one, because its row gives the file the height.
std::string RandomTab::SavedBytes() {
    Store().SetCurRow(Row{1});
    Store().SetCurCol(Col{1});
    tab_.Run(&SaveThisTable);
    return files_.Contents(kPath).value_or("(no such file)");
}

std::string RandomTab::State() {
    std::string state = StateOf(Store());
    const TableModel& table = tab_.Table();
    for (Col col{1}; col <= MaxColumns; ++col)
        state += ToUtf8(table.ColumnNames[col]) + "|";
    state += ToUtf8(table.TableFontName.value_or(Text())) + "|" +
             std::to_string(table.TableFontSize.value_or(std::int16_t{0})) + "|" +
             std::to_string(table.TableBackColour.value_or(Colour{0}).value);
    return state;
}

} // namespace korvane
