#include "shell/main/StartUp.h"

#include "context/exchange/StartState.h"
#include "context/exchange/StateFiles.h"
#include "context/exchange/SystemDirs.h"
#include "context/exchange/WordEnds.h"
#include "shell/recent/frmFileList.h"
#include "shell/tabs/frmLoadList.h"
#include "support/TestProgram.h"
#include "testing/MemorySystemFolders.h"

#include <gtest/gtest.h>

#include <optional>
#include <type_traits>

namespace korvane {
namespace {

const Text kFile = u"C:\\My data\\a b.tbx";

class StartUpTest : public testing::Test {
protected:
    StartUpTest() { p.AddTable(kFile, {"x"}); }
    Rect Place() {
        frmMDIParent& main = p.Main();
        return {main.Left, main.Top, main.Width, main.Height};
    }

    TestProgram p;
};

TEST_F(StartUpTest, AFirstRunTellsOnceThatThereAreNoSettingsAndStandsAtTheDefaultPlace) {
    p.screen.SetWorkArea({Twips{100}, Twips{200}, Twips{28800}, Twips{15600}});
    p.user.Answer(
        {u"Cannot load the following file:\r\n\r\nC:\\Korvane\\Korvane.ini\r\n\r\nCurrent dir.: C:\\",
         MessageIcon::Exclamation},
        Answer::Ok);
    p.Start();
    EXPECT_EQ(Place(), (Rect{Twips{400}, Twips{500}, Twips{4800}, Twips{3200}}));
    EXPECT_TRUE(p.Main().Shown());
    EXPECT_EQ(p.app.Settings.TabUnitTwips, 720);
}

TEST_F(StartUpTest, TheWindowComesBackWhereItWas) {
    Settings settings;
    settings.MainLeft = 1500;
    settings.MainTop = 1200;
    settings.MainWidth = 12000;
    settings.MainHeight = 9000;
    settings.TabStyle = 13;
    settings.MenuFontName = u"Verdana";
    settings.MenuFontSize = 10;
    settings.MenuFontBold = -1;
    p.StartWith(settings);
    EXPECT_EQ(Place(), (Rect{Twips{1500}, Twips{1200}, Twips{12000}, Twips{9000}}));
    EXPECT_EQ(p.Main().MDITabs1.Style, 13);
    EXPECT_EQ(p.Main().OfficeMenu1.Font.Get(), (FontSpec{u"Verdana", 10, true}));
    EXPECT_TRUE(p.Main().MDITabs1.On);
}

TEST_F(StartUpTest, AMenuFontThatIsNotSetLeavesTheSystemsOwn) {
    p.StartWith({});
    EXPECT_EQ(p.Main().OfficeMenu1.Font.Get(), FontSpec{});
}

TEST_F(StartUpTest, TheFilesOfTheProgramAreNamed) {
    p.StartWith({});
    EXPECT_EQ(p.app.Exchange<StateFiles>().HelpFilePath, u"C:\\Korvane\\Korvane_Help.rtf");
    EXPECT_EQ(p.app.Exchange<StateFiles>().IniFilePath, u"C:\\Korvane\\Korvane.ini");
    EXPECT_EQ(p.app.Exchange<StateFiles>().RecFilePath, u"C:\\Korvane\\Korvane.rec");
}

TEST_F(StartUpTest, WhereTheProgramsFolderIsNotTheUsersTheStateIsElsewhereAndTheHelpBesideTheProgram) {
    TestProgram posix(PathStyle::Posix);
    posix.files.SetStateDir(u"/home/me/.config/korvane");
    posix.files.AddFile(u"/home/me/.config/korvane/Korvane.ini", SettingsBytes({}));
    posix.Start();
    EXPECT_EQ(posix.app.Exchange<StateFiles>().HelpFilePath, u"/opt/korvane/Korvane_Help.rtf");
    EXPECT_EQ(posix.app.Exchange<StateFiles>().IniFilePath, u"/home/me/.config/korvane/Korvane.ini");
    EXPECT_EQ(posix.app.Exchange<StateFiles>().RecFilePath, u"/home/me/.config/korvane/Korvane.rec");
}

TEST_F(StartUpTest, TheSystemsFoldersEndInABackslash) {
    p.folders.programFiles = Text(u"C:\\Program Files\0rest", 21);
    p.folders.windows = u"C:\\Windows";
    p.folders.documents = u"C:\\Users\\me\\Documents\\";
    p.StartWith({});
    EXPECT_EQ(p.app.Exchange<SystemDirs>().ProgramFilesDir, u"C:\\Program Files\\");
    EXPECT_EQ(p.app.Exchange<SystemDirs>().WindowsDir, u"C:\\Windows\\");
    EXPECT_EQ(p.app.Exchange<SystemDirs>().DocumentsDir, u"C:\\Users\\me\\Documents\\");
    EXPECT_EQ(p.app.Exchange<SystemDirs>().FontsDir, u"");
}

TEST_F(StartUpTest, WithoutTheRegistrysEntryDriveCStandsForTheFolderOfPrograms) {
    p.StartWith({});
    EXPECT_EQ(p.app.Exchange<SystemDirs>().ProgramFilesDir, u"C:\\");
    TestProgram posix(PathStyle::Posix);
    posix.StartWith({});
    EXPECT_EQ(posix.app.Exchange<SystemDirs>().ProgramFilesDir, u"");
}

TEST_F(StartUpTest, TheRecordIsRead) {
    p.files.AddFile(u"C:\\Korvane\\Korvane.rec", "one\r\ntwo\r\n");
    p.StartWith({});
    EXPECT_EQ(p.Main().Parts().recents.RecentEntries[2], u"two");
    EXPECT_EQ(p.Main().Parts().recents.RecentNext, 3);
}

TEST_F(StartUpTest, TheCommandLineIsOnePathBlanksAndAll) {
    p.StartWith({}, kFile);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a b.tbx"});
}

TEST_F(StartUpTest, OnePairOfQuotesAroundTheCommandLineGoes) {
    p.StartWith({}, u"\"" + kFile + u"\"");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a b.tbx"});
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, kFile);
    EXPECT_EQ(p.AllTabs().TabState[1].Path, kFile);
}

TEST_F(StartUpTest, ALoneQuoteIsPartOfThePath) {
    p.StartWith({}, u"\"");
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(StartUpTest, AFileThatIsntThereOpensNothingAndSaysNothing) {
    p.StartWith({}, u"C:\\missing.tbx");
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(StartUpTest, TheBuiltInDelimitersMakeTheTableAndTheFileReplacesThemAfterwards) {
    Settings settings;
    settings.WordDelimiters = u"+";
    p.StartWith(settings);
    EXPECT_EQ(p.app.Settings.WordDelimiters, u"+");
    std::string marked;
    for (std::size_t code = 0; code <= 256; ++code) {
        if (p.app.Exchange<WordEnds>().DelimiterTable[code]) marked += static_cast<char>(code);
    }
    EXPECT_EQ(marked, "\t\n\f\r \"#'(),./:;[]{}");
}

TEST_F(StartUpTest, AFirstRunHasTheBuiltInDelimiters) {
    p.user.Answer(Answer::Ok);
    p.Start();
    EXPECT_EQ(p.app.Settings.WordDelimiters, u"'\",.;:#/()[]{} \t\f\n\r");
}

TEST_F(StartUpTest, ASecondStartsSlotIsTheFirstTextBoxOfTheFirstPanel) {
    p.StartWith({});
    const auto first = [this]<class Kind>(std::type_identity<Kind>) {
        for (Control* control : p.Main().Controls())
            if (auto* found = dynamic_cast<Kind*>(control)) return found;
        return static_cast<Kind*>(nullptr);
    };
    EXPECT_EQ(first(std::type_identity<Panel>()), &p.Main().picToolbar);
    EXPECT_EQ(first(std::type_identity<TextBox>()), &p.Main().txtCommand);
}

TEST_F(StartUpTest, TheFirstActivationEndsTheFirstLoad) {
    p.AddSettings();
    frmMDIParent main(p.app, {});
    main.EnsureLoaded();
    EXPECT_EQ(p.app.Exchange<StartState>().FirstLoadPending, -1);
    main.Activate();
    EXPECT_EQ(p.app.Exchange<StartState>().FirstLoadPending, 0);
}

TEST_F(StartUpTest, EveryActivationEndsTheFirstLoad) {
    p.StartWith({});
    p.app.Exchange<StartState>().FirstLoadPending = -1;
    p.Main().Activate();
    EXPECT_EQ(p.app.Exchange<StartState>().FirstLoadPending, 0);
}

TEST_F(StartUpTest, TwoQuotesWithNothingBetweenThemAreNoFile) {
    p.StartWith({}, u"\"\"");
    EXPECT_TRUE(p.Captions().empty());
}

/// A start in which the settings ask for the recent files.
class RecentAtStart : public StartUpTest {
protected:
    void LoadMain(std::int16_t showRecentAtStart, const Text& commandLine = {}) {
        Settings settings;
        settings.ShowRecentAtStart = showRecentAtStart;
        p.AddSettings(settings);
        p.files.AddFile(u"C:\\Korvane\\Korvane.rec", "C:\\My data\\a b.tbx | 0*2026.03.01   14:05\r\n");
        main.emplace(p.app, commandLine);
        main->EnsureLoaded();
    }

    std::optional<frmMDIParent> main;
};

TEST_F(RecentAtStart, TheListComesUpAtTheFirstActivationOnly) {
    LoadMain(1);
    p.user.On<frmFileList>([](frmFileList& list) { list.cmdCancel.Press(); });
    main->Activate();
    EXPECT_TRUE(main->MDITabs1.Children().empty());
    main->Activate();
}

TEST_F(RecentAtStart, AFileOfTheListOpens) {
    LoadMain(1);
    p.user.On<frmFileList>([](frmFileList& list) { list.cmdLoad.Press(); });
    main->Activate();
    ASSERT_EQ(main->MDITabs1.Children().size(), 1u);
    EXPECT_EQ(main->MDITabs1.Children()[0]->Caption.Get(), u"a b.tbx");
}

TEST_F(RecentAtStart, ACommandLineKeepsItAwayEvenOneThatNamesNoFile) {
    LoadMain(1, u"C:\\missing.tbx");
    main->Activate();
    EXPECT_TRUE(main->MDITabs1.Children().empty());
}

TEST_F(RecentAtStart, OnlyAOneAsksForIt) {
    for (const std::int16_t value : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{2}}) {
        LoadMain(value);
        main->Activate();
    }
    EXPECT_TRUE(main->MDITabs1.Children().empty());
}

TEST_F(StartUpTest, AFileThatArrivesIsLoadedIntoANewTabAndTheSlotIsEmptyAgain) {
    p.StartWith({});
    EXPECT_EQ(p.app.Exchange<StartState>().LoadedByCommand, 0);
    p.Main().txtCommand.Text = u"  " + kFile + u" ";
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a b.tbx"});
    EXPECT_EQ(p.app.Exchange<StartState>().LoadedByCommand, -1);
    EXPECT_EQ(p.Main().txtCommand.Text.Get(), u"");
}

TEST_F(StartUpTest, AFileThatArrivesAndIsntThereOnlyEmptiesTheSlot) {
    p.StartWith({});
    p.Main().txtCommand.Text = Text(u"C:\\missing.tbx");
    p.Main().txtCommand.Text = Text(u"   ");
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_EQ(p.app.Exchange<StartState>().LoadedByCommand, 0);
    EXPECT_EQ(p.Main().txtCommand.Text.Get(), u"");
}

TEST_F(StartUpTest, AFileThatArrivesTwiceIsToldAsLoaded) {
    p.StartWith({}, kFile);
    p.user.Answer(Answer::Ok);
    p.user.On<frmLoadList>([](frmLoadList& list) { list.cmdExit.Press(); });
    p.Main().txtCommand.Text = kFile;
    EXPECT_EQ(p.Captions().size(), 1u);
    EXPECT_EQ(p.app.Exchange<StartState>().LoadedByCommand, -1);
}

TEST_F(StartUpTest, OnPosixTheProgramFolderIsAPosixPath) {
    TestProgram posix(PathStyle::Posix);
    posix.AddTable(u"/home/me/a b.tbx", {"x"});
    posix.StartWith({}, u"/home/me/a b.tbx");
    EXPECT_EQ(posix.app.Exchange<StateFiles>().IniFilePath, u"/opt/korvane/Korvane.ini");
    EXPECT_EQ(posix.Captions(), std::vector<Text>{u"a b.tbx"});
}

} // namespace
} // namespace korvane
