#include "dbops/commands/ExcelExport.h"

#include "context/ports/SystemFileDialog.h"
#include "dbops/windows/frmChooseRange.h"
#include "grid/Grid.h"
#include "support/FakeSystemFileDialog.h"
#include "support/HandlerFailure.h"
#include "unit/dbops/TestTab.h"

#include <gmock/gmock.h>

#include <utility>

namespace korvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ExcelExport : public testing::Test {
protected:
    ExcelExport() {
        t.Fill({{u"a1", u"b1"}, {u"a2", u"b2"}, {u"a3", u"b3"}});
        t.grid.SetColHeaderText(Col{1}, u"Name");
        t.grid.SetColHeaderText(Col{2}, u"Town");
        t.table.TxtDbFile = u"C:\\Data\\table.tbx";
        t.files.AddDir(u"C:\\Data");
        t.files.AddDir(u"C:\\Other");
        t.files.ChangeDir(u"C:\\Data");
        dialog.answer = u"C:\\Other\\out.xls";
    }
    /// Runs the command with this answer to the range dialog.
    void Run(bool onlyTicked = false) {
        t.user.On<frmChooseRange>([onlyTicked](frmChooseRange& f) {
            (onlyTicked ? f.Option2 : f.Option1).Press();
            f.cmdProceed.Press();
        });
        mnuExport_Excel_Clack(t.tab);
    }
    /// Of the steps, those that put a value into a row other than the first, in the form "A2=value".
    std::vector<std::string> Data() const {
        std::vector<std::string> data;
        std::string cell;
        for (const std::string& step : t.spreadsheetSteps) {
            if (step.starts_with("select ")) cell = step.substr(7);
            if (step.starts_with("value ") && cell.substr(1) != "1")
                data.push_back(cell + "=" + step.substr(6));
        }
        return data;
    }
    Text ProposedFor(const Text& path) {
        t.table.TxtDbFile = path;
        Run();
        return dialog.requests.back().name;
    }

    TestTab t;
    FakeSystemFileDialog dialog{t.app};
};

TEST_F(ExcelExport, PutsHeaderAndRowsIntoANewWorkbookAndLeavesItOpen) {
    t.grid.SetRowCount(Row{1});
    Run();
    EXPECT_THAT(t.spreadsheetSteps,
                ElementsAre("add workbook", "select A1", "value Name", "width of A:A 32", "colour of A1 35",
                            "select B1", "value Town", "width of B:B 32", "colour of B1 35", "select A2",
                            "value a1", "select B2", "value b1", "save C:\\Other\\out.xls as -4143",
                            "select A1", "visible"));
}

TEST_F(ExcelExport, AsksForTheFileByTheNameOfTheTable) {
    Run();
    ASSERT_EQ(dialog.requests.size(), 1u);
    EXPECT_EQ(dialog.requests[0],
              (SystemFileDialog::Request{SystemFileDialog::Purpose::Save, u"Excel tables (*.xls)|*.xls",
                                         u"Save database as Excel table", u"C:\\Data\\table.xls", u"xls"}));
}

TEST_F(ExcelExport, ProposesTheNameUpToItsLastDotWithXlsBehind) {
    EXPECT_EQ(ProposedFor(u"C:\\Data\\my.old.table.tbx"), u"C:\\Data\\my.old.table.xls");
}

// Kept for compatibility: export-name-after-last-dot.
TEST_F(ExcelExport, ProposesXlsAloneForANameWithoutADot) {
    EXPECT_EQ(ProposedFor(u"C:\\Data\\table"), u"xls");
    EXPECT_EQ(ProposedFor(u""), u"xls");
}

// Kept for compatibility: export-name-after-last-dot.
TEST_F(ExcelExport, TakesADotInAFoldersNameForTheLastOne) {
    EXPECT_EQ(ProposedFor(u"C:\\my.data\\table"), u"C:\\my.xls");
}

TEST_F(ExcelExport, AllRowsGoOutInTheirOrder) {
    Run();
    EXPECT_THAT(Data(), ElementsAre("A2=a1", "B2=b1", "A3=a2", "B3=b2", "A4=a3", "B4=b3"));
}

