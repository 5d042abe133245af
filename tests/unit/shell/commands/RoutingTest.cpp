#include "context/exchange/ListerRequest.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "shell/commands/Commands.h"
#include "support/TestProgram.h"
#include "table/frmDesignTable.h"
#include "table/frmTxtDbInfo.h"
#include "text/frmViewAndPaste.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class Routing : public testing::Test {
protected:
    TestProgram p;
};

// Kept for compatibility: no-tab-no-word.
TEST_F(Routing, WithoutATabEveryCommandOfATabDoesNothingAndSaysNothing) {
    p.StartWith({});
    for (const Command& command : Commands()) {
        if (std::holds_alternative<TabRoutine>(command.calls)) p.Main().RunCommand(command.name);
    }
    for (const std::string_view command : {"mnuSidebarWidth", "mnuWindowSize"})
        p.Main().RunCommand(command);
    EXPECT_EQ(p.app.Settings.SideBarWidthStep, 0);
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(Routing, UnknownCommandsDoNothing) {
    p.StartWith({});
    p.Main().RunCommand("mnuEdit_Edit");
    p.Main().RunCommand("mnuFile");
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(Routing, ACommandReachesTheTabThatIsActiveAtTheTime) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.AddTable(u"C:\\b.tbx", {"b"});
    p.StartWith({}, u"C:\\a.tbx");
    p.Open(u"C:\\b.tbx");
    p.Tab(1).iGrid1.CommitEdit(Row{1}, Col{1}, u"A");
    p.Tab(2).iGrid1.CommitEdit(Row{1}, Col{1}, u"B");
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.FileBytes(u"C:\\b.tbx"), NameTable(u"C:\\b.tbx", {"B"}));
    EXPECT_EQ(p.FileBytes(u"C:\\a.tbx"), NameTable(u"C:\\a.tbx", {"a"}));
    p.Choose("mnuFile_SwitchTabsForward");
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.FileBytes(u"C:\\a.tbx"), NameTable(u"C:\\a.tbx", {"A"}));
}

// Kept for compatibility: failed-design-keeps-tab.
TEST_F(Routing, DesignAndImportMakeTheirOwnTabWhichStaysWhenTheyFail) {
    p.StartWith({});
    p.OpenNewTab();
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Untitled_1.tbx"});
    p.user.On<frmViewAndPaste>([](frmViewAndPaste& view) { view.Close(); });
    p.Choose("mnuImport_Clip");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"Untitled_2.tbx"}));
}

TEST_F(Routing, ADesignFillsTheTabThatItMade) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith({}, u"C:\\a.tbx");
    p.user.On<frmDesignTable>([](frmDesignTable& design) {
        design.cmdAutoLabel.Press();
        design.cmdMake.Press();
    });
    EXPECT_TRUE(p.PressKey('N', Mask::Ctrl));
    const Text file = p.files.Style().JoinPath(p.files.CurrentDir(), u"NewTextDatabase.tbx");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", file}));
    EXPECT_EQ(p.Tab(2).GridStore().ColCount(), MaxColumns);
    EXPECT_EQ(p.Tab(2).txtRowHeight.Text.Get(), u"24");
    EXPECT_EQ(p.Tab(1).GridStore().ColCount(), Col{1});
    p.Tab(2).Table().TableAltered = 0;
}

TEST_F(Routing, AnImportFillsTheTabThatItMade) {
    p.StartWith({});
    p.clipboard.SetText(u"a\tb\nc\td\n");
    p.user.On<frmViewAndPaste>([](frmViewAndPaste& view) {
        view.Activate();
        view.OfficeMenu1.Choose("mnuRetrieve");
    });
    p.user.Answer(Answer::Yes);
    EXPECT_TRUE(p.PressKey(Key::F(1), Mask::Ctrl));
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Untitled_1.tbx"});
    EXPECT_EQ(p.Tab(1).GridStore().CellValue(Row{2}, Col{2}), u"d");
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, u"Untitled_1.tbx");
}

// Kept for compatibility: save-all-rewrites-all.
TEST_F(Routing, SaveAllRewritesUnalteredTabsTooAndListsAll) {
    for (const char* name : {"a", "b", "c", "d"}) {
        const Text path = u"C:\\" + FromAscii(name) + u".tbx";
        p.AddTable(path, {name});
    }
    p.StartWith({}, u"C:\\a.tbx");
    for (const TextView path : {u"C:\\b.tbx", u"C:\\c.tbx", u"C:\\d.tbx"})
        p.Open(Text(path));
    p.Tab(2).iGrid1.CommitEdit(Row{1}, Col{1}, u"B");
    p.Tab(3).iGrid1.CommitEdit(Row{1}, Col{1}, u"C");
    p.files.AddFile(u"C:\\d.tbx", "changed by somebody else");
    p.user.Answer(
        {u"Databases saved to disk: \r\n\r\na.tbx\r\nb.tbx\r\nc.tbx\r\nd.tbx\r\n", MessageIcon::Information},
        Answer::Ok);
    p.PressKey(Key::F(11), Mask::Ctrl);
    EXPECT_EQ(p.FileBytes(u"C:\\b.tbx"), NameTable(u"C:\\b.tbx", {"B"}));
    EXPECT_EQ(p.FileBytes(u"C:\\c.tbx"), NameTable(u"C:\\c.tbx", {"C"}));
    EXPECT_EQ(p.FileBytes(u"C:\\d.tbx"), NameTable(u"C:\\d.tbx", {"d"}));
    EXPECT_EQ(p.Tab(2).Table().TableAltered, 0);
}

