#include "table/ImportCommand.h"

#include "context/ports/ClipboardView.h"
#include "grid/GridStore.h"
#include "support/HandlerFailure.h"
#include "support/TableBytes.h"
#include "support/TestTable.h"
#include "table/SaveCommands.h"
#include "table/TableFile.h"
#include "table/model/TabbedText.h"
#include "unit/table/GridWatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

/// A hundred megabytes at two bytes a character. Where every access to memory is checked, a shorter text is
/// enough.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t kVeryLong = 5'000'000;
#else
constexpr std::size_t kVeryLong = 50'000'000;
#endif

/// Offers the clipboard, and retrieves it unless told otherwise.
class OfferedClipboard final : public ClipboardView {
public:
    explicit OfferedClipboard(App& app) { app.SetPort<ClipboardView>(this); }
    int offered = 0;
    bool retrieves = true;

    void Show() override { ADD_FAILURE() << "an import lets the user choose"; }
    bool Choose() override {
        ++offered;
        return retrieves;
    }
};

class Import : public testing::Test {
protected:
    Import() {
        on.program.files.AddDir(u"C:\\Work");
        on.program.files.ChangeDir(u"C:\\Work");
        on.host.SetTabCaption(u"Untitled_1.tbx");
        on.grid.SetListener(&watch);
    }
    ~Import() override { on.grid.SetListener(nullptr); }

    /// The user imports the text.
    void Take(const Text& text) {
        on.program.clipboard.SetText(text);
        user.Answer(question, Answer::Yes);
        mnuImport_Clip_Clack(on.tab);
    }
    Text Cell(int row, int col) const { return on.grid.CellValue(Row{row}, Col{col}); }
    void ExpectSize(int rows, int cols) const {
        EXPECT_EQ(on.grid.RowCount(), Row{rows});
        EXPECT_EQ(on.grid.ColCount(), Col{cols});
    }

    TestTable on;
    TableModel& table = on.model;
    ScriptedUser& user = on.program.user;
    OfferedClipboard view{on.program.app};
    GridWatch watch;
    const Message question{u"A new database with the clipboard contents will be made. Continue?",
                           MessageIcon::Question, MessageButtons::YesNo};
};

TEST_F(Import, MakesARowOfEachLineAndACellOfEachTab) {
    Take(u"a\tb\tc\nd\te\tf\n");
    ExpectSize(2, 3);
    EXPECT_EQ(Cell(1, 1), u"a");
    EXPECT_EQ(Cell(1, 3), u"c");
    EXPECT_EQ(Cell(2, 1), u"d");
    EXPECT_EQ(Cell(2, 2), u"e");
    EXPECT_EQ(Cell(2, 3), u"f");
    EXPECT_EQ(view.offered, 1);
}

TEST_F(Import, NamesAndKeysTheColumnsByTheirNumbers) {
    Take(u"a\tb");
    EXPECT_EQ(on.grid.ColHeaderText(Col{1}), u"Col. 1");
    EXPECT_EQ(on.grid.ColHeaderText(Col{2}), u"Col. 2");
    EXPECT_EQ(on.grid.ColKey(Col{1}), u"1no");
    EXPECT_EQ(on.grid.ColKey(Col{2}), u"2no");
    EXPECT_EQ(on.grid.ColWidth(Col{1}), 240);
    EXPECT_EQ(on.grid.ColWidth(Col{2}), 240);
}

TEST_F(Import, GivesTheGridItsLook) {
    Take(u"a");
    EXPECT_EQ(on.grid.GridForeColor(), Colour{0xC00000});
    EXPECT_EQ(on.grid.GridBackColor(), Colour{0xFFFFFF});
    EXPECT_EQ(on.grid.GridFontName(), u"Calibri");
    EXPECT_EQ(on.grid.GridFontSize(), 12);
}

TEST_F(Import, TextWithoutATabMakesOneColumn) {
    Take(u"a\nb\nc\n");
    ExpectSize(3, 1);
    EXPECT_EQ(Cell(3, 1), u"c");
}

