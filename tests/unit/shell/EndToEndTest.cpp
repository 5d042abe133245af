// A whole run without a display, from the command line to the bytes on disk.

#include "support/TestProgram.h"
#include "table/frmTxtDbInfo.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kBooks = u"C:\\Data\\Books.tbx";
const Text kPeople = u"C:\\Data\\People.tbx";
const Text kPlaces = u"C:\\Data\\Places.tbx";
const Text kSorted = u"C:\\Data\\Sorted.tbx";

Settings StartSettings() {
    Settings settings;
    settings.MainLeft = 600;
    settings.MainTop = 450;
    settings.MainWidth = 15000;
    settings.MainHeight = 9000;
    settings.TabStyle = 13;
    settings.SideBarVisible = 1;
    settings.AllowSorting = 1;
    settings.ShowFileInfoAfterSave = 1;
    settings.WordDelimiters = u".,;";
    settings.ReturnPassword = u"secret";
    return settings;
}

class EndToEnd : public testing::Test {
protected:
    EndToEnd() {
        p.files.AddFile(kBooks,
                        TableBytes(kBooks, {"Title", "Author"}, {{"Walden", "Thoreau"}, {"Emma", "Austen"}}));
        p.AddTable(kPeople, {"Anna", "Bert"});
        p.AddTable(kPlaces, {"Ems"});
    }
    void CloseInfo() {
        p.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) { info.cmdClose.Press(); });
    }

    TestProgram p;
};

TEST_F(EndToEnd, OpenEditTickSortSaveCloseAndExit) {
    p.StartWith(StartSettings(), u"\"C:\\Data\\Books.tbx\"");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Books.tbx"});

    // Two more files, through the menu's key and the sidebar.
    p.user.ChooseFile(kPeople);
    EXPECT_TRUE(p.PressKey('O', Mask::Ctrl));
    p.user.ChooseFile(kPlaces);
    p.Main().iGridListBar.ClickCell(Row{2}, Col{1});
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Books.tbx", u"People.tbx", u"Places.tbx"}));

    // Back to the first: edit, tick, sort, save under a new name.
    p.PressKey(Key::F(12));
    frmMDIChild& books = p.Tab(1);
    ASSERT_EQ(p.AllTabs().Active(), &books);
    books.iGrid1.CommitEdit(Row{1}, Col{2}, u"H. D. Thoreau\r\n1854");
    books.iGrid1.ClickCheck(Row{1});
    books.iGrid1.ClickHeader(Col{1});
    p.user.ChooseFile(kSorted);
    CloseInfo();
    EXPECT_TRUE(p.PressKey(Key::F(10)));
    EXPECT_EQ(p.Captions()[0], kSorted);
    std::string sorted =
        TableBytes(kSorted, {"Title", "Author"}, {{"Emma", "Austen"}, {"Walden", "H. D. Thoreau\r\n1854"}});
    sorted.replace(sorted.find("@row_2\r\n?0"), 10, "@row_2\r\n?1");
    EXPECT_EQ(p.FileBytes(kSorted), sorted);

    // The second: edit and save, with the information in the clipboard.
    p.PressKey(Key::F(12));
    p.Tab(2).iGrid1.CommitEdit(Row{2}, Col{1}, u"B\u00E9rt");
    p.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        info.cmdClip.Press();
        info.cmdClose.Press();
    });
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.FileBytes(kPeople), NameTable(kPeople, {"Anna", "B\xE9rt"}));
    EXPECT_TRUE(p.clipboard.GetText().starts_with(u"File: People.tbx\r\nPath: C:\\Data\r\nRows: 2\r\n"));

    // All three altered; the end is cancelled at the second and then goes through.
    for (int slot = 1; slot <= 3; ++slot)
        p.Tab(slot).iGrid1.CommitEdit(Row{1}, Col{1}, u"changed");
    p.user.Answer(Answer::No);
    p.user.Answer(Answer::Cancel);
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(p.Main().Shown());
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"People.tbx", u"Places.tbx"}));
    p.Tab(3).txtFindString.Type(u"Ems");
    p.user.Answer(Answer::No);
    p.user.Answer(Answer::Yes);
    CloseInfo();
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_EQ(p.FileBytes(kSorted), sorted);
    EXPECT_EQ(p.FileBytes(kPlaces), NameTable(kPlaces, {"changed"}));

    // Both state files, byte for byte.
    Settings expected = StartSettings();
    expected.CurDrive = u"C";
    expected.CurDirAtSave = u"C:\\";
    expected.FileDialogFilter = u"0";
    expected.PageSizeName = u"0";
    expected.WallpaperNumber = u"0";
    expected.LastDbFindText = u"Ems";
    EXPECT_EQ(p.FileBytes(p.app.IniFilePath), SettingsBytes(expected));
    EXPECT_EQ(p.FileBytes(p.app.RecFilePath), "C:\\Data\\Places.tbx | 0*2026.11.21   10:30\r\n"
                                              "C:\\Data\\People.tbx | 0*2026.11.21   10:30\r\n"
                                              "C:\\Data\\Books.tbx | 0*2026.11.21   10:30\r\n");
}

TEST_F(EndToEnd, TheNextStartComesUpAsTheLastRunEnded) {
    p.StartWith(StartSettings(), kBooks);
    p.Main().Left = Twips{900};
    p.Choose("mnuFile_Exit");
    p.EndProcess();

    TestProgram next;
    for (const Text& path : {p.app.IniFilePath, p.app.RecFilePath}) {
        next.files.AddFile(path, p.FileBytes(path));
    }
    next.Start();
    EXPECT_EQ(next.Main().Left.Get(), Twips{900});
    EXPECT_EQ(next.Main().MDITabs1.Style, 13);
    EXPECT_EQ(next.Main().Recents().RecentEntries[1], u"C:\\Data\\Books.tbx | 0*2026.11.21   10:30");
    EXPECT_EQ(next.app.Settings.ReturnPassword, u"secret");
    EXPECT_TRUE(next.Captions().empty());
}

TEST_F(EndToEnd, AMarkedRowStaysToBeSeenAndIsMissingFromTheFile) {
    p.StartWith({}, kPeople);
    p.Tab(1).iGrid1.CommitEdit(Row{1}, Col{1}, u"---");
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.Tab(1).GridStore().RowCount(), Row{2});
    EXPECT_EQ(p.Tab(1).GridStore().CellText(Row{1}, Col{1}), u"---");
    p.Choose("mnuFile_Close");
    p.Open(kPeople);
    EXPECT_EQ(p.Tab(1).GridStore().RowCount(), Row{1});
    EXPECT_EQ(p.Tab(1).GridStore().CellText(Row{1}, Col{1}), u"Bert");
}

TEST_F(EndToEnd, TheSameRunOnPosix) {
    TestProgram posix(PathStyle::Posix);
    const Text file = u"/home/me/Books.tbx";
    posix.AddTable(file, {"Emma"});
    posix.StartWith({}, file);
    posix.Tab(1).iGrid1.CommitEdit(Row{1}, Col{1}, u"Walden");
    posix.user.Answer(Answer::Yes);
    posix.Choose("mnuFile_Exit");
    EXPECT_EQ(posix.FileBytes(file), NameTable(file, {"Walden"}));
    EXPECT_EQ(posix.FileBytes(posix.app.RecFilePath), "/home/me/Books.tbx | 0*2026.11.21   10:30\r\n");
}

} // namespace
} // namespace korvane
