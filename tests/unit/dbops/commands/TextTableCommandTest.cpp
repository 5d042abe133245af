#include "dbops/commands/TextTableCommand.h"

#include "context/ports/FrontWindow.h"
#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmFormatTable.h"
#include "document/rtf/Rtf.h"
#include "support/FakeMainWindow.h"
#include "unit/dbops/FakePorts.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TextTableCommand : public testing::Test {
protected:
    TextTableCommand() {
        t.Fill({{u"a1", u"b1"}, {u"a2", u"b2"}});
        t.table.ColumnNames.Set(Col{1}, u"Name");
    }
    void Choose(bool onlyTicked, bool goesOn = true) {
        t.user.On<frmChooseRange>([=](frmChooseRange& f) {
            (onlyTicked ? f.Option2 : f.Option1).Press();
            (goesOn ? f.cmdProceed : f.cmdCancel).Press();
        });
    }
    Text Inserted() {
        EXPECT_EQ(textWindow.insertedRtf.size(), 1U);
        return textWindow.insertedRtf.empty()
                   ? Text()
                   : doc::PlainText(doc::ReadRtf(textWindow.insertedRtf[0]).document);
    }

    TestTab t;
    FakeTextWindow textWindow{t.app};
};

TEST_F(TextTableCommand, PutsTheTableIntoTheTextWindow) {
    Choose(false);
    t.user.On<frmFormatTable>([](frmFormatTable& f) {
        f.chkColumnToFirstRow.Press();
        f.cmdProceed.Press();
    });
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_EQ(Inserted(), u"Name\r\n\r\na1\r\nb1\r\na2\r\nb2\r\n");
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
    EXPECT_EQ(doc::ReadRtf(textWindow.insertedRtf[0]).document.tables.size(), 1U);
}

TEST_F(TextTableCommand, TakesTickedRowsAlone) {
    t.grid.SetCellCheck(Row{2}, 1);
    Choose(true);
    t.user.On<frmFormatTable>([](frmFormatTable& f) { f.cmdProceed.Press(); });
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_EQ(Inserted(), u"a2\r\nb2\r\n");
}

TEST_F(TextTableCommand, ACancelInEitherWindowStopsIt) {
    Choose(false, false);
    mnuEdit_MakeTable_Clack(t.tab);
    Choose(false);
    t.user.On<frmFormatTable>([](frmFormatTable& f) { f.cmdCancel.Press(); });
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_TRUE(textWindow.insertedRtf.empty());
}

TEST_F(TextTableCommand, WithoutATextWindowNothingHappens) {
    t.app.SetPort<TextWindow>(nullptr);
    Choose(false);
    t.user.On<frmFormatTable>([](frmFormatTable& f) { f.cmdProceed.Press(); });
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TextTableCommand, PressesDownBeforeItAsksForTheLook) {
    struct CountingFront final : FrontWindow {
        void PressDown() override { ++presses; }
        int presses = 0;
    } front;
    t.app.SetPort<FrontWindow>(&front);
    Choose(false);
    t.user.On<frmFormatTable>([&front](frmFormatTable& f) {
        EXPECT_EQ(front.presses, 1);
        f.cmdCancel.Press();
    });
    mnuEdit_MakeTable_Clack(t.tab);
}

TEST_F(TextTableCommand, WithoutRowsTheTextWindowGetsNothingAndTheTabStays) {
    FakeMainWindow main(t.app);
    Choose(true);
    t.user.On<frmFormatTable>([](frmFormatTable& f) { f.cmdProceed.Press(); });
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_EQ(Inserted(), u"");
    EXPECT_TRUE(main.commands.empty());
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

// Kept for compatibility: refused-text-table-closes.
TEST_F(TextTableCommand, ATableTooLargeForATextIsRefusedAndTheTabCloses) {
    t.grid.SetCellValue(Row{2}, Col{1}, Text(doc::Limits{}.characters, u'x'));
    FakeMainWindow main(t.app);
    Choose(false);
    t.user.On<frmFormatTable>([](frmFormatTable& f) { f.cmdProceed.Press(); });
    t.user.Answer({u"The text cursor is currently inside a table.\r\nMove it outside and try again.",
                   MessageIcon::Exclamation, MessageButtons::Ok},
                  Answer::Ok);
    mnuEdit_MakeTable_Clack(t.tab);
    EXPECT_TRUE(textWindow.insertedRtf.empty());
    EXPECT_EQ(main.commands, std::vector<std::string>{"mnuFile_Close"});
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

} // namespace
} // namespace korvane
