#include "context/Launching.h"

#include "context/exchange/SystemDirs.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class LaunchingOnWindows : public testing::Test {
protected:
    LaunchingOnWindows() { t.files.AddDrive(u'G'); }

    /// The program that is started for `program`.
    Text Started(TextView program) {
        LaunchProgram(t.app, program);
        return t.shell.Starts().back().program;
    }
    /// The words that a program gets for `argument`.
    std::vector<Text> Words(TextView argument) {
        LaunchProgram(t.app, u"C:\\a.exe", argument);
        return t.shell.Starts().back().arguments;
    }

    TestApp t;
};

class LaunchingOnPosix : public testing::Test {
protected:
    Text Started(TextView program) {
        LaunchProgram(t.app, program);
        return t.shell.Starts().back().program;
    }

    TestApp t{PathStyle::Posix};
};

TEST_F(LaunchingOnWindows, StartsAProgramThatIsThereInANormalWindow) {
    t.files.AddFile(u"C:\\Tools\\a.exe");
    EXPECT_EQ(LaunchProgram(t.app, u"C:\\Tools\\a.exe"), 1);
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\Tools\\a.exe", {}, WindowState::Normal}));
}

TEST_F(LaunchingOnWindows, LooksInTheOtherFormThenInTheSetThenInTheProgramFolder) {
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"C:\\Korvane\\a.exe");
    t.files.AddFile(u"C:\\TolmereSet\\a.exe");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"C:\\TolmereSet\\a.exe");
    t.files.AddFile(u"G:\\Sub\\a.exe");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"G:\\Sub\\a.exe");
    t.files.AddFile(u"C:\\Drive_G\\Sub\\a.exe");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"C:\\Drive_G\\Sub\\a.exe");
}

TEST_F(LaunchingOnWindows, FindsTheMirrorOfALostDrive) {
    t.files.AddFile(u"C:\\Drive_G\\a.exe");
    EXPECT_EQ(Started(u"G:\\a.exe"), u"C:\\Drive_G\\a.exe");
}

TEST_F(LaunchingOnWindows, AFolderIsNoProgram) {
    t.files.AddDir(u"C:\\Tools\\a.exe");
    t.files.AddDir(u"C:\\TolmereSet\\a.exe");
    EXPECT_EQ(Started(u"C:\\Tools\\a.exe"), u"C:\\Korvane\\a.exe");
}

// Kept for compatibility: failed-start-is-silent.
TEST_F(LaunchingOnWindows, AStartThatFailsIsSwallowed) {
    t.shell.SetStartable([this](TextView program) { return t.files.FileExists(program); });
    EXPECT_EQ(LaunchProgram(t.app, u"C:\\Drive_G\\lost.exe", u"x"), 0);
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\Korvane\\lost.exe", {u"x"}}));
}

TEST_F(LaunchingOnWindows, AnEmptyProgramDoesNotMakeTheDocumentTheCommand) {
    EXPECT_EQ(LaunchProgram(t.app, u"", u"C:\\evil.exe"), 0);
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"", {u"C:\\evil.exe"}}));
}

TEST_F(LaunchingOnWindows, NeverDoublesTheBackslashOfAProgramFolderThatIsARoot) {
    t.files.SetProgramDir(u"C:\\");
    EXPECT_EQ(Started(u"D:\\a.exe"), u"C:\\a.exe");
}

TEST_F(LaunchingOnWindows, LooksWhereTheProgramIsAlsoWhenItsStateIsElsewhere) {
    t.files.SetStateDir(u"C:\\Users\\ann");
    EXPECT_EQ(Started(u"C:\\Drive_G\\lost.exe"), u"C:\\Korvane\\lost.exe");
}

TEST_F(LaunchingOnWindows, ANameThatIsThereStartsThatFileAndNoneOfTheSystems) {
    t.files.AddFile(u"C:\\Here\\notepad.exe");
    t.files.ChangeDir(u"C:\\Here");
    EXPECT_EQ(Started(u"notepad.exe"), u"C:\\Here\\notepad.exe");
    StartProgram(t.app, u"notepad.exe");
    EXPECT_THAT(t.shell.Starts().back(), (ProgramStart{u"C:\\Here\\notepad.exe", {}, WindowState::Normal}));
}

TEST_F(LaunchingOnWindows, ADirectStartLooksNowhereElse) {
    t.files.AddFile(u"C:\\Drive_G\\a.exe");
    StartProgram(t.app, u"G:\\a.exe");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"G:\\a.exe", {}, WindowState::Normal}));
}