TEST_F(ExcelExport, RowsLeftOutLeaveNoGap) {
    t.Tick({1, 3});
    Run(true);
    EXPECT_THAT(Data(), ElementsAre("A2=a1", "B2=b1", "A3=a3", "B3=b3"));
}

TEST_F(ExcelExport, TickedRowsOfATableWithoutTicksGiveTheHeaderRowAlone) {
    Run(true);
    EXPECT_THAT(Data(), IsEmpty());
    EXPECT_THAT(t.spreadsheetSteps, Contains("value Town"));
    EXPECT_THAT(t.spreadsheetSteps, Contains("save C:\\Other\\out.xls as -4143"));
}

TEST_F(ExcelExport, ATableWithoutRowsGivesTheHeaderRowAlone) {
    t.grid.SetRowCount(Row{0});
    Run();
    EXPECT_THAT(Data(), IsEmpty());
    EXPECT_EQ(t.spreadsheetSteps.back(), "visible");
}

TEST_F(ExcelExport, ATableWithoutColumnsGivesAnEmptyWorkbook) {
    t.grid.SetColCount(Col{0});
    Run();
    EXPECT_THAT(t.spreadsheetSteps,
                ElementsAre("add workbook", "save C:\\Other\\out.xls as -4143", "select A1", "visible"));
}

// Kept for compatibility: export-takes-all-rows.
TEST_F(ExcelExport, RowsMarkedForDeletionGoOutWithTheirMark) {
    t.SetCell(2, 1, u"---");
    Run();
    EXPECT_THAT(Data(), ElementsAre("A2=a1", "B2=b1", "A3=---", "B3=b2", "A4=a3", "B4=b3"));
}

TEST_F(ExcelExport, HiddenRowsGoOutLikeOthers) {
    t.grid.SetRowVisible(Row{2}, false);
    Run();
    EXPECT_THAT(Data(), Contains("A3=a2"));
}

TEST_F(ExcelExport, EmptyCellsAndCellsOfSeveralLinesGoOutAsTheyAre) {
    t.SetCell(1, 1, u"");
    t.SetCell(2, 1, u"one\r\ntwo\r\n");
    t.SetCell(3, 1, u"=\u4E2D");
    Run();
    EXPECT_THAT(Data(),
                ElementsAre("A2=", "B2=b1", "A3=one\r\ntwo\r\n", "B3=b2", "A4==\xE4\xB8\xAD", "B4=b3"));
}

// Kept for compatibility: export-own-widths.
TEST_F(ExcelExport, TakesNoWidthsFromTheTable) {
    t.grid.SetColWidth(Col{1}, 700);
    Run();
    EXPECT_THAT(t.spreadsheetSteps, Contains("width of A:A 32"));
}

TEST_F(ExcelExport, TwentyFourColumnsReachToX) {
    t.grid.SetColCount(Col{24});
    t.SetCell(3, 24, u"last");
    Run();
    EXPECT_THAT(t.spreadsheetSteps, Contains("width of X:X 32"));
    EXPECT_EQ(Data().back(), "X4=last");
}

TEST_F(ExcelExport, ColumnsWithoutALetterStayOut) {
    t.grid.SetColCount(Col{27});
    t.SetCell(1, 26, u"z1");
    t.SetCell(1, 27, u"lost");
    Run();
    EXPECT_THAT(Data(), Contains("Z2=z1"));
    EXPECT_THAT(t.spreadsheetSteps, Not(Contains("value lost")));
}

TEST_F(ExcelExport, AtTheLimitTheLastRowStandsBelowTheHeader) {
    t.grid.SetRowCount(kMaxRows);
    t.SetCell(32767, 1, u"end");
    Run();
    EXPECT_THAT(Data(), Contains("A32768=end"));
}