TEST_F(Routing, SaveAllWithoutTabsSaysNothing) {
    p.StartWith({});
    p.Choose("mnuFile_SaveAll");
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(Routing, SaveAllListsATabWithoutAFileThoughItCannotBeSaved) {
    p.StartWith({});
    p.OpenNewTab();
    p.user.Answer(Answer::Ok);
    p.user.Answer({u"Databases saved to disk: \r\n\r\nUntitled_1.tbx\r\n", MessageIcon::Information},
                  Answer::Ok);
    p.Choose("mnuFile_SaveAll");
    EXPECT_TRUE(p.user.Messages().at(0).text.starts_with(
        u"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )"));
}

TEST_F(Routing, TheFocusGoesToTheSidebarAndBackToTheGrid) {
    Settings settings;
    settings.SideBarVisible = 1;
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith(settings, u"C:\\a.tbx");
    FocusCounter bar(p.Main().iGridListBar.Store());
    FocusCounter grid(p.Tab(1).GridStore());
    EXPECT_TRUE(p.PressKey('X', Mask::Alt));
    EXPECT_EQ(bar.Count(), 1);
    EXPECT_EQ(grid.Count(), 0);
    EXPECT_TRUE(p.PressSideBarKey('S', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(grid.Count(), 1);
    EXPECT_TRUE(p.PressKey('X', Mask::Alt));
    EXPECT_TRUE(p.PressSideBarKey('X', Mask::Alt));
    EXPECT_EQ(bar.Count(), 2);
    EXPECT_EQ(grid.Count(), 2);
}

TEST_F(Routing, TheFocusTurnsAlsoWhereTheSidebarIsHidden) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith({}, u"C:\\a.tbx");
    FocusCounter bar(p.Main().iGridListBar.Store());
    FocusCounter grid(p.Tab(1).GridStore());
    p.PressKey('X', Mask::Alt);
    EXPECT_EQ(bar.Count() + grid.Count(), 0);
    p.PressKey('X', Mask::Alt);
    EXPECT_EQ(grid.Count(), 1);
}

TEST_F(Routing, EveryToolBarButtonStandsUnderItsNameAndRunsItsCommand) {
    p.StartWith({});
    const auto button = [this](std::string_view name) {
        return dynamic_cast<CommandButton*>(p.Main().Find(name));
    };
    for (const ToolBarButton& entry : ToolBarButtons()) {
        ASSERT_NE(button(entry.name), nullptr) << entry.name;
        EXPECT_EQ(button(entry.name)->ToolTipText.Get(), ShownTip(entry));
    }
    EXPECT_EQ(button("imgUp")->ToolTipText.Get(), u"Move current row up (Ctrl-U)\nCtrl+Shift+Up");
    p.CancelDesign();
    button("cmdDesignDb")->Press();
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Untitled_1.tbx"});
    button("cmdClose")->Press();
    EXPECT_TRUE(p.Captions().empty());
    button("cmdDesktop")->Press();
    EXPECT_EQ(p.shell.Calls().at(0).kind, ShellCall::Kind::ToggleDesktop);
}

TEST_F(Routing, TheExplorerCommandOpensTheDesktopsFileManager) {
    p.StartWith({});
    p.PressKey(Key::F(9), Mask::Ctrl | Mask::Shift);
    EXPECT_EQ(p.shell.Opened(), (std::vector<OpenRequest>{{u"Open", u"explorer.exe", u"", u"0"}}));
}

TEST_F(Routing, TheTabStripShowsFileInfoOnATabAndTheWindowMenuBesideIt) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith({}, u"C:\\a.tbx");
    p.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) { info.cmdClose.Press(); });
    p.Main().MDITabs1.TabContextClick();
    p.user.ChooseFromPopUp("");
    p.Main().MDITabs1.ContextMenu();
    EXPECT_EQ(p.user.PopUps(), std::vector<std::string>{"mnuWindow"});
}

TEST_F(Routing, TheMainCaptionIsPutBackWhenNothingWasOpened) {
    p.StartWith({});
    p.user.OnChooser([this](ListerRequest&) { p.Main().Caption = u"changed"; });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Main().Caption.Get(), u"Korvane");
}