TEST_F(Import, TextWithoutALineEndMakesOneRow) {
    Take(u"a\tb");
    ExpectSize(1, 2);
    EXPECT_EQ(Cell(1, 2), u"b");
}

TEST_F(Import, AnEmptyClipboardMakesOneEmptyCell) {
    Take(u"");
    ExpectSize(1, 1);
    EXPECT_EQ(Cell(1, 1), u"");
    EXPECT_EQ(on.grid.ColHeaderText(Col{1}), u"Col. 1");
    EXPECT_EQ(table.TableAltered, 1);
}

TEST_F(Import, AClipboardWithoutTextMakesOneEmptyCellToo) {
    on.program.clipboard.Clear();
    user.Answer(question, Answer::Yes);
    mnuImport_Clip_Clack(on.tab);
    ExpectSize(1, 1);
    EXPECT_EQ(Cell(1, 1), u"");
}

// Kept for compatibility: import-keeps-cr.
TEST_F(Import, OfCrLfTheCrStaysInTheLastCell) {
    Take(u"a\tb\r\nc\td\r\n");
    ExpectSize(2, 2);
    EXPECT_EQ(Cell(1, 1), u"a");
    EXPECT_EQ(Cell(1, 2), u"b\r");
    EXPECT_EQ(Cell(2, 2), u"d\r");
}

TEST_F(Import, AFinalEmptyLineMakesNoRow) {
    Take(u"a\n\n");
    ExpectSize(2, 1);
    EXPECT_EQ(Cell(2, 1), u"");
}

TEST_F(Import, AnUnfinishedLineIsARow) {
    Take(u"a\nb");
    ExpectSize(2, 1);
    EXPECT_EQ(Cell(2, 1), u"b");
}

TEST_F(Import, TabsBeyondTheFirstLinesAreDropped) {
    Take(u"a\tb\nc\td\te\tf\ng\th\tunfinished");
    ExpectSize(3, 2);
    EXPECT_EQ(Cell(2, 2), u"d");
    EXPECT_EQ(Cell(3, 1), u"g");
    EXPECT_EQ(Cell(3, 2), u"h");
}

TEST_F(Import, ShorterLinesLeaveTheirLastCellsEmpty) {
    Take(u"a\tb\tc\nd\n\te\n");
    EXPECT_EQ(Cell(2, 1), u"d");
    EXPECT_EQ(Cell(2, 2), u"");
    EXPECT_EQ(Cell(3, 1), u"");
    EXPECT_EQ(Cell(3, 2), u"e");
}

// Kept for compatibility: import-adds-columns.
TEST_F(Import, AddsItsColumnsBehindThoseOfTheGridAndWritesFromTheFirstOne) {
    on.grid.AddCol(u"1no", u"Old");
    on.grid.SetColWidth(Col{1}, 77);
    on.grid.SetRowCount(Row{3});
    on.grid.SetCellValue(Row{1}, Col{1}, u"old");
    on.grid.SetCellValue(Row{2}, Col{1}, u"old");
    Take(u"a\tb\n\tc");
    ExpectSize(2, 3);
    EXPECT_EQ(on.grid.ColHeaderText(Col{1}), u"Old");
    EXPECT_EQ(on.grid.ColHeaderText(Col{2}), u"Col. 1");
    EXPECT_EQ(on.grid.ColHeaderText(Col{3}), u"Col. 2");
    EXPECT_EQ(on.grid.ColWidth(Col{1}), 240);
    EXPECT_EQ(Cell(1, 1), u"a");
    EXPECT_EQ(Cell(1, 2), u"b");
    EXPECT_EQ(Cell(2, 1), u"");
    EXPECT_EQ(Cell(2, 2), u"c");
    EXPECT_EQ(Cell(2, 3), u"");
}

