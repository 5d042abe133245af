// A whole run without a display, from the command line to the bytes on disk.

#include "context/exchange/StateFiles.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
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

std::string Joined(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
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
    void StartWithThree() {
        p.StartWith(StartSettings(), u"\"C:\\Data\\Books.tbx\"");
        // Two more files, through the menu's key and the sidebar.
        p.user.ChooseFile(kPeople);
        EXPECT_TRUE(p.PressKey('O', Mask::Ctrl));
        p.user.ChooseFile(kPlaces);
        p.Main().iGridListBar.ClickCell(Row{2}, Col{1});
        EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Books.tbx", u"People.tbx", u"Places.tbx"}));
    }
    void Alter(int slot) { p.Tab(slot).iGrid1.CommitEdit(Row{1}, Col{1}, u"changed"); }
    /// Answers the question about this file's changes, which has to come next.
    void AnswerQuestion(const Text& path, Answer answer) {
        p.user.Answer({u"The text database has been changed.\r\n\r\n" + path +
                           u"\r\n\r\nDo you want to save the changes?\r\n",
                       MessageIcon::Question, MessageButtons::YesNoCancel},
                      answer);
    }
    /// Both state files after a run from `StartSettings` with all three tables, byte for byte.
    void ExpectStateFiles(const Text& findText) {
        Settings expected = StartSettings();
        expected.CurDrive = u"C";
        expected.CurDirAtSave = u"C:\\";
        expected.FileDialogFilter = u"0";
        expected.PageSizeName = u"0";
        expected.WallpaperNumber = u"0";
        expected.LastDbFindText = findText;
        EXPECT_EQ(p.FileBytes(p.app.Exchange<StateFiles>().IniFilePath), SettingsBytes(expected));
        EXPECT_EQ(p.FileBytes(p.app.Exchange<StateFiles>().RecFilePath),
                  "C:\\Data\\Places.tbx | 0*2026.11.21   10:30\r\n"
                  "C:\\Data\\People.tbx | 0*2026.11.21   10:30\r\n"
                  "C:\\Data\\Books.tbx | 0*2026.11.21   10:30\r\n");
    }

    TestProgram p;
};

TEST_F(EndToEnd, OneTableIsEditedTickedSortedAndSavedAsAnother) {
    StartWithThree();
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
}

TEST_F(EndToEnd, AnotherIsEditedAndSavedWithItsInformationInTheClipboard) {
    StartWithThree();
    p.PressKey(Key::F(12), Mask::Shift);
    p.Tab(2).iGrid1.CommitEdit(Row{2}, Col{1}, u"B\u00E9rt");
    p.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        info.cmdClip.Press();
        info.cmdClose.Press();
    });
    p.PressKey('S', Mask::Ctrl);
    EXPECT_EQ(p.FileBytes(kPeople), NameTable(kPeople, {"Anna", "B\xE9rt"}));
    EXPECT_TRUE(p.clipboard.GetText().starts_with(u"File: People.tbx\r\nPath: C:\\Data\r\nRows: 2\r\n"));
}

TEST_F(EndToEnd, AllAreAlteredAndTheEndIsCancelledAtTheSecondAndThenGoesThrough) {
    StartWithThree();
    for (int slot = 1; slot <= 3; ++slot)
        Alter(slot);
    const std::string booksBefore = p.FileBytes(kBooks);
    AnswerQuestion(kBooks, Answer::No);
    AnswerQuestion(kPeople, Answer::Cancel);
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(p.Main().Shown());
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"People.tbx", u"Places.tbx"}));
    // Nothing of the state is written before the end.
    EXPECT_EQ(p.FileBytes(p.app.Exchange<StateFiles>().IniFilePath), SettingsBytes(StartSettings()));

    p.Tab(3).txtFindString.Type(u"Ems");
    AnswerQuestion(kPeople, Answer::No);
    AnswerQuestion(kPlaces, Answer::Yes);
    CloseInfo();
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_EQ(p.FileBytes(kBooks), booksBefore);
    EXPECT_EQ(p.FileBytes(kPlaces), NameTable(kPlaces, {"changed"}));
    ExpectStateFiles(u"Ems");
}