TEST_F(Routing, AltBStartsTheCustomBrowser) {
    p.files.AddFile(u"C:\\Web\\fox.exe");
    p.AddTable(u"C:\\a.tbx", {"a"});
    Settings settings;
    settings.CustomBrowserPath = u"C:\\Web\\fox.exe";
    p.StartWith(settings, u"C:\\a.tbx");
    EXPECT_TRUE(p.PressKey('B', Mask::Alt));
    EXPECT_EQ(p.shell.Starts(), (std::vector<ProgramStart>{{u"C:\\Web\\fox.exe"}}));
}

TEST_F(Routing, AltBTellsABrowserThatIsntThereAndLeavesTheSettingAlone) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith({}, u"C:\\a.tbx");
    p.user.Answer(Answer::Ok);
    EXPECT_TRUE(p.PressKey('B', Mask::Alt));
    EXPECT_TRUE(p.user.Messages().at(0).text.starts_with(
        u"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n"));
    EXPECT_EQ(p.app.Settings.CustomBrowserPath, u"");
    EXPECT_TRUE(p.shell.Starts().empty());
}

// Kept for compatibility: two-browsers.
TEST_F(Routing, TheBrowserOfTheMenuIsAnotherThanThatOfTheKeyInItsCaption) {
    p.files.AddFile(u"C:\\Web\\first.exe");
    Settings settings;
    settings.WebListA = u"C:\\Web\\first.exe";
    settings.CustomBrowserPath = u"C:\\Web\\fox.exe";
    p.StartWith(settings);
    p.Choose("mnuMisc_Browser");
    p.Main().iGridListBar.ClickCell(Row{14}, Col{1});
    const ProgramStart first{u"C:\\Web\\first.exe"};
    EXPECT_EQ(p.shell.Starts(), (std::vector<ProgramStart>{first, first}));
}

TEST_F(Routing, AltBTellsThePathOfABrowserThatIsGone) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    Settings settings;
    settings.CustomBrowserPath = u"C:\\Web\\fox.exe";
    p.StartWith(settings, u"C:\\a.tbx");
    p.user.Answer({u"Cannot locate the following program/file:\r\n\r\nC:\\Web\\fox.exe\r\n\r\n"
                   u"Check the path before the name and see whether\r\n"
                   u"the program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    p.PressKey('B', Mask::Alt);
    EXPECT_TRUE(p.shell.Starts().empty());
}

TEST_F(Routing, TheFixedToolsStartFromTheirPlaces) {
    const Text abrill = u"C:\\Drive_G\\Sandrel\\Abrill\\Abrill.exe";
    const Text dunmark = u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe";
    const Text ostrel = u"C:\\Drive_G\\TolmereSet\\Ostrel\\Ostrel.exe";
    const Text veldan = u"C:\\Drive_G\\TolmereSet\\Veldan\\Veldan.exe";
    for (const Text& path : {abrill, dunmark, ostrel, veldan})
        p.files.AddFile(path);
    p.StartWith({});
    p.PressKey(Key::F1, Mask::Ctrl | Mask::Shift);
    p.PressKey(Key::F1);
    p.Main().iGridListBar.ClickCell(Row{11}, Col{1});
    p.Main().iGridListBar.ClickCell(Row{12}, Col{1});
    EXPECT_EQ(p.shell.Starts(),
              (std::vector<ProgramStart>{
                  {abrill}, {dunmark, {u"C:\\Korvane\\Korvane_Help.rtf"}}, {ostrel}, {veldan}}));
}

TEST_F(Routing, AFailureInsideACommandOfATabLeavesTheRestOfTheProgramAlone) {
    p.AddTable(u"C:\\a.tbx", {"a"});
    p.StartWith({}, u"C:\\a.tbx");
    p.files.Erase(u"C:\\a.tbx");
    p.user.Answer(Answer::Ok);
    p.user.CancelChooser();
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
}

TEST_F(Routing, TheActiveFolderStandsInTheCaptionOfTheTab) {
    p.AddTable(u"C:\\Data\\a.tbx", {"a"});
    Settings settings;
    settings.ShowFullPath = 1;
    p.StartWith(settings, u"C:\\Data\\a.tbx");
    EXPECT_EQ(p.Main().GetActiveFolder(), u"C:\\Data");
    p.Tab(1).Caption = u"a.tbx";
    EXPECT_EQ(p.Main().GetActiveFolder(), u"");
}

TEST_F(Routing, WithoutATabTheActiveFolderIsEmptyAndTold) {
    p.StartWith({});
    p.user.Answer({u"No form loaded.", MessageIcon::None}, Answer::Ok);
    EXPECT_EQ(p.Main().GetActiveFolder(), u"");
}

} // namespace
} // namespace korvane
