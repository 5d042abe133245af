#include "platform/xls/XlsSpreadsheet.h"

#include "support/PlainXlsReader.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryShell.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr TextView kPath = u"C:\\Data\\table.xls";

class XlsSpreadsheetTest : public testing::Test {
protected:
    XlsSpreadsheetTest() { files.AddDir(u"C:\\Data"); }

    void Put(TextView cell, TextView value) {
        excel.SelectRange(cell);
        excel.SetActiveCellValue(value);
    }
    PlainXls Saved() {
        excel.SaveAs(kPath, kNormalWorkbook);
        return ReadXls(files.Contents(kPath).value_or(""));
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    MemoryShell shell;
    XlsSpreadsheet excel{files, shell};
};

TEST_F(XlsSpreadsheetTest, SavesWhatWasPutIntoTheWorkbook) {
    excel.AddWorkbook();
    Put(u"A1", u"Name");
    excel.SetColumnWidth(u"A:A", 32);
    excel.SetInteriorColorIndex(u"A1", 35);
    Put(u"B3", u"b3");
    const PlainXls read = Saved();
    EXPECT_THAT(read.texts,
                ElementsAre(Pair(PlainXls::Place{0, 0}, u"Name"), Pair(PlainXls::Place{2, 1}, u"b3")));
    EXPECT_THAT(read.columnWidths, ElementsAre(Pair(0, 8374)));
    EXPECT_EQ(read.FormatAt(0, 0), (PlainFormat{false, 42}));
    EXPECT_EQ(read.FormatAt(2, 1), PlainFormat());
}

TEST_F(XlsSpreadsheetTest, TheFileOpensAtItsFirstCellWhicheverIsActive) {
    excel.AddWorkbook();
    Put(u"B3", u"b3");
    EXPECT_EQ(Saved().activeCell, (PlainXls::Place{0, 0}));
}

TEST_F(XlsSpreadsheetTest, ANewWorkbookIsEmptyAndItsFirstCellIsActive) {
    excel.AddWorkbook();
    Put(u"B3", u"old");
    excel.AddWorkbook();
    excel.SetActiveCellValue(u"new");
    EXPECT_THAT(Saved().texts, ElementsAre(Pair(PlainXls::Place{0, 0}, u"new")));
}

TEST_F(XlsSpreadsheetTest, ARangeThatDoesNotExistChangesNothing) {
    excel.AddWorkbook();
    EXPECT_TRUE(excel.SelectRange(u"B2"));
    EXPECT_FALSE(excel.SelectRange(u"[1"));
    excel.SetColumnWidth(u"[:[", 32);
    excel.SetInteriorColorIndex(u"[1", 35);
    excel.SetActiveCellValue(u"b2");
    const PlainXls read = Saved();
    EXPECT_THAT(read.columnWidths, IsEmpty());
    EXPECT_THAT(read.formats, ElementsAre(Pair(PlainXls::Place{1, 1}, PlainFormat())));
    EXPECT_EQ(read.TextAt(1, 1), u"b2");
}

TEST_F(XlsSpreadsheetTest, WidthsAndColoursOutOfRangeChangeNothing) {
    excel.AddWorkbook();
    for (const int width : {-1, 256})
        excel.SetColumnWidth(u"A:A", width);
    for (const int colour : {-4142, 0, 57})
        excel.SetInteriorColorIndex(u"A1", colour);
    const PlainXls read = Saved();
    EXPECT_THAT(read.columnWidths, IsEmpty());
    EXPECT_THAT(read.formats, IsEmpty());
}

TEST_F(XlsSpreadsheetTest, WithoutAWorkbookNothingHappens) {
    EXPECT_FALSE(excel.SelectRange(u"A1"));
    excel.SetActiveCellValue(u"text");
    excel.SetColumnWidth(u"A:A", 32);
    excel.SetInteriorColorIndex(u"A1", 35);
    excel.SaveAs(kPath, kNormalWorkbook);
    excel.MakeVisible();
    EXPECT_FALSE(files.FileExists(kPath));
    EXPECT_THAT(shell.Opened(), IsEmpty());
}

TEST_F(XlsSpreadsheetTest, KnowsNoOtherFileFormat) {
    excel.AddWorkbook();
    excel.SaveAs(kPath, 51);
    EXPECT_FALSE(files.FileExists(kPath));
}

TEST_F(XlsSpreadsheetTest, ShowsTheSavedFileInTheDesktopsProgramForIt) {
    files.ChangeDir(u"C:\\Data");
    excel.AddWorkbook();
    excel.SaveAs(u"table.xls", kNormalWorkbook);
    excel.MakeVisible();
    EXPECT_THAT(shell.Opened(), ElementsAre(OpenRequest{.file = Text(kPath)}));
}

TEST_F(XlsSpreadsheetTest, ShowsNothingOfAWorkbookThatIsNotSaved) {
    excel.AddWorkbook();
    excel.SaveAs(kPath, kNormalWorkbook);
    excel.AddWorkbook();
    excel.MakeVisible();
    EXPECT_THAT(shell.Opened(), IsEmpty());
}

TEST_F(XlsSpreadsheetTest, ReplacesAFileThatIsThere) {
    files.AddFile(kPath, "old");
    excel.AddWorkbook();
    Put(u"A1", u"new");
    EXPECT_EQ(Saved().TextAt(0, 0), u"new");
}

TEST_F(XlsSpreadsheetTest, AFileThatCannotBeOpenedIsNotShown) {
    excel.AddWorkbook();
    excel.SaveAs(u"C:\\Nowhere\\table.xls", kNormalWorkbook);
    excel.MakeVisible();
    EXPECT_THAT(shell.Opened(), IsEmpty());
}

TEST_F(XlsSpreadsheetTest, ASaveThatFailsLeavesTheOldFile) {
    files.AddFile(kPath, "old");
    for (const FileStep step : {FileStep::OpenToWrite, FileStep::Write, FileStep::Close, FileStep::Rename}) {
        excel.AddWorkbook();
        files.Faults().FailNth(step, 1);
        EXPECT_FALSE(excel.SaveAs(kPath, kNormalWorkbook));
        excel.MakeVisible();
        EXPECT_EQ(files.Contents(kPath), "old");
    }
    EXPECT_TRUE(excel.SaveAs(kPath, kNormalWorkbook));
    EXPECT_THAT(shell.Opened(), IsEmpty());
}

} // namespace
} // namespace korvane
