#include "TbxFixtures.h"
#include "grid/Grid.h"
#include "support/HandlerFailure.h"
#include "table/TableFile.h"

namespace korvane {
namespace {

using Pointers = std::vector<Pointer>;

class FocusCounter final : public GridListener {
public:
    void RowsChanged(Row, Row) override {}
    void TableChanged() override {}
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++count; }
    void RowWantedInView(Row) override {}

    int count = 0;
};

class SaveThisTableTest : public TbxTest {
protected:
    SaveThisTableTest() {
        Resize(1, 1);
        grid.SetCellValue(Row{1}, Col{1}, u"text");
        grid.SetListener(&focus);
        files.AddDir(u"C:\\data");
        table.model.TxtDbFile = kPath;
        table.model.TableAltered = 1;
    }
    void Save() { SaveThisTable(table.tab); }
    void ExpectCannotSave(const Text& file, const Text& reason) {
        table.program.user.Answer({u"Cannot save this file :\r\n\r\n" + file +
                                       u"\r\n\r\nThe error was probably triggered for the following reason : "
                                       u"\r\n\r\n" +
                                       reason + u"\r\n\r\n",
                                   MessageIcon::Stop, MessageButtons::Ok, 1},
                                  Answer::Ok);
    }
    void ExpectNotSaved() {
        EXPECT_EQ(table.model.TableAltered, 1);
        EXPECT_EQ(focus.count, 1);
        EXPECT_EQ(table.program.screen.Pointers(), Pointers{});
        EXPECT_TRUE(table.program.clock.Waits().empty());
    }

    const Text kPath = u"C:\\data\\people.tbx";
    MemoryFileSystem& files = table.program.files;
    FocusCounter focus;
};

TEST_F(SaveThisTableTest, WritesTheFileAndEndsAsItShould) {
    Save();
    EXPECT_EQ(files.Contents(kPath), Write());
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_EQ(table.program.clock.Waits(), std::vector{std::chrono::milliseconds(500)});
    EXPECT_EQ(table.program.screen.ProcessMessagesCount(), 1);
    EXPECT_EQ(table.program.screen.Pointers(), (Pointers{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(focus.count, 1);
}

TEST_F(SaveThisTableTest, MessagesRunOnceTheOldFileIsGoneAndBeforeTheNewOneIsWritten) {
    files.AddFile(kPath, "old");
    table.program.screen.QueueMessage([this] {
        EXPECT_EQ(files.Contents(kPath), "");
        EXPECT_EQ(table.program.screen.CurrentPointer(), Pointer::Hourglass);
        grid.SetCellValue(Row{1}, Col{1}, u"changed meanwhile");
    });
    Save();
    EXPECT_NE(files.Contents(kPath)->find("changed meanwhile"), std::string::npos);
}

TEST_F(SaveThisTableTest, ReplacesALongerFile) {
    files.AddFile(kPath, std::string(10000, 'x'));
    Save();
    EXPECT_EQ(files.Contents(kPath), Write());
}

TEST_F(SaveThisTableTest, TheCurrentRowsHeightStandsForTheTable) {
    Resize(3, 1);
    grid.SetRowHeight(Row{2}, 31);
    grid.SetCurRow(Row{2});
    Save();
    EXPECT_EQ(table.model.SetRowHeight, 31);
    EXPECT_NE(files.Contents(kPath)->find("!480.5\r\n"), std::string::npos);
}

TEST_F(SaveThisTableTest, WithoutACurrentRowTheFirstOneSpeaks) {
    grid.SetRowHeight(Row{1}, 40);
    table.model.SetRowHeight = 30;
    ASSERT_EQ(grid.CurRow(), Row{0});
    Save();
    EXPECT_EQ(table.model.SetRowHeight, 40);
}

TEST_F(SaveThisTableTest, WithoutRowsTheHeightStays) {
    Resize(0, 1);
    table.model.SetRowHeight = 30;
    Save();
    EXPECT_EQ(table.model.SetRowHeight, 30);
}

TEST_F(SaveThisTableTest, AHeightPastItsFieldLeavesTheOneBefore) {
    grid.SetRowHeight(Row{1}, 40000);
    table.model.SetRowHeight = 30;
    Save();
    EXPECT_EQ(table.model.SetRowHeight, 30);
}

TEST_F(SaveThisTableTest, AMarkedRowStaysInTheOpenTable) {
    grid.SetCellValue(Row{1}, Col{1}, u"---");
    Save();
    EXPECT_EQ(files.Contents(kPath)->find("@row"), std::string::npos);
    EXPECT_EQ(grid.RowCount(), Row{1});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"---");
}

TEST_F(SaveThisTableTest, WhatWasLoadedCanBeSavedOverItsOwnFile) {
    const std::string file = Write();
    files.AddFile(kPath, file);
    Resize(0, 0);
    ReadTableData(table.tab);
    Save();
    const std::string saved = *files.Contents(kPath);
    Save();
    EXPECT_EQ(files.Contents(kPath), saved);
    EXPECT_NE(saved.find("@col_1\r\ntext\r\n"), std::string::npos);
}

TEST_F(SaveThisTableTest, AFileThatCannotBeOpenedIsToldAndTheTableStaysAltered) {
    files.AddFile(kPath, "old");
    files.Faults().FailNth(FileStep::OpenToWrite, 1, u"No hope");
    ExpectCannotSave(kPath, u"\"No hope\"");
    Save();
    ExpectNotSaved();
    // The old file is gone by then, because it wasn't moved aside.
    EXPECT_EQ(files.Contents(kPath), std::nullopt);
}

TEST_F(SaveThisTableTest, AReadOnlyFileIsNeitherDeletedNorWritten) {
    files.AddFile(kPath, "old");
    files.SetFileReadOnly(kPath);
    ExpectCannotSave(kPath, u"\"Permission denied\"");
    Save();
    ExpectNotSaved();
    EXPECT_EQ(files.Contents(kPath), "old");
}

TEST_F(SaveThisTableTest, ATableWithoutANameSaysThatTheNameIsEmpty) {
    table.model.TxtDbFile.clear();
    table.program.user.Answer(Answer::Ok);
    Save();
    ExpectNotSaved();
    EXPECT_TRUE(table.program.user.Messages()[0].text.starts_with(
        u"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )\r\n\r\n"));
}

TEST_F(SaveThisTableTest, AFailingDeleteIsNotLookedAt) {
    files.AddFile(kPath, std::string(10000, 'x'));
    files.Faults().FailNth(FileStep::Remove, 1);
    Save();
    EXPECT_EQ(files.Contents(kPath), Write());
    EXPECT_EQ(table.model.TableAltered, 0);
}

TEST_F(SaveThisTableTest, ErrorsWhileWritingAreNotLookedAt) {
    files.SetFreeBytes(10);
    Save();
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_TRUE(table.program.user.Messages().empty());
    EXPECT_LE(files.Contents(kPath)->size(), 10u);
    EXPECT_EQ(table.program.screen.CurrentPointer(), Pointer::Default);
}

TEST_F(SaveThisTableTest, AFailingCloseIsNotLookedAt) {
    files.Faults().FailNth(FileStep::Close, 1);
    Save();
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_TRUE(table.program.user.Messages().empty());
}

TEST_F(SaveThisTableTest, TakesTheHourglassBackAlsoAfterAFailure) {
    table.program.screen.QueueMessage(&FailInHandler);
    EXPECT_THROW(Save(), HandlerFailure);
    EXPECT_EQ(table.program.screen.Pointers(), (Pointers{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(table.model.TableAltered, 1);
}

} // namespace
} // namespace korvane