TEST_F(ExcelExport, ACancelledRangeStopsBeforeTheFileIsAskedFor) {
    t.user.On<frmChooseRange>([](frmChooseRange& f) { f.cmdCancel.Press(); });
    mnuExport_Excel_Clack(t.tab);
    EXPECT_THAT(dialog.requests, IsEmpty());
    EXPECT_THAT(t.spreadsheetSteps, IsEmpty());
    EXPECT_THAT(t.screen.Pointers(), IsEmpty());
}

TEST_F(ExcelExport, ACancelledFileDialogLeavesTheTableAndTheDirectoryAsTheyWere) {
    dialog.answer.reset();
    dialog.whileOpen = [this] { t.files.ChangeDir(u"C:\\Other"); };
    Run();
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Data");
    EXPECT_THAT(t.spreadsheetSteps, IsEmpty());
    EXPECT_THAT(t.screen.Pointers(), IsEmpty());
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.table.TxtDbFile, u"C:\\Data\\table.tbx");
    EXPECT_EQ(t.Cell(1, 1), u"a1");
}

TEST_F(ExcelExport, GoesBackToTheDirectoryBeforeTheWorkbookIsMade) {
    dialog.whileOpen = [this] { t.files.ChangeDir(u"C:\\Other"); };
    Text during;
    t.screen.QueueMessage([&] { during = t.files.CurrentDir(); });
    Run();
    EXPECT_EQ(during, u"C:\\Data");
}

TEST_F(ExcelExport, ShowsTheHourglassFromTheAnswerToTheEnd) {
    t.screen.QueueMessage([this] {
        EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Hourglass);
        EXPECT_THAT(t.spreadsheetSteps, IsEmpty()) << "messages come before the work";
    });
    Run();
    EXPECT_THAT(t.screen.Pointers(), ElementsAre(Pointer::Hourglass, Pointer::Default));
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 1);
}

TEST_F(ExcelExport, WithoutASpreadsheetApplicationOnlyThePointerComesBack) {
    t.hasSpreadsheet = false;
    Run();
    EXPECT_THAT(t.spreadsheetSteps, IsEmpty());
    EXPECT_THAT(t.screen.Pointers(), ElementsAre(Pointer::Hourglass, Pointer::Default));
}

TEST_F(ExcelExport, OnASystemWithoutAFileDialogNothingHappens) {
    t.app.SetPort<SystemFileDialog>(nullptr);
    Run();
    EXPECT_THAT(t.spreadsheetSteps, IsEmpty());
    EXPECT_THAT(t.screen.Pointers(), IsEmpty());
}

TEST_F(ExcelExport, LeavesTheTableUnalteredAndItsNameAsItWas) {
    Run();
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.table.TxtDbFile, u"C:\\Data\\table.tbx");
    EXPECT_EQ(t.grid.RowCount(), Row{3});
}

TEST_F(ExcelExport, TicksColoursAndFontsDoNotGoOut) {
    t.Tick({1});
    t.grid.SetRowBackColor(Row{1}, Colour{255});
    t.grid.SetRowFontFlag(Row{1}, CellFlag::Bold, true);
    Run();
    const std::vector<std::string> withLooks = std::exchange(t.spreadsheetSteps, {});
    t.grid.SetCellCheck(Row{1}, 0);
    t.grid.SetRowBackColor(Row{1}, kNoColour);
    t.grid.SetRowFontFlag(Row{1}, CellFlag::Bold, false);
    Run();
    EXPECT_EQ(t.spreadsheetSteps, withLooks);
}

TEST_F(ExcelExport, AFileThatCannotBeWrittenIsTold) {
    t.spreadsheetSaves = false;
    dialog.whileOpen = [this] { t.user.Answer(Answer::Ok); };
    Run();
    EXPECT_TRUE(t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n"));
    EXPECT_EQ(t.user.Messages().back().icon, MessageIcon::Stop);
}

TEST_F(ExcelExport, TakesTheHourglassBackAlsoAfterAFailure) {
    t.screen.QueueMessage(&FailInHandler);
    EXPECT_THROW(Run(), HandlerFailure);
    EXPECT_EQ(t.screen.Pointers(), (std::vector{Pointer::Hourglass, Pointer::Default}));
}

} // namespace
} // namespace korvane