TEST_F(LaunchingOnWindows, AHostileFileNameIsNoMoreThanAWordOfTheArgument) {
    EXPECT_THAT(Words(u"C:\\d\\a&calc|b>c^%PATH%;(d)`e`.txt"),
                ElementsAre(u"C:\\d\\a&calc|b>c^%PATH%;(d)`e`.txt"));
    EXPECT_THAT(Words(u"/c calc.exe\r\nnotepad"), ElementsAre(u"/c", u"calc.exe\r\nnotepad"));
    for (const ProgramStart& start : t.shell.Starts())
        EXPECT_EQ(start.program, u"C:\\Korvane\\a.exe");
}

// Kept for compatibility: drive-mirror-of-bare-name.
TEST_F(LaunchingOnWindows, LosesThePlaceOfANameWithoutAFolderToItsMirror) {
    EXPECT_EQ(Started(u"a.exe"), u"C:\\Korvane\\Drive_a.exe");
}

TEST_F(LaunchingOnWindows, ABlankArgumentIsNone) {
    EXPECT_THAT(Words(u""), SizeIs(0));
    EXPECT_THAT(Words(u"   "), SizeIs(0));
}

// Kept for compatibility: argument-not-quoted.
TEST_F(LaunchingOnWindows, DoesNotQuoteTheArgument) {
    EXPECT_THAT(Words(u" C:\\My Files\\x.txt "), ElementsAre(u"C:\\My", u"Files\\x.txt"));
}

TEST_F(LaunchingOnWindows, AnArgumentInQuotesIsStrippedOfThemAndSplit) {
    EXPECT_THAT(Words(u"\"C:\\My Files\\x.txt\""), ElementsAre(u"C:\\My", u"Files\\x.txt"));
}

// Kept for compatibility: argument-loses-outer-characters.
TEST_F(LaunchingOnWindows, AQuoteAnywhereTakesTheOuterCharactersWhateverTheyAre) {
    EXPECT_THAT(Words(u"ab \"c d\" ef"), ElementsAre(u"b", u"c d", u"e"));
    EXPECT_THAT(Words(u"\""), SizeIs(0));
    EXPECT_THAT(Words(u"\"\""), SizeIs(0));
}

TEST_F(LaunchingOnWindows, FindsOfficeWhereTheSettingsSay) {
    t.app.Settings.WordPath = u"C:\\W\\w.exe";
    t.app.Settings.PublisherPath = u"C:\\W\\p.exe";
    t.app.Settings.AccessPath = u"C:\\W\\a.exe";
    t.app.Settings.ExcelPath = u"C:\\W\\e.exe";
    t.app.Settings.PowerPointPath = u"C:\\W\\t.exe";
    for (const TextView file : {u"w", u"p", u"a", u"e", u"t"})
        t.files.AddFile(u"C:\\W\\" + Text(file) + u".exe");
    EXPECT_EQ(FindOfficeProgram(t.app, u"WINWORD.EXE"), u"C:\\W\\w.exe");
    EXPECT_EQ(FindOfficeProgram(t.app, u"MSPUB.EXE"), u"C:\\W\\p.exe");
    EXPECT_EQ(FindOfficeProgram(t.app, u"MSACCESS.EXE"), u"C:\\W\\a.exe");
    EXPECT_EQ(FindOfficeProgram(t.app, u"EXCEL.EXE"), u"C:\\W\\e.exe");
    EXPECT_EQ(FindOfficeProgram(t.app, u"POWERPNT.EXE"), u"C:\\W\\t.exe");
}

TEST_F(LaunchingOnWindows, KnowsTheNamesOfOfficeProgramsExactly) {
    t.app.Settings.WordPath = u"C:\\W\\w.exe";
    t.files.AddFile(u"C:\\W\\w.exe");
    t.app.Exchange<SystemDirs>().ProgramFilesDir = u"C:\\P\\";
    EXPECT_EQ(FindOfficeProgram(t.app, u"winword.exe"), u"C:\\P\\\\Microsoft Office\\Office\\winword.exe");
}

// Kept for compatibility: office-path-two-backslashes.
TEST_F(LaunchingOnWindows, FindsOfficeInTheNewestOfItsFoldersWithTwoBackslashesInARow) {
    t.app.Exchange<SystemDirs>().ProgramFilesDir = u"C:\\P\\";
    t.app.Settings.ExcelPath = u"C:\\lost\\EXCEL.EXE";
    EXPECT_EQ(FindOfficeProgram(t.app, u"EXCEL.EXE"), u"C:\\P\\\\Microsoft Office\\Office\\EXCEL.EXE");
    for (const TextView folder : {u"OFFICE11", u"OFFICE12", u"OFFICE16"}) {
        t.files.AddFile(u"C:\\P\\Microsoft Office\\" + Text(folder) + u"\\EXCEL.EXE");
        EXPECT_EQ(FindOfficeProgram(t.app, u"EXCEL.EXE"),
                  u"C:\\P\\\\Microsoft Office\\" + Text(folder) + u"\\EXCEL.EXE");
    }
}

