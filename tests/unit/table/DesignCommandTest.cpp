#include "table/DesignCommand.h"

#include "support/TableBytes.h"
#include "support/TestTable.h"
#include "table/SaveCommands.h"
#include "table/TableFile.h"
#include "table/frmDesignTable.h"
#include "unit/table/GridWatch.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

class Design : public testing::Test {
protected:
    explicit Design(const PathStyle& style = PathStyle::Windows) : on(style) {
        if (style.HasDrives()) {
            on.program.files.AddDir(u"C:\\Work");
            on.program.files.ChangeDir(u"C:\\Work");
        }
    }
    /// The user makes a table with these titles.
    void Make(const std::vector<Text>& titles) {
        user.On<frmDesignTable>([titles](frmDesignTable& f) {
            int entry = 0;
            for (const Text& title : titles) {
                f.ListView1.Select(++entry);
                f.txtColumnName.Text = title;
                f.cmdAssign.Press();
            }
            f.cmdMake.Press();
        });
        mnuEdit_DesignDb_Clack(on.tab);
    }
    void Cancel() {
        user.On<frmDesignTable>([](frmDesignTable& f) { f.cmdCancel.Press(); });
        mnuEdit_DesignDb_Clack(on.tab);
    }
    Text Header(int col) const { return on.grid.ColHeaderText(Col{col}); }

    TestTable on;
    TableModel& table = on.model;
    ScriptedUser& user = on.program.user;
};

class PosixDesign : public Design {
protected:
    PosixDesign() : Design(PathStyle::Posix) {}
};

TEST_F(Design, MakesEightEmptyRowsWithCheckBoxes) {
    Make({u"Name", u"Town"});
    EXPECT_EQ(on.grid.RowCount(), Row{8});
    for (Row row{1}; row <= Row{8}; ++row) {
        EXPECT_TRUE(on.grid.HasRowHeight(row));
        EXPECT_EQ(on.grid.RowHeight(row), 24);
        EXPECT_TRUE(on.grid.CellCheckShown(row));
        EXPECT_EQ(on.grid.CellValue(row, Col{1}), u"");
    }
}

TEST_F(Design, TheFirstCellIsTheCurrentOne) {
    Make({u"Name", u"Town"});
    EXPECT_EQ(on.grid.CurRow(), Row{1});
    EXPECT_EQ(on.grid.CurCol(), Col{1});
}

TEST_F(Design, MakesAColumnForEachTitle) {
    Make({u"Name", u"Town"});
    ASSERT_EQ(on.grid.ColCount(), Col{2});
    EXPECT_EQ(on.grid.ColKey(Col{1}), u"1no");
    EXPECT_EQ(on.grid.ColKey(Col{2}), u"2no");
    EXPECT_EQ(Header(1), u"Name");
    EXPECT_EQ(Header(2), u"Town");
    EXPECT_EQ(on.grid.ColWidth(Col{1}), 240);
    EXPECT_EQ(on.grid.ColWidth(Col{2}), 240);
    EXPECT_EQ(table.ColumnNames[Col{1}], u"Name");
    EXPECT_EQ(table.ColumnNames[Col{2}], u"Town");
}

TEST_F(Design, EmptiesTheNamesBehindItsOwn) {
    table.ColumnNames.Set(Col{3}, u"of before");
    Make({u"Name", u"Town"});
    EXPECT_EQ(table.ColumnNames[Col{3}], u"");
}

TEST_F(Design, TwentyFourTitlesMakeTheWidestTable) {
    Make(std::vector<Text>(24, u"x"));
    EXPECT_EQ(on.grid.ColCount(), MaxColumns);
    EXPECT_EQ(table.ColumnNames[MaxColumns], u"x");
}

TEST_F(Design, GivesTheTableItsLook) {
    Make({u"Name"});
    EXPECT_EQ(on.grid.GridForeColor(), Colour{0xC00000});
    EXPECT_EQ(on.grid.GridBackColor(), Colour{0xFFFFFF});
    EXPECT_EQ(on.grid.GridFontName(), u"Calibri");
    EXPECT_EQ(on.grid.GridFontSize(), 12);
    EXPECT_EQ(table.SetRowHeight, 24);
    EXPECT_EQ(table.TableBackColour, Colour{0xFFFFFF});
    EXPECT_EQ(table.TableFontName, u"Calibri");
    EXPECT_EQ(table.TableFontSize, 12);
    EXPECT_EQ(on.host.shownRowHeights, std::vector<std::int16_t>{24});
}

