#include "shell/settings/SettingsFile.h"

#include "context/exchange/StateFiles.h"
#include "context/ports/SecretHolder.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

const Text kIni = u"C:\\Korvane\\Korvane.ini";

std::string Joined(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

class SettingsFile : public testing::Test {
protected:
    SettingsFile() { t.app.Exchange<StateFiles>().IniFilePath = kIni; }

    /// Reads a file of these lines.
    void Read(const std::string& bytes) {
        t.files.AddFile(kIni, bytes);
        ReadSettings(t.app);
    }
    std::vector<std::string> WrittenLines() {
        WriteSettings(t.app);
        std::string bytes = t.files.Contents(kIni).value_or("");
        std::vector<std::string> lines;
        for (std::size_t end; (end = bytes.find("\r\n")) != std::string::npos; bytes.erase(0, end + 2)) {
            lines.push_back(bytes.substr(0, end));
        }
        EXPECT_EQ(bytes, "");
        return lines;
    }
    /// The lines of a file in which line `number` is `value` and all others are empty.
    static std::string OneLine(int number, const std::string& value) {
        std::vector<std::string> lines(kSettingLines);
        lines.at(static_cast<std::size_t>(number - 1)) = value;
        return Joined(lines);
    }

    TestApp t;
    Settings& settings = t.app.Settings;
};

TEST_F(SettingsFile, EveryLineSurvivesARunButForWhatIsMeantNotTo) {
    std::vector<std::string> lines;
    for (std::size_t i = 1; i <= kSettingLines; ++i)
        lines.push_back(std::to_string(1000 + i));
    Read(Joined(lines));
    // The writer fills the first two itself and exchanges three pairs.
    std::vector<std::string> expected = lines;
    expected[0] = "C";
    expected[1] = "C:\\";
    std::swap(expected[26], expected[27]);
    std::swap(expected[28], expected[29]);
    std::swap(expected[30], expected[31]);
    EXPECT_EQ(WrittenLines(), expected);
}

TEST_F(SettingsFile, TheFirstRunOfAUserTakesWhatCameWithTheProgram) {
    const Text own = u"C:\\Users\\anna\\Korvane.ini";
    t.files.AddDir(u"C:\\Users\\anna");
    t.files.AddFile(kIni, OneLine(5, "18000"));
    t.app.Exchange<StateFiles>().IniFilePath = own;
    ReadSettings(t.app);
    EXPECT_EQ(settings.MainWidth, 18000);
    settings.MainWidth = 9000;
    WriteSettings(t.app);
    EXPECT_EQ(t.files.Contents(kIni), OneLine(5, "18000"));
    settings = Settings();
    ReadSettings(t.app);
    EXPECT_EQ(settings.MainWidth, 9000);
}

// Kept for compatibility: settings-lines-exchanged.
TEST_F(SettingsFile, TheWordListsMeasuresComeBackExchanged) {
    settings.WordListWidth = 5000;
    settings.WordListHeight = 3000;
    WriteSettings(t.app);
    settings = Settings();
    ReadSettings(t.app);
    EXPECT_EQ(settings.WordListWidth, 3000);
    EXPECT_EQ(settings.WordListHeight, 5000);
}

// Kept for compatibility: settings-lines-exchanged.
TEST_F(SettingsFile, TheSymbolTablesPlaceComesBackExchanged) {
    settings.SymbolsTop = 1;
    settings.SymbolsLeft = 2;
    settings.SymbolsWidth = 3;
    settings.SymbolsHeight = 4;
    WriteSettings(t.app);
    settings = Settings();
    ReadSettings(t.app);
    EXPECT_EQ(settings.SymbolsTop, 2);
    EXPECT_EQ(settings.SymbolsLeft, 1);
    EXPECT_EQ(settings.SymbolsWidth, 4);
    EXPECT_EQ(settings.SymbolsHeight, 3);
}

TEST_F(SettingsFile, NumbersAreTheLeadingNumberOfTheLine) {
    Read(OneLine(3, "12abc"));
    EXPECT_EQ(settings.MainLeft, 12);
    Read(OneLine(3, "abc"));
    EXPECT_EQ(settings.MainLeft, 0);
    Read(OneLine(3, "-75"));
    EXPECT_EQ(settings.MainLeft, -75);
    Read(OneLine(3, " 1 2.5x"));
    EXPECT_EQ(settings.MainLeft, 12);
    Read(OneLine(3, "13.5"));
    EXPECT_EQ(settings.MainLeft, 14);
}

TEST_F(SettingsFile, AnEmptyLineIsZeroAndAnEmptyText) {
    settings.MainLeft = 77;
    settings.MenuFontSize = 9;
    settings.MenuFontName = u"Calibri";
    settings.WallpaperNumber = u"5";
    Read(Joined(std::vector<std::string>(kSettingLines)));
    EXPECT_EQ(settings.MainLeft, 0);
    EXPECT_EQ(settings.MenuFontSize, 0);
    EXPECT_EQ(settings.MenuFontName, u"");
    EXPECT_EQ(settings.WallpaperNumber, u"0");
}

TEST_F(SettingsFile, FlagsStandAsTheNumbersThatTheyAre) {
    settings.MenuFontBold = -1;
    settings.SideBarVisible = 1;
    const auto lines = WrittenLines();
    EXPECT_EQ(lines.at(8), "-1");
    EXPECT_EQ(lines.at(169), "1");
}

TEST_F(SettingsFile, EveryLineStandsUnderTheNumberAndNameOfItsField) {
    int number = 0;
    for (const SettingLine& line : SettingsTable())
        EXPECT_EQ(line.line, ++number) << ToUtf8(line.name);
    EXPECT_EQ(SettingsTable().at(42).name, u"ShowRecentAtStart");
    EXPECT_EQ(SettingsTable().at(127).name, u"ReturnPassword");
    EXPECT_EQ(SettingsTable().at(214).name, u"ImportDelimiterType");
}

TEST_F(SettingsFile, ANumberTooLargeLeavesTheFieldAsItWas) {
    settings.MenuFontSize = 9;
    settings.MainLeft = 77;
    std::vector<std::string> lines(kSettingLines);
    lines[7] = "40000";
    lines[2] = "3000000000";
    Read(Joined(lines));
    EXPECT_EQ(settings.MenuFontSize, 9);
    EXPECT_EQ(settings.MainLeft, 77);
}

// Kept for compatibility: settings-numbers-as-text.
TEST_F(SettingsFile, FilterAndPageSizeComeBackAsZero) {
    settings.FileDialogFilter = u"*.tbx";
    settings.PageSizeName = u"A4";
    settings.WallpaperNumber = u"1.5";
    EXPECT_EQ(WrittenLines().at(14), "*.tbx");
    ReadSettings(t.app);
    EXPECT_EQ(settings.FileDialogFilter, u"0");
    EXPECT_EQ(settings.PageSizeName, u"0");
    EXPECT_EQ(settings.WallpaperNumber, u"1.5");
}

TEST_F(SettingsFile, ANumberAsTextPastAllNumbersLeavesTheField) {
    settings.WallpaperNumber = u"1";
    Read(OneLine(127, std::string(400, '9')));
    EXPECT_EQ(settings.WallpaperNumber, u"1");
}

TEST_F(SettingsFile, TextStandsAsItIs) {
    Read(OneLine(214, "\t "));
    EXPECT_EQ(settings.DelimiterString, u"\t ");
    Read(OneLine(38, "C:\\\xDC\x62ung\\w.exe"));
    EXPECT_EQ(settings.WordPath, u"C:\\\u00DCbung\\w.exe");
}

TEST_F(SettingsFile, TheWordDelimitersComeBackWholeThoughTheyEndInALoneReturn) {
    settings.WordDelimiters = u"'\",.;:#/()[]{} \t\f\n\r";
    settings.AsciiTop = 34;
    WriteSettings(t.app);
    const Text delimiters = settings.WordDelimiters;
    settings = Settings();
    ReadSettings(t.app);
    EXPECT_EQ(settings.WordDelimiters, delimiters);
    EXPECT_EQ(settings.AsciiTop, 34);
}

TEST_F(SettingsFile, AValueWithALineBreakMovesAllLaterLines) {
    settings.CtrlShiftReturnString = u"a\r\nb";
    settings.AltReturnString = u"c";
    WriteSettings(t.app);
    settings = Settings();
    ReadSettings(t.app);
    EXPECT_EQ(settings.CtrlShiftReturnString, u"a");
    EXPECT_EQ(settings.AltReturnString, u"b");
    EXPECT_EQ(settings.Spare79, u"c");
}

TEST_F(SettingsFile, MissingLinesKeepTheirStartValues) {
    settings.TabUnitTwips = 720;
    Read("D\r\nD:\\Data\r\n100");
    EXPECT_EQ(settings.CurDirAtSave, u"D:\\Data");
    EXPECT_EQ(settings.MainLeft, 100);
    EXPECT_EQ(settings.TabUnitTwips, 720);
}

TEST_F(SettingsFile, LinesPastTheLastAreIgnored) {
    Read(OneLine(215, "3") + "more\r\nand more\r\n");
    EXPECT_EQ(settings.ImportDelimiterType, 3);
    EXPECT_EQ(WrittenLines().size(), kSettingLines);
}

TEST_F(SettingsFile, AMissingFileIsTold) {
    t.user.Answer(
        {u"Cannot load the following file:\r\n\r\nC:\\Korvane\\Korvane.ini\r\n\r\nCurrent dir.: C:\\",
         MessageIcon::Exclamation},
        Answer::Ok);
    ReadSettings(t.app);
}

TEST_F(SettingsFile, AFileThatCannotBeOpenedIsPassedOverInSilence) {
    t.files.AddFile(kIni, OneLine(3, "5"));
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    ReadSettings(t.app);
    EXPECT_EQ(settings.MainLeft, 0);
}

TEST_F(SettingsFile, IsForItsOwnersEyesOnlyAsItHoldsAPassword) {
    WriteSettings(t.app);
    EXPECT_TRUE(t.files.IsPrivate(kIni));
    t.files.AddFile(kIni, "old");
    EXPECT_FALSE(t.files.IsPrivate(kIni));
    WriteSettings(t.app);
    EXPECT_TRUE(t.files.IsPrivate(kIni));
}

TEST_F(SettingsFile, ThePasswordIsNotWrittenWhereOthersCouldReadIt) {
    t.app.Settings.ReturnPassword = u"secret";
    t.app.Settings.LastDbFindText = u"words";
    t.files.ForgetOwners(kIni);
    const std::string all = Joined(WrittenLines());
    EXPECT_EQ(all.find("secret"), std::string::npos);
    EXPECT_NE(all.find("words"), std::string::npos) << "the other settings are";
    EXPECT_EQ(t.app.Settings.ReturnPassword, u"secret") << "it holds as long as the program runs";
}

TEST_F(SettingsFile, AFailureThatPassesDoesNotCostThePassword) {
    t.app.Settings.ReturnPassword = u"secret";
    t.files.Faults().FailNth(FileStep::Write, 1);
    EXPECT_NE(Joined(WrittenLines()).find("secret"), std::string::npos);
}

/// Counts how often a secret is held.
struct CountingHolder final : SecretHolder {
    void Hold() override { ++times; }
    int times = 0;
};

TEST_F(SettingsFile, APasswordIsHeldAsSoonAsItIsRead) {
    CountingHolder holder;
    t.app.SetPort<SecretHolder>(&holder);
    Read(Joined(std::vector<std::string>(127, "")));
    EXPECT_EQ(holder.times, 0);
    std::vector<std::string> lines(128, "");
    lines.back() = "secret";
    Read(Joined(lines));
    EXPECT_EQ(holder.times, 1);
}

TEST_F(SettingsFile, AFileThatCannotBeWrittenIsToldAndTheOldOneStays) {
    t.files.AddFile(kIni, "old");
    t.files.Faults().FailNth(FileStep::OpenToWrite, 1, u"Disk full");
    t.user.Answer(
        {u"Cannot save this file :\r\n\r\nC:\\Korvane\\Korvane.ini\r\n\r\n"
         u"The error was probably triggered for the following reason : \r\n\r\n\"Disk full\"\r\n\r\n",
         MessageIcon::Stop},
        Answer::Ok);
    WriteSettings(t.app);
    EXPECT_EQ(t.files.Contents(kIni), "old");
}

class SettingsOfAnother : public SettingsFile {
protected:
    SettingsOfAnother() {
        t.files.AddFile(kIni, OneLine(3, "5"));
        t.files.SetForeign(kIni);
    }
};

TEST_F(SettingsOfAnother, AreNotRead) {
    t.user.Answer(Answer::Ok);
    ReadSettings(t.app);
    EXPECT_EQ(settings.MainLeft, 0);
    EXPECT_TRUE(t.user.Messages().at(0).text.starts_with(u"Cannot load the following file:"));
}

TEST_F(SettingsOfAnother, DoNotGetThePassword) {
    settings.ReturnPassword = u"secret";
    t.user.Answer(Answer::Ok);
    WriteSettings(t.app);
    EXPECT_EQ(t.files.Contents(kIni), OneLine(3, "5"));
    EXPECT_TRUE(t.user.Messages().at(0).text.starts_with(u"Cannot save this file :"));
}

TEST_F(SettingsFile, TheCurrentDirectoryIsTakenAtTheMomentOfSaving) {
    t.files.AddDrive(u'D');
    t.files.AddDir(u"D:\\Data");
    t.files.ChangeDir(u"D:\\Data");
    const auto lines = WrittenLines();
    EXPECT_EQ(lines.at(0), "D");
    EXPECT_EQ(lines.at(1), "D:\\Data");
}

TEST(SettingsFileOnPosix, TheDriveIsTheRoot) {
    TestApp t(PathStyle::Posix);
    t.app.Exchange<StateFiles>().IniFilePath = u"/opt/korvane/Korvane.ini";
    t.files.AddDir(u"/opt/korvane");
    t.files.AddDir(u"/home/me");
    t.files.ChangeDir(u"/home/me");
    WriteSettings(t.app);
    EXPECT_TRUE(
        t.files.Contents(t.app.Exchange<StateFiles>().IniFilePath)->starts_with("/\r\n/home/me\r\n0\r\n"));
}

} // namespace
} // namespace korvane