TEST_F(LaunchingOnPosix, StartsAProgramThatIsThere) {
    t.files.AddFile(u"/usr/bin/a");
    EXPECT_EQ(Started(u"/usr/bin/a"), u"/usr/bin/a");
}

TEST_F(LaunchingOnPosix, LooksForALostProgramInTheProgramFolder) {
    EXPECT_EQ(Started(u"/usr/bin/lost"), u"/opt/korvane/lost");
}

TEST_F(LaunchingOnPosix, TakesTheNameOfAWindowsPathWithAndWithoutItsExtension) {
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"/opt/korvane/a");
    t.files.AddFile(u"/opt/korvane/a");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"/opt/korvane/a");
    t.files.AddFile(u"/opt/korvane/a.exe");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"/opt/korvane/a.exe");
}

TEST_F(LaunchingOnPosix, AFileCalledLikeAWindowsPathIsNeverStarted) {
    t.files.AddDir(u"/download");
    t.files.ChangeDir(u"/download");
    for (const TextView name : {u"C:\\Drive_G\\a.exe", u"G:\\a.exe", u"C:\\TolmereSet\\a.exe"})
        t.files.AddFile(u"/download/" + Text(name));
    EXPECT_EQ(Started(u"C:\\Drive_G\\a.exe"), u"/opt/korvane/a");
    EXPECT_EQ(Started(u"G:\\a.exe"), u"/opt/korvane/a");
    EXPECT_EQ(Started(u"/usr/bin/a.exe"), u"/opt/korvane/a");
}

TEST_F(LaunchingOnPosix, AnEmptyProgramDoesNotMakeTheDocumentTheCommand) {
    EXPECT_EQ(LaunchProgram(t.app, u"", u"/home/ann/evil"), 0);
}

TEST_F(LaunchingOnPosix, AHostileFileNameIsNoMoreThanAWordOfTheArgument) {
    t.files.AddFile(u"/usr/bin/view");
    LaunchProgram(t.app, u"/usr/bin/view", u"/d/$(reboot);`id`|x&y>z\n'q'*");
    LaunchProgram(t.app, u"/usr/bin/view", u"/d/a\"b; rm\"c");
    LaunchProgram(t.app, u"/usr/bin/view", u"--exec=evil");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"/usr/bin/view", {u"/d/$(reboot);`id`|x&y>z\n'q'*"}},
                            ProgramStart{u"/usr/bin/view", {u"d/ab; rm"}},
                            ProgramStart{u"/usr/bin/view", {u"--exec=evil"}}));
}

TEST_F(LaunchingOnPosix, ANameThatIsThereStartsThatFileAndNoneOfTheSystems) {
    t.files.AddFile(u"/home/ann/ls");
    t.files.ChangeDir(u"/home/ann");
    EXPECT_EQ(Started(u"ls"), u"/home/ann/ls");
    EXPECT_EQ(Started(u"./ls"), t.files.FullPath(u"./ls"));
}

TEST_F(LaunchingOnPosix, LooksWhereTheProgramIsAlsoWhenItsStateIsElsewhere) {
    t.files.SetStateDir(u"/home/ann/.config/korvane");
    EXPECT_EQ(Started(u"C:\\Drive_G\\Sub\\a.exe"), u"/opt/korvane/a");
    EXPECT_EQ(Started(u"/usr/bin/lost"), u"/opt/korvane/lost");
}

TEST_F(LaunchingOnPosix, AFileCalledLikeAnOfficeFolderIsNoOfficeProgram) {
    t.files.AddDir(u"/download");
    t.files.ChangeDir(u"/download");
    for (const TextView folder : {u"OFFICE16", u"OFFICE12", u"OFFICE11", u"Office"})
        t.files.AddFile(u"/download/\\Microsoft Office\\" + Text(folder) + u"\\WINWORD.EXE");
    t.files.AddFile(u"/download/WINWORD.EXE");
    EXPECT_FALSE(t.files.FileExists(FindOfficeProgram(t.app, u"WINWORD.EXE")));
}

TEST_F(LaunchingOnPosix, FindsOfficeOnlyWhereTheSettingsSay) {
    t.app.Settings.WordPath = u"/usr/bin/writer";
    EXPECT_FALSE(t.files.FileExists(FindOfficeProgram(t.app, u"WINWORD.EXE")));
    t.files.AddFile(u"/usr/bin/writer");
    EXPECT_EQ(FindOfficeProgram(t.app, u"WINWORD.EXE"), u"/usr/bin/writer");
}

} // namespace
} // namespace korvane
