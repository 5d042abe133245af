#include "TbxFixtures.h"
#include "grid/Grid.h"
#include "support/HandlerFailure.h"
#include "table/TableFile.h"

namespace korvane {
namespace {

/// Records when the grid may paint and when it is asked for the focus.
class PaintingProtocol final : public GridListener {
public:
    void RowsChanged(Row, Row) override { events.emplace_back("rows"); }
    void TableChanged() override { events.emplace_back("table"); }
    void ColumnChanged(Col) override { events.emplace_back("column"); }
    void LookChanged() override { events.emplace_back("look"); }
    void CurrentCellChanged() override { events.emplace_back("current"); }
    void FocusWanted() override { events.emplace_back("focus"); }
    void RowWantedInView(Row) override { events.emplace_back("view"); }

    std::vector<std::string> events;
};

using Events = std::vector<std::string>;
using Pointers = std::vector<Pointer>;

class ReadTableDataTest : public TbxTest {
protected:
    ReadTableDataTest() {
        grid.SetListener(&protocol);
        table.model.TxtDbFile = kPath;
        table.model.TableAltered = 1;
    }
    void Load(std::string_view bytes) {
        table.program.files.AddFile(kPath, bytes);
        ReadTableData(table.tab);
    }

    const Text kPath = u"C:\\data\\people.tbx";
    const std::string kFile = kHeader + kTwoColumns + Lines("@row_1\n@col_1\na\n@row_2\n@col_1\nb\n;\n");
    PaintingProtocol protocol;
    const std::vector<Pointer>& pointers = table.program.screen.Pointers();
};

TEST_F(ReadTableDataTest, ATableIsShownFromItsFirstCellWhenItIsThere) {
    Load(kFile);
    EXPECT_EQ(grid.RowCount(), Row{2});
    EXPECT_EQ(grid.CurRow(), Row{1});
    EXPECT_EQ(grid.CurCol(), Col{1});
    EXPECT_TRUE(grid.GridVisible());
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_EQ(table.host.dirtyCleared, 1);
    EXPECT_EQ(table.program.screen.ProcessMessagesCount(), 1);
    EXPECT_EQ(pointers, (Pointers{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(protocol.events, (Events{"table", "look", "current", "current", "focus"}));
}

TEST_F(ReadTableDataTest, MessagesRunBeforeTheFocusComesAndBehindTheMark) {
    table.program.screen.QueueMessage([this] {
        EXPECT_EQ(table.model.TableAltered, 0);
        EXPECT_EQ(table.host.dirtyCleared, 0);
        EXPECT_EQ(protocol.events.back(), "current");
        EXPECT_EQ(table.program.screen.CurrentPointer(), Pointer::Hourglass);
    });
    Load(kFile);
    EXPECT_EQ(table.host.dirtyCleared, 1);
}

TEST_F(ReadTableDataTest, SortingFollowsTheSettingOnlyAtOne) {
    for (const auto& [setting, sorts] : {std::pair{1, true}, {0, false}, {-1, false}, {2, false}}) {
        TestTable other;
        other.program.app.Settings.AllowSorting = static_cast<std::int16_t>(setting);
        other.model.TxtDbFile = kPath;
        other.program.files.AddFile(kPath, kFile);
        ReadTableData(other.tab);
        EXPECT_EQ(other.grid.SortOnHeaderClick(), sorts) << setting;
    }
}

TEST_F(ReadTableDataTest, WithoutANameNothingHappens) {
    table.model.TxtDbFile.clear();
    ReadTableData(table.tab);
    EXPECT_EQ(protocol.events, Events{});
    EXPECT_EQ(pointers, Pointers{});
    EXPECT_EQ(table.model.TableAltered, 1);
    EXPECT_EQ(table.host.dirtyCleared, 0);
}

TEST_F(ReadTableDataTest, WithoutAFileNothingHappens) {
    ReadTableData(table.tab);
    EXPECT_EQ(protocol.events, Events{});
    EXPECT_EQ(pointers, Pointers{});
    EXPECT_EQ(table.model.TableAltered, 1);
}

TEST_F(ReadTableDataTest, AFolderIsNoFile) {
    table.program.files.AddDir(kPath);
    ReadTableData(table.tab);
    EXPECT_EQ(pointers, Pointers{});
}

TEST_F(ReadTableDataTest, AFileThatCannotBeOpenedIsToldAndTheLoadEndsWithAnEmptyGrid) {
    table.program.files.Faults().FailNth(FileStep::OpenToRead, 1);
    table.program.files.AddDir(u"C:\\elsewhere");
    table.program.files.ChangeDir(u"C:\\elsewhere");
    table.program.user.Answer({u"Cannot load the following file:\r\n\r\nC:\\data\\people.tbx\r\n\r\n"
                               u"Current dir.: C:\\elsewhere",
                               MessageIcon::Exclamation, MessageButtons::Ok, 1},
                              Answer::Ok);
    Load(kFile);
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_EQ(table.host.dirtyCleared, 1);
    EXPECT_EQ(table.program.screen.ProcessMessagesCount(), 1);
    EXPECT_EQ(pointers, (Pointers{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(protocol.events, Events{"focus"});
}

TEST_F(ReadTableDataTest, AFileThatVanishesBeforeItIsOpenedCannotBeLoaded) {
    table.program.files.AddFile(kPath, kFile);
    table.program.files.VanishBeforeOpen(kPath);
    table.program.user.Answer(Answer::Ok);
    ReadTableData(table.tab);
    ASSERT_EQ(table.program.user.Messages().size(), 1u);
    EXPECT_TRUE(table.program.user.Messages()[0].text.starts_with(u"Cannot load the following file:"));
}

TEST_F(ReadTableDataTest, MoreColumnsThanATableCanHaveStopTheLoadWithoutItsEnd) {
    std::string columns;
    for (int col = 1; col <= 25; ++col)
        columns += "!c\r\n!8\r\n";
    // The message has two blanks before the number. Kept for compatibility: columns-message-two-blanks.
    table.program.user.Answer({u"Numbers of columns in this table exceeds the maximum of  24",
                               MessageIcon::Stop, MessageButtons::Ok, 1},
                              Answer::Ok);
    Load(kHeader + columns + Lines("@row_1\n"));
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(grid.CurRow(), Row{0});
    EXPECT_EQ(table.model.TableAltered, 1);
    EXPECT_EQ(table.host.dirtyCleared, 0);
    EXPECT_EQ(table.program.screen.ProcessMessagesCount(), 0);
    EXPECT_EQ(pointers, (Pointers{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(protocol.events, Events{});
}

TEST_F(ReadTableDataTest, AfterAStoppedLoadTheGridPaintsAgainOnceItGetsTheFocus) {
    std::string columns;
    for (int col = 1; col <= 25; ++col)
        columns += "!c\r\n";
    table.program.user.Answer(Answer::Ok);
    Load(kHeader + Lines("!a\n!8\n@row_1\n") + columns + columns);
    EXPECT_EQ(protocol.events, Events{});
    grid.GridSetFocus();
    EXPECT_EQ(protocol.events, (Events{"table", "focus"}));
    grid.SetCellCheck(Row{1}, 1);
    EXPECT_EQ(protocol.events.back(), "rows");
}

TEST_F(ReadTableDataTest, AnEmptyFileIsATableOfNothing) {
    Load("");
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(table.model.TableAltered, 0);
    EXPECT_EQ(table.model.SetRowHeight, std::nullopt);
    EXPECT_EQ(protocol.events, Events{"focus"});
}

TEST_F(ReadTableDataTest, WorksOnSystemsOfEitherPathStyle) {
    TestTable posix(PathStyle::Posix);
    posix.model.TxtDbFile = u"/home/a/people.tbx";
    posix.program.files.AddFile(u"/home/a/people.tbx", kFile);
    ReadTableData(posix.tab);
    EXPECT_EQ(posix.grid.RowCount(), Row{2});
}

/// A tab that fails when the file's row height reaches it, in the middle of a load.
class FailingHost final : public TableHost {
public:
    void ShowRowHeight(std::int16_t) override { FailInHandler(); }
    Text TabCaption() const override { return {}; }
    void SetTabCaption(TextView) override {}
    void ClearDirty() override {}
};

TEST_F(ReadTableDataTest, ALoadThatFailsHalfwayLeavesAGridThatPaintsAndTheNormalPointer) {
    FailingHost failing;
    const TabContext tab{table.program.app, table.model, failing};
    table.program.files.AddFile(kPath, kFile);
    grid.SetGridVisible(false);
    EXPECT_THROW(ReadTableData(tab), HandlerFailure);
    EXPECT_TRUE(grid.GridVisible());
    EXPECT_EQ(pointers, (Pointers{Pointer::Hourglass, Pointer::Default}));
    grid.AddCol(u"key", u"caption");
    EXPECT_EQ(protocol.events.back(), "table");
}

} // namespace
} // namespace korvane