// Kept for compatibility: import-unclosed-cell.
TEST_F(Import, AnEmptyCellIsWrittenOnlyWhereATabOrALineEndClosesIt) {
    on.grid.SetColCount(Col{2});
    on.grid.SetRowCount(Row{2});
    for (Row row{1}; row <= Row{2}; ++row)
        for (Col col{1}; col <= Col{2}; ++col)
            on.grid.SetCellValue(row, col, u"old");
    Take(u"\n\t");
    EXPECT_EQ(Cell(1, 1), u"");
    EXPECT_EQ(Cell(1, 2), u"old");
    EXPECT_EQ(Cell(2, 1), u"");
    EXPECT_EQ(Cell(2, 2), u"old");
}

// Kept for compatibility: import-takes-any-width.
TEST_F(Import, FortyColumnsAreTakenThoughTheirFileCannotBeLoadedAgain) {
    Take(Text(39, u'\t') + u"last");
    ExpectSize(1, 40);
    EXPECT_EQ(Cell(1, 40), u"last");
    EXPECT_EQ(on.grid.ColHeaderText(Col{40}), u"Col. 40");
    user.ChooseFile(u"C:\\Work\\wide.tbx");
    mnuFile_SaveAs_Clack(on.tab);

    TestTable again;
    again.program.files.AddFile(u"C:\\wide.tbx", *on.program.files.Contents(u"C:\\Work\\wide.tbx"));
    again.model.TxtDbFile = u"C:\\wide.tbx";
    again.program.user.Answer(
        {u"Numbers of columns in this table exceeds the maximum of  24", MessageIcon::Stop}, Answer::Ok);
    ReadTableData(again.tab);
    EXPECT_EQ(again.grid.RowCount(), Row{0});
}

// Kept for compatibility: import-has-no-look.
TEST_F(Import, ItsFirstSaveAsksForANameAndWritesNoLook) {
    Take(u"a\tb\r\nc\td");
    user.Answer({u"Cannot save this file: \r\n\r\nUntitled_1.tbx\r\n\r\nTry saving it explicitly.",
                 MessageIcon::Stop},
                Answer::Ok);
    user.ChooseFile(u"C:\\Work\\mine.tbx");
    mnuFile_Save_Clack(on.tab);
    const std::string saved = on.program.files.Contents(u"C:\\Work\\mine.tbx").value_or("");
    EXPECT_NE(saved.find("!0\r\n!\r\n!0\r\n"), std::string::npos);

    TestTable again;
    again.program.files.AddFile(u"C:\\mine.tbx", saved);
    again.model.TxtDbFile = u"C:\\mine.tbx";
    ReadTableData(again.tab);
    ASSERT_EQ(again.grid.RowCount(), Row{2});
    EXPECT_EQ(again.grid.ColHeaderText(Col{2}), u"Col. 2");
    // The CR that the import left in the cell ends a line of the file.
    EXPECT_EQ(again.grid.CellValue(Row{1}, Col{2}), u"b\r\n");
    EXPECT_EQ(again.grid.CellValue(Row{2}, Col{2}), u"d");
}

// Kept for compatibility: import-row-heights.
TEST_F(Import, SetsTheHeightOfTheFirstRowAndOfThoseThatEndButNotOfAnUnfinishedOne) {
    Take(u"a\nb\nc");
    EXPECT_TRUE(on.grid.HasRowHeight(Row{1}));
    EXPECT_TRUE(on.grid.HasRowHeight(Row{2}));
    EXPECT_FALSE(on.grid.HasRowHeight(Row{3}));
    EXPECT_EQ(on.grid.RowHeight(Row{2}), 24);
}

TEST_F(Import, AnUnfinishedFirstLineHasItsHeight) {
    Take(u"a");
    EXPECT_TRUE(on.grid.HasRowHeight(Row{1}));
    EXPECT_EQ(on.grid.RowHeight(Row{1}), 24);
}