// Kept for compatibility: design-leaves-sorting.
TEST_F(Design, LeavesSortingAsItWasWhateverTheSettings) {
    on.program.app.Settings.AllowSorting = 1;
    Make({u"Name"});
    EXPECT_FALSE(on.grid.SortOnHeaderClick());
    on.grid.SetSortOnHeaderClick(true);
    on.program.app.Settings.AllowSorting = 0;
    table.TableAltered = 0;
    Make({u"Town"});
    EXPECT_TRUE(on.grid.SortOnHeaderClick());
}

TEST_F(Design, TakesTheDefaultNameInTheCurrentDirectory) {
    Make({u"Name"});
    EXPECT_EQ(table.TxtDbFile, u"C:\\Work\\NewTextDatabase.tbx");
    EXPECT_EQ(on.host.captions, std::vector<Text>{u"C:\\Work\\NewTextDatabase.tbx"});
    EXPECT_EQ(table.TableAltered, 1);
}

TEST_F(Design, ADirectoryThatEndsInABackslashGetsNoSecondOne) {
    on.program.files.ChangeDir(u"C:\\");
    Make({u"Name"});
    EXPECT_EQ(table.TxtDbFile, u"C:\\NewTextDatabase.tbx");
}

TEST_F(PosixDesign, NamesTheFileInTheStyleOfTheSystem) {
    on.program.files.AddDir(u"/home/anna");
    on.program.files.ChangeDir(u"/home/anna");
    Make({u"Name"});
    EXPECT_EQ(table.TxtDbFile, u"/home/anna/NewTextDatabase.tbx");
    on.program.files.ChangeDir(u"/");
    table.TableAltered = 0;
    Make({u"Name"});
    EXPECT_EQ(table.TxtDbFile, u"/NewTextDatabase.tbx");
}

TEST_F(Design, MakesNoFileAndTouchesNone) {
    const Text path = u"C:\\Work\\NewTextDatabase.tbx";
    Make({u"Name"});
    EXPECT_FALSE(on.program.files.FileExists(path));
    on.program.files.AddFile(path, "of before");
    table.TableAltered = 0;
    Make({u"Name"});
    EXPECT_EQ(on.program.files.Contents(path), "of before");
}

TEST_F(Design, ItsFirstSaveGoesOnAsSaveAs) {
    Make({u"Name"});
    user.Answer({u"Cannot save this file: \r\n\r\nC:\\Work\\NewTextDatabase.tbx\r\n\r\nTry saving it "
                 u"explicitly.",
                 MessageIcon::Stop},
                Answer::Ok);
    user.ChooseFile(u"C:\\Work\\mine.tbx");
    mnuFile_Save_Clack(on.tab);
    EXPECT_EQ(table.TxtDbFile, u"C:\\Work\\mine.tbx");
    ASSERT_TRUE(on.program.files.FileExists(u"C:\\Work\\mine.tbx"));

    TestTable again;
    again.program.files.AddFile(u"C:\\mine.tbx", *on.program.files.Contents(u"C:\\Work\\mine.tbx"));
    again.model.TxtDbFile = u"C:\\mine.tbx";
    ReadTableData(again.tab);
    EXPECT_EQ(again.grid.ColHeaderText(Col{1}), u"Name");
    EXPECT_EQ(again.grid.RowCount(), Row{8});
}

// Kept for compatibility: design-overwrites-file.
TEST_F(Design, AnExistingFileOfTheDefaultNameIsOverwrittenBySaveWithoutAsking) {
    const Text path = u"C:\\Work\\NewTextDatabase.tbx";
    on.program.files.AddFile(path, "of before");
    Make({u"Name"});
    mnuFile_Save_Clack(on.tab);
    EXPECT_NE(on.program.files.Contents(path), "of before");
    EXPECT_EQ(table.TableAltered, 0);
}

// Kept for compatibility: design-adds-columns.
TEST_F(Design, AddsItsColumnsToThoseOfTheGridAndClearsNothing) {
    on.grid.AddCol(u"1no", u"Old");
    on.grid.SetColWidth(Col{1}, 77);
    on.grid.SetRowCount(Row{2});
    on.grid.SetCellValue(Row{2}, Col{1}, u"kept");
    Make({u"Name", u"Town"});
    ASSERT_EQ(on.grid.ColCount(), Col{3});
    EXPECT_EQ(Header(1), u"Old");
    EXPECT_EQ(Header(2), u"Name");
    EXPECT_EQ(Header(3), u"Town");
    EXPECT_EQ(on.grid.CellValue(Row{2}, Col{1}), u"kept");
    EXPECT_EQ(on.grid.RowCount(), Row{8});
    EXPECT_EQ(on.grid.ColWidth(Col{1}), 240);
}