TEST_F(EndToEnd, TabsAreSwitchedRenamedAndClosedWithEachAnswer) {
    StartWithThree();
    // The tab after the last one is the first, and back again.
    p.PressKey(Key::F(12));
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(1));
    p.PressKey(Key::F(12), Mask::Shift);
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(3));
    p.PressKey(Key::F(12), Mask::Shift);
    ASSERT_EQ(p.AllTabs().Active(), &p.Tab(2));
    // The file gets another name, and so does the tab.
    p.user.ChooseFile(kSorted);
    CloseInfo();
    p.Choose("mnuFile_SaveAs");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Books.tbx", kSorted, u"Places.tbx"}));
    EXPECT_EQ(p.FileBytes(kSorted), NameTable(kSorted, {"Anna", "Bert"}));

    Alter(2);
    AnswerQuestion(kSorted, Answer::Cancel);
    p.PressKey('Q', Mask::Ctrl);
    EXPECT_EQ(p.Captions().size(), 3u);
    AnswerQuestion(kSorted, Answer::No);
    p.PressKey('Q', Mask::Ctrl);
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Books.tbx", u"Places.tbx"}));
    EXPECT_EQ(p.FileBytes(kSorted), NameTable(kSorted, {"Anna", "Bert"}));

    while (p.AllTabs().Active() != &p.Tab(3))
        p.PressKey(Key::F(12));
    Alter(3);
    AnswerQuestion(kPlaces, Answer::Yes);
    CloseInfo();
    p.PressKey('Q', Mask::Ctrl);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Books.tbx"});
    EXPECT_EQ(p.FileBytes(kPlaces), NameTable(kPlaces, {"changed"}));

    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    ExpectStateFiles(u"");
}

TEST_F(EndToEnd, AValueOfItsOwnOnEveryLineOfTheSettingsComesThroughARun) {
    std::vector<std::string> lines;
    for (std::size_t i = 1; i <= kSettingLines; ++i)
        lines.push_back(std::to_string(1000 + i));
    p.files.AddFile(u"C:\\Korvane\\Korvane.ini", Joined(lines));
    p.Start();
    p.Choose("mnuFile_Exit");

    // The writer fills in the current directory and exchanges three pairs of lines.
    lines[0] = "C";
    lines[1] = "C:\\";
    std::swap(lines[26], lines[27]);
    std::swap(lines[28], lines[29]);
    std::swap(lines[30], lines[31]);
    EXPECT_EQ(p.FileBytes(p.app.Exchange<StateFiles>().IniFilePath), Joined(lines));
}

TEST_F(EndToEnd, TheNextStartComesUpAsTheLastRunEnded) {
    p.StartWith(StartSettings(), kBooks);
    p.Main().Left = Twips{900};
    p.Choose("mnuFile_Exit");
    p.EndProcess();

    TestProgram next;
    for (const Text& path :
         {p.app.Exchange<StateFiles>().IniFilePath, p.app.Exchange<StateFiles>().RecFilePath}) {
        next.files.AddFile(path, p.FileBytes(path));
    }
    next.Start();
    EXPECT_EQ(next.Main().Left.Get(), Twips{900});
    EXPECT_EQ(next.Main().MDITabs1.Style, 13);
    EXPECT_EQ(next.Main().Parts().recents.RecentEntries[1], u"C:\\Data\\Books.tbx | 0*2026.11.21   10:30");
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
    EXPECT_EQ(posix.FileBytes(posix.app.Exchange<StateFiles>().RecFilePath),
              "/home/me/Books.tbx | 0*2026.11.21   10:30\r\n");
}

} // namespace
} // namespace korvane