// Kept for compatibility: import-has-no-look.
TEST_F(Import, ShowsNoCheckBoxes) {
    Take(u"a\nb\n");
    EXPECT_FALSE(on.grid.CellCheckShown(Row{1}));
    EXPECT_FALSE(on.grid.CellCheckShown(Row{2}));
}

// Kept for compatibility: import-has-no-look.
TEST_F(Import, LeavesTheNamesAndTheLookThatASaveWritesAsTheyWere) {
    table.SetRowHeight = std::int16_t{40};
    table.TableFontName = u"Arial";
    Take(u"a\tb");
    EXPECT_EQ(table.ColumnNames[Col{1}], u"");
    EXPECT_EQ(table.SetRowHeight, 40);
    EXPECT_EQ(table.TableFontName, u"Arial");
    EXPECT_EQ(table.TableBackColour, std::nullopt);
    EXPECT_EQ(table.TableFontSize, std::nullopt);
    EXPECT_TRUE(on.host.shownRowHeights.empty());
}

TEST_F(Import, SortsByHeadersAsTheSettingsSay) {
    on.program.app.Settings.AllowSorting = 1;
    Take(u"a");
    EXPECT_TRUE(on.grid.SortOnHeaderClick());
    on.program.app.Settings.AllowSorting = 0;
    table.TableAltered = 0;
    Take(u"a");
    EXPECT_FALSE(on.grid.SortOnHeaderClick());
}

// Kept for compatibility: import-keeps-tab-name.
TEST_F(Import, KeepsTheTabsNameForItsFile) {
    Take(u"a");
    EXPECT_EQ(table.TxtDbFile, u"Untitled_1.tbx");
    EXPECT_EQ(on.host.captions, std::vector<Text>{u"Untitled_1.tbx"});
    EXPECT_EQ(table.TableAltered, 1);
}

// Kept for compatibility: import-keeps-tab-name.
TEST_F(Import, HasTheDefaultNameWhileMessagesRunBeforeTheTextIsRead) {
    Text during;
    on.program.screen.QueueMessage([&] { during = table.TxtDbFile; });
    Take(u"a");
    EXPECT_EQ(during, u"C:\\Work\\NewTextDatabase.tbx");
}

TEST_F(Import, ReadsTheClipboardAfterTheMessagesRan) {
    on.program.screen.QueueMessage([&] { on.program.clipboard.SetText(u"later"); });
    Take(u"a");
    EXPECT_EQ(Cell(1, 1), u"later");
}

TEST_F(Import, TheFirstCellIsTheCurrentOne) {
    Take(u"a\tb\nc\td");
    EXPECT_EQ(on.grid.CurRow(), Row{1});
    EXPECT_EQ(on.grid.CurCol(), Col{1});
}

TEST_F(Import, ShowsTheHourglassMeanwhile) {
    Take(u"a");
    EXPECT_EQ(on.program.screen.Pointers(), (std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}));
}

TEST_F(Import, TheGridHearsOfItOnceAndGetsTheKeyboard) {
    Take(u"a\tb\nc\td\n");
    EXPECT_EQ(watch.tableChanges, 1);
    EXPECT_EQ(watch.rowChanges, 0);
    EXPECT_EQ(watch.wanted, 1);
}

TEST_F(Import, WhoRetrievesNothingImportsNothing) {
    view.retrieves = false;
    table.TableAltered = 1;
    mnuImport_Clip_Clack(on.tab);
    ExpectSize(0, 0);
    EXPECT_TRUE(user.Messages().empty());
}

TEST_F(Import, WithoutAViewOfTheClipboardNothingIsImported) {
    on.program.app.SetPort<ClipboardView>(nullptr);
    mnuImport_Clip_Clack(on.tab);
    ExpectSize(0, 0);
}