// Kept for compatibility: design-has-eight-rows.
TEST_F(Design, DropsTheRowsBeyondEight) {
    on.grid.AddCol(u"1no", u"Old");
    on.grid.SetRowCount(Row{20});
    on.grid.SetCellValue(Row{8}, Col{1}, u"kept");
    on.grid.SetCellValue(Row{9}, Col{1}, u"lost");
    Make({u"Name"});
    EXPECT_EQ(on.grid.RowCount(), Row{8});
    EXPECT_EQ(on.grid.CellValue(Row{8}, Col{1}), u"kept");
}

// Kept for compatibility: design-adds-columns.
TEST_F(Design, ASecondOneGrowsATableBeyondItsMostColumns) {
    Make(std::vector<Text>(24, u"x"));
    table.TableAltered = 0;
    Make(std::vector<Text>(24, u"y"));
    EXPECT_EQ(on.grid.ColCount(), Col{48});
    EXPECT_EQ(Header(24), u"x");
    EXPECT_EQ(Header(48), u"y");
    EXPECT_EQ(table.ColumnNames[MaxColumns], u"y");
}

TEST_F(Design, TheGridHearsOfItOnce) {
    GridWatch watch;
    on.grid.SetListener(&watch);
    Make({u"Name", u"Town"});
    EXPECT_EQ(watch.tableChanges, 1);
    EXPECT_EQ(watch.rowChanges, 0);
    on.grid.SetListener(nullptr);
}

TEST_F(Design, ACancelLeavesTheTabAsItIs) {
    Cancel();
    EXPECT_EQ(on.grid.ColCount(), Col{0});
    EXPECT_EQ(on.grid.RowCount(), Row{0});
    EXPECT_EQ(table.TxtDbFile, u"");
    EXPECT_EQ(table.TableAltered, 0);
    EXPECT_TRUE(on.host.captions.empty());
}

// Kept for compatibility: design-cancel-takes-titles.
TEST_F(Design, ACancelTakesTheTitlesOfAnEarlierDesignAgain) {
    Make({u"Name"});
    table.TableAltered = 0;
    table.TxtDbFile.clear();
    Cancel();
    EXPECT_EQ(on.grid.ColCount(), Col{2});
    EXPECT_EQ(Header(2), u"Name");
    EXPECT_EQ(table.TxtDbFile, u"C:\\Work\\NewTextDatabase.tbx");
    EXPECT_EQ(table.TableAltered, 1);
}

TEST_F(Design, AsksAboutChangesFirst) {
    table.TableAltered = 1;
    user.Answer({u"The text database has been changed.\r\n\r\n\r\n\r\nDo you want to save the changes?\r\n",
                 MessageIcon::None, MessageButtons::YesNoCancel},
                Answer::Cancel);
    mnuEdit_DesignDb_Clack(on.tab);
    EXPECT_EQ(on.grid.ColCount(), Col{0});
    user.Answer(Answer::No);
    Make({u"Name"});
    EXPECT_EQ(on.grid.ColCount(), Col{1});
}

TEST_F(Design, GoesOnAfterTheChangesWereSavedAndNotWithoutAName) {
    table.TableAltered = 1;
    user.Answer(Answer::Yes);
    user.CancelChooser();
    mnuEdit_DesignDb_Clack(on.tab);
    EXPECT_EQ(on.grid.ColCount(), Col{0});
    user.Answer(Answer::Yes);
    user.ChooseFile(u"C:\\Work\\old.tbx");
    Make({u"Name"});
    EXPECT_TRUE(on.program.files.FileExists(u"C:\\Work\\old.tbx"));
    EXPECT_EQ(on.grid.ColCount(), Col{1});
    EXPECT_EQ(table.TxtDbFile, u"C:\\Work\\NewTextDatabase.tbx");
}

TEST_F(Design, EndsWithTheKeyboardInTheGridHoweverItWent) {
    GridWatch watch;
    on.grid.SetListener(&watch);
    Cancel();
    EXPECT_EQ(watch.wanted, 1);
    table.TableAltered = 1;
    user.Answer(Answer::Cancel);
    mnuEdit_DesignDb_Clack(on.tab);
    EXPECT_EQ(watch.wanted, 2);
    table.TableAltered = 0;
    Make({u"Name"});
    EXPECT_EQ(watch.wanted, 3);
    on.grid.SetListener(nullptr);
}

} // namespace
} // namespace korvane