TEST_F(Import, AsksAboutChangesAndThenWhetherToGoOn) {
    table.TableAltered = 1;
    user.Answer({u"The text database has been changed.\r\n\r\n\r\n\r\nDo you want to save the changes?\r\n",
                 MessageIcon::None, MessageButtons::YesNoCancel},
                Answer::Cancel);
    mnuImport_Clip_Clack(on.tab);
    ExpectSize(0, 0);
    user.Answer(Answer::No);
    user.Answer(question, Answer::No);
    mnuImport_Clip_Clack(on.tab);
    EXPECT_EQ(view.offered, 2);
    EXPECT_EQ(watch.wanted, 0);
    ExpectSize(0, 0);
    EXPECT_EQ(table.TxtDbFile, u"");
    EXPECT_TRUE(on.program.screen.Pointers().empty());
}

TEST_F(Import, KeepsNulsAndCharactersOutsideTheCodePage) {
    const Text hostile = Text(u"a\0b", 3) + u"\t\u65E5\u672C\t\xD800";
    Take(hostile);
    EXPECT_EQ(Cell(1, 1), Text(u"a\0b", 3));
    EXPECT_EQ(Cell(1, 2), u"\u65E5\u672C");
    EXPECT_EQ(Cell(1, 3), Text(1, u'\xD800'));
}

TEST_F(Import, StopsAtTheLastRowThatATableHas) {
    Text text;
    for (int line = 1; line <= 32769; ++line)
        text += line == 32767 ? u"last\n" : u"x\n";
    Take(text + u"y");
    ExpectSize(32767, 1);
    EXPECT_EQ(Cell(32767, 1), u"last");
}

TEST_F(Import, ATextOfNulsIsOneCell) {
    Take(Text(3, u'\0'));
    ExpectSize(1, 1);
    EXPECT_EQ(Cell(1, 1), Text(3, u'\0'));
}

TEST_F(Import, TakesAVeryLongTextWithoutALineEndAsOneCell) {
    Take(Text(kVeryLong, u'x'));
    ExpectSize(1, 1);
    EXPECT_EQ(on.grid.CellBytes(Row{1}, Col{1})->size(), kVeryLong);
}

TEST(TabbedText, CountsTheColumnsOfItsFirstLine) {
    EXPECT_EQ(ColumnsOfTabbedText(u""), Col{1});
    EXPECT_EQ(ColumnsOfTabbedText(u"a\tb\nc\td\te"), Col{2});
    EXPECT_EQ(ColumnsOfTabbedText(u"\n\t\t"), Col{1});
}

TEST(TabbedText, CountsTheLinesThatEndAndAnUnfinishedOne) {
    EXPECT_EQ(RowsOfTabbedText(u""), Row{1});
    EXPECT_EQ(RowsOfTabbedText(u"a"), Row{1});
    EXPECT_EQ(RowsOfTabbedText(u"a\n"), Row{1});
    EXPECT_EQ(RowsOfTabbedText(u"a\r\nb"), Row{2});
    EXPECT_EQ(RowsOfTabbedText(u"\n\n"), Row{2});
}

TEST(TabbedText, CountsNoMoreThanSixteenBitsHold) {
    EXPECT_EQ(ColumnsOfTabbedText(Text(40000, u'\t')), Col{32767});
    EXPECT_EQ(RowsOfTabbedText(Text(40000, u'\n')), Row{32767});
}

TEST(TabbedText, IntoAGridWithoutRowsOrColumnsGoesNothing) {
    GridStore grid{CodePage::Windows1252()};
    FillFromTabbedText(grid, u"a\tb\nc");
    EXPECT_EQ(grid.RowCount(), Row{0});
    grid.SetRowCount(Row{1});
    FillFromTabbedText(grid, u"a\tb\nc");
    EXPECT_EQ(grid.ColCount(), Col{0});
}

TEST_F(Import, TakesTheHourglassBackAlsoAfterAFailure) {
    on.program.screen.QueueMessage(&FailInHandler);
    EXPECT_THROW(Take(u"a\tb\r\n"), HandlerFailure);
    EXPECT_EQ(on.program.screen.Pointers(), (std::vector{Pointer::Hourglass, Pointer::Default}));
}

} // namespace
} // namespace korvane
