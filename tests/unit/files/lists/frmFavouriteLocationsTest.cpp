#include "files/lists/frmFavouriteLocations.h"

#include "context/exchange/ListerRequest.h"
#include "files/lists/FolderEntries.h"
#include "support/DesignerFile.h"
#include "support/FakeSystemFileDialog.h"
#include "support/MenuEntries.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <functional>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kList = u"C:\\Korvane\\FavouriteLocations.lst";

class FavouriteLocationsTest : public testing::Test {
protected:
    FavouriteLocationsTest() {
        t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{16000}});
        t.files.AddDir(u"C:\\Korvane");
        t.files.AddDir(u"C:\\Data\\Sub");
        t.app.Settings.FavGeoTree = -1;
    }

    /// Opens the window over a list of these bytes and lets `act` be done in it; what leaves it open is
    /// closed.
    void InWindow(std::string_view bytes, const std::function<void(frmFavouriteLocations&)>& act) {
        t.files.AddFile(kList, bytes);
        Open(act);
    }
    void Open(const std::function<void(frmFavouriteLocations&)>& act) {
        t.user.On<frmFavouriteLocations>([&act](frmFavouriteLocations& f) {
            act(f);
            if (f.Shown()) f.cmdExit.Press();
        });
        frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
    }
    static bool Press(frmFavouriteLocations& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.List1.KeyDown(key);
        return key.consumed;
    }
    std::string Written() const { return t.files.Contents(kList).value_or("(no such file)"); }

    TestApp t;
    Form owner{t.app.Forms(), "frmMain", u""};
    FakeSystemFileDialog dialog{t.app};
};

// ---- The list's file -----------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, ShowsTheEntriesOfTheListBesideTheProgram) {
    InWindow("C:\\Data\r\n\r\nC:\\Else\r\n", [](frmFavouriteLocations& f) {
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\Data", u"", u"C:\\Else"));
        EXPECT_EQ(f.List1.ListIndex(), 0);
        EXPECT_EQ(f.Focused(), &f.List1);
    });
    EXPECT_EQ(Written(), "C:\\Data\r\n\r\nC:\\Else\r\n");
}

TEST_F(FavouriteLocationsTest, TheSettingNamesAnotherList) {
    t.files.AddFile(kList, "C:\\Data\r\n");
    t.files.AddFile(u"C:\\Data\\my.lst", "C:\\Mine\r\n");
    t.app.Settings.FavCurrentFile = u"C:\\Data\\my.lst";
    Open([](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.List(0), u"C:\\Mine"); });
}

TEST_F(FavouriteLocationsTest, AListThatIsGoneGivesWayToTheOneBesideTheProgram) {
    t.app.Settings.FavCurrentFile = u"C:\\Gone\\my.lst";
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.ListCount(), 1); });
    EXPECT_EQ(t.app.Settings.FavCurrentFile, u"C:\\Gone\\my.lst");
}

TEST_F(FavouriteLocationsTest, AListThatGoesMeanwhileIsNotWrittenOverTheOneBesideTheProgram) {
    t.files.AddFile(u"C:\\Data\\my.lst", "C:\\Mine\r\n");
    t.app.Settings.FavCurrentFile = u"C:\\Data\\my.lst";
    InWindow("C:\\a\r\n", [this](frmFavouriteLocations&) { t.files.Erase(u"C:\\Data\\my.lst"); });
    EXPECT_EQ(Written(), "C:\\a\r\n");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\my.lst"), "C:\\Mine\r\n");
}

TEST_F(FavouriteLocationsTest, WhereTheProgramFolderCannotBeWrittenTheListIsWithTheState) {
    t.files.SetStateDir(u"C:\\State");
    t.files.AddFile(u"C:\\State\\FavouriteLocations.lst", "C:\\Mine\r\n");
    Open([](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.List(0), u"C:\\Mine"); });
}

TEST_F(FavouriteLocationsTest, AnAbsentListIsEmptyAndNothingIsWritten) {
    Open([](frmFavouriteLocations& f) {
        EXPECT_EQ(f.List1.ListCount(), 0);
        EXPECT_EQ(f.Caption.Get(), u"Favourite locations; items in list: 0");
    });
    EXPECT_EQ(Written(), "(no such file)");
}

TEST_F(FavouriteLocationsTest, AnEntryInAnAbsentListMakesTheFile) {
    Open([](frmFavouriteLocations& f) { f.cmdAddFolder.Press(); });
    EXPECT_EQ(Written(), "C:\\Data\r\n");
}

TEST_F(FavouriteLocationsTest, CommentsVanishAtTheClosing) {
    InWindow(";mine\r\nC:\\Data\r\n ;no comment\r\n",
             [](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.ListCount(), 2); });
    EXPECT_EQ(Written(), "C:\\Data\r\n ;no comment\r\n");
}

TEST_F(FavouriteLocationsTest, AnEmptiedListIsWritten) {
    InWindow("\x97\r\n", [](frmFavouriteLocations& f) { EXPECT_TRUE(Press(f, Key::Delete)); });
    EXPECT_EQ(Written(), "");
}

TEST_F(FavouriteLocationsTest, AFailureToWriteIsReported) {
    t.files.AddFile(kList, "C:\\Data\r\n");
    t.files.SetFileReadOnly(kList);
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) { f.cmdExit.Press(); });
    t.user.Answer({u"Cannot save this file :\r\n\r\n" + kList +
                       u"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n"
                       u"\"Permission denied\"\r\n\r\n",
                   MessageIcon::Stop},
                  Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

TEST_F(FavouriteLocationsTest, AListThatCannotBeReadIsReportedAndLeftAlone) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.user.Answer({u"Cannot load the following file:\r\n\r\n" + kList + u"\r\n\r\nCurrent dir.: C:\\",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    Open([](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.ListCount(), 0); });
    EXPECT_EQ(Written(), bytes);
}

TEST_F(FavouriteLocationsTest, AListThatCannotBeReadIsNotReplacedByWhatIsAddedToIt) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.user.Answer(Answer::Ok);
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.List1.AddItem(u"C:\\Data");
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
    EXPECT_TRUE(t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + kList));
    EXPECT_EQ(Written(), bytes);
}

TEST_F(FavouriteLocationsTest, TheTitleCountsWhatIsNoSeparator) {
    InWindow("C:\\a\r\n\r\n---\r\n   -x\r\n   \r\n  C:\\b\r\n\x97\x97\r\n", [](frmFavouriteLocations& f) {
        EXPECT_EQ(f.Caption.Get(), u"Favourite locations; items in list: 3");
    });
}

// ---- Going to a folder ---------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, GoesToTheFolder) {
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) {
        EXPECT_TRUE(Press(f, Key::Return));
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"C:\\Data");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\Data");
}

TEST_F(FavouriteLocationsTest, AButtonTheMenuAndADoubleClickGoThereToo) {
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) { f.cmdGotoFolder.Press(); });
    EXPECT_EQ(t.app.DialogResult, 1);
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) { f.OfficeMenu1.Choose("mnuGotoFolder"); });
    EXPECT_EQ(t.app.DialogResult, 1);
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) { f.List1.DoubleClick(0); });
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(FavouriteLocationsTest, AFolderThatIsMirroredIsReturnedInItsOtherForm) {
    t.files.AddDir(u"C:\\Drive_G\\Work");
    InWindow("G:\\Work\r\n", [](frmFavouriteLocations& f) { f.cmdGotoFolder.Press(); });
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"C:\\Drive_G\\Work");
    t.files.AddDrive(u'H');
    t.files.AddDir(u"H:\\Work");
    InWindow("C:\\Drive_H\\Work\r\n", [](frmFavouriteLocations& f) { f.cmdGotoFolder.Press(); });
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"H:\\Work");
}

TEST_F(FavouriteLocationsTest, AFolderThatIsNowhereIsReportedAndTheWindowStays) {
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.cmdGotoFolder.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdExit.Press();
    });
    t.user.Answer({u"Cannot locate this directory:\r\n\r\nnowhere", MessageIcon::Stop}, Answer::Ok);
    t.files.AddFile(kList, "nowhere\r\n");
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"");
}

TEST_F(FavouriteLocationsTest, AFolderInNeitherFormIsToldInTheFormTriedLast) {
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.cmdGotoFolder.Press();
        f.cmdExit.Press();
    });
    t.user.Answer({u"Cannot locate this directory:\r\n\r\nC:\\Drive_G\\Work", MessageIcon::Stop}, Answer::Ok);
    t.files.AddFile(kList, "G:\\Work\r\n");
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

TEST_F(FavouriteLocationsTest, BlankEntriesLeadNowhere) {
    InWindow("\r\n   \r\n", [](frmFavouriteLocations& f) {
        f.cmdGotoFolder.Press();
        f.List1.Select(1);
        f.cmdGotoFolder.Press();
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 0);
}

// ---- Changes -------------------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, AddsTheCurrentFolderAtTheCurrentPlace) {
    InWindow("C:\\a\r\nC:\\b\r\n", [](frmFavouriteLocations& f) {
        f.List1.Select(1);
        EXPECT_TRUE(Press(f, Key::Insert));
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a", u"C:\\Data", u"C:\\b"));
        EXPECT_EQ(f.List1.ListIndex(), 1);
        EXPECT_EQ(f.Caption.Get(), u"Favourite locations; items in list: 3");
    });
}

TEST_F(FavouriteLocationsTest, TheSameFolderIsNotAddedTwice) {
    t.files.AddFile(kList, "C:\\Data\r\n");
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.OfficeMenu1.Choose("mnuAddFolder");
        EXPECT_EQ(f.List1.ListCount(), 1);
        f.cmdExit.Press();
    });
    t.user.Answer({u"This folder is already in the list: \r\n\r\nC:\\Data", MessageIcon::Information},
                  Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

TEST_F(FavouriteLocationsTest, RemovesAFolderAfterAQuestion) {
    const Message question{u"Remove this folder from list?\r\n\r\nC:\\b", MessageIcon::Question,
                           MessageButtons::YesNo};
    t.files.AddFile(kList, "C:\\a\r\nC:\\b\r\nC:\\c\r\n");
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.List1.Select(1);
        f.cmdRemoveFolder.Press();
        EXPECT_EQ(f.List1.ListCount(), 3);
        EXPECT_TRUE(Press(f, Key::Delete));
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a", u"C:\\c"));
        EXPECT_EQ(f.List1.ListIndex(), 1);
        EXPECT_EQ(f.Caption.Get(), u"Favourite locations; items in list: 2");
        f.cmdExit.Press();
    });
    t.user.Answer(question, Answer::No);
    t.user.Answer(question, Answer::Yes);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

// Kept for compatibility: drawn-separator-unasked.
TEST_F(FavouriteLocationsTest, ADrawnSeparatorGoesWithoutAQuestion) {
    InWindow("C:\\a\r\n\x97\x97\r\n", [](frmFavouriteLocations& f) {
        f.List1.Select(1);
        f.cmdRemoveFolder.Press();
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a"));
        EXPECT_EQ(f.List1.ListIndex(), 0);
    });
}

TEST_F(FavouriteLocationsTest, InAnEmptyListNothingIsRemoved) {
    InWindow("", [](frmFavouriteLocations& f) { f.cmdRemoveFolder.Press(); });
}

TEST_F(FavouriteLocationsTest, ANewEntryIsEmptyAndBelowTheCurrentOne) {
    InWindow("C:\\a\r\nC:\\b\r\n", [](frmFavouriteLocations& f) {
        f.cmdSeparator.Press();
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a", u"", u"C:\\b"));
        EXPECT_EQ(f.List1.ListIndex(), 1);
        EXPECT_EQ(f.Caption.Get(), u"Favourite locations; items in list: 2");
    });
    EXPECT_EQ(Written(), "C:\\a\r\n\r\nC:\\b\r\n");
    InWindow("", [](frmFavouriteLocations& f) {
        f.OfficeMenu1.Choose("mnuNewEntry");
        EXPECT_EQ(f.List1.ListCount(), 1);
    });
    EXPECT_EQ(Written(), "\r\n");
}

TEST_F(FavouriteLocationsTest, MovesTheEntry) {
    InWindow("C:\\a\r\nC:\\b\r\n", [](frmFavouriteLocations& f) {
        EXPECT_TRUE(Press(f, 'D', Mask::Ctrl));
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\b", u"C:\\a"));
        EXPECT_TRUE(Press(f, 'U', Mask::Ctrl));
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a", u"C:\\b"));
        f.Image1.Press();
        EXPECT_EQ(f.List1.ListIndex(), 1);
        f.Image2.Press();
        EXPECT_EQ(f.List1.ListIndex(), 0);
    });
}

// Kept for compatibility: favourites-tips-other-keys.
TEST_F(FavouriteLocationsTest, TheKeysThatTheTipsNameDoNothing) {
    InWindow("C:\\a\r\nC:\\b\r\n", [](frmFavouriteLocations& f) {
        EXPECT_FALSE(Press(f, Key::Down, Mask::Ctrl));
        EXPECT_FALSE(Press(f, Key::Up, Mask::Ctrl));
        EXPECT_EQ(f.List1.List(0), u"C:\\a");
    });
}

// ---- Find ----------------------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, FindsFromTheNextEntryOnWhateverTheCase) {
    t.files.AddFile(kList, "C:\\abc\r\nC:\\x\r\nC:\\xABCx\r\n");
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.txtFindThisString.Type(u"aBc");
        f.cmdFind.Press();
        EXPECT_EQ(f.List1.ListIndex(), 2);
        f.OfficeMenu1.Choose("mnuFindString");
        EXPECT_EQ(f.List1.ListIndex(), 2);
        f.cmdExit.Press();
    });
    t.user.Answer({u"No (further) find for:\r\n\r\naBc", MessageIcon::Information}, Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

TEST_F(FavouriteLocationsTest, ReturnInTheFieldRunsTheSearch) {
    InWindow("C:\\a\r\nC:\\b\r\n", [](frmFavouriteLocations& f) {
        f.txtFindThisString.Type(u"b");
        KeyEvent key{Key::Return};
        f.txtFindThisString.KeyDown(key);
        EXPECT_TRUE(key.consumed);
        EXPECT_EQ(f.List1.ListIndex(), 1);
        EXPECT_TRUE(f.Shown());
    });
}

// ---- Other commands ------------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, LoadsAnotherList) {
    t.files.AddFile(u"C:\\Data\\my.lst", "C:\\Mine\r\n");
    dialog.answer = u"C:\\Data\\my.lst";
    InWindow("C:\\a\r\n", [](frmFavouriteLocations& f) {
        f.cmdLoadFile.Press();
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\Mine"));
        f.cmdSeparator.Press();
    });
    EXPECT_THAT(dialog.requests, ElementsAre(SystemFileDialog::Request{
                                     SystemFileDialog::Purpose::Open, u"List files (*.lst)|*.lst",
                                     u"Get list of favourite locations", u"", u"lst"}));
    EXPECT_EQ(t.app.Settings.FavCurrentFile, u"C:\\Data\\my.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\my.lst"), "C:\\Mine\r\n\r\n");
    EXPECT_EQ(Written(), "C:\\a\r\n");
}

TEST_F(FavouriteLocationsTest, AFileThatIsNoListIsNotLoaded) {
    t.files.AddFile(u"C:\\Data\\my.lst", std::string("\0\0", 2));
    t.files.AddFile(kList, "C:\\a\r\n");
    dialog.answer = u"C:\\Data\\my.lst";
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.OfficeMenu1.Choose("mnuLoadList");
        EXPECT_THAT(EntriesOf(f.List1), ElementsAre(u"C:\\a"));
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
    EXPECT_EQ(t.app.Settings.FavCurrentFile, u"");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\my.lst"), std::string("\0\0", 2));
}

TEST_F(FavouriteLocationsTest, SavesTheListUnderAnotherName) {
    dialog.answer = u"C:\\Data\\my.lst";
    InWindow("C:\\a\r\n", [this](frmFavouriteLocations& f) {
        f.cmdSaveList.Press();
        EXPECT_EQ(t.files.Contents(u"C:\\Data\\my.lst"), "C:\\a\r\n");
        f.cmdSeparator.Press();
    });
    EXPECT_THAT(dialog.requests, ElementsAre(SystemFileDialog::Request{
                                     SystemFileDialog::Purpose::Save, u"List files (*.lst)|*.lst",
                                     u"Save list of favourite locations", u"", u"lst"}));
    EXPECT_EQ(t.app.Settings.FavCurrentFile, u"C:\\Data\\my.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\my.lst"), "C:\\a\r\n\r\n");
    EXPECT_EQ(Written(), "C:\\a\r\n");
}

TEST_F(FavouriteLocationsTest, ACancelledDialogChangesNothing) {
    InWindow("C:\\a\r\n", [](frmFavouriteLocations& f) {
        f.cmdLoadFile.Press();
        f.OfficeMenu1.Choose("mnuSaveList");
        EXPECT_EQ(f.List1.ListCount(), 1);
    });
    EXPECT_EQ(t.app.Settings.FavCurrentFile, u"");
}

TEST_F(FavouriteLocationsTest, TellsTheFactsOfTheList) {
    t.files.AddFile(kList, std::string(1234, 'x'));
    t.files.SetModified(kList, {2026, 3, 1, 14, 5, 0});
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.cmdInfo.Press();
        f.cmdExit.Press();
    });
    t.user.Answer({u"File  " + kList + u"\r\nArchived  " +
                       t.app.Locale().GeneralDate({2026, 3, 1, 14, 5, 0}) + u"\r\nSize  1,234",
                   MessageIcon::Information},
                  Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"C:\\Data").ShowModal();
}

TEST_F(FavouriteLocationsTest, ExploresTheFolder) {
    InWindow("C:\\Data\r\n", [](frmFavouriteLocations& f) {
        f.cmdExplorer.Press();
        f.OfficeMenu1.Choose("mnuExplorer");
    });
    const OpenRequest expected{u"explore", u"C:\\Data", u"", u"C:\\Data"};
    EXPECT_THAT(t.shell.Opened(), ElementsAre(expected, expected));
}

TEST_F(FavouriteLocationsTest, EscapeAndTheMenuClose) {
    InWindow("", [](frmFavouriteLocations& f) {
        EXPECT_TRUE(Press(f, Key::Escape));
        EXPECT_FALSE(f.Shown());
    });
    InWindow("", [](frmFavouriteLocations& f) {
        f.OfficeMenu1.Choose("mnuClose");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(FavouriteLocationsTest, DocksBesideTheMainWindow) {
    owner.Left = Twips{10000};
    owner.Width = Twips{12000};
    owner.Height = Twips{9000};
    InWindow("", [](frmFavouriteLocations& f) {
        EXPECT_TRUE(Press(f, 'L', Mask::Ctrl));
        EXPECT_EQ(f.Left.Get(), Twips{0});
        EXPECT_EQ(f.Width.Get(), Twips{10000});
        EXPECT_TRUE(Press(f, 'R', Mask::Ctrl | Mask::Alt));
        EXPECT_EQ(f.Left.Get(), Twips{22000});
        EXPECT_TRUE(Press(f, 'R', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Height.Get(), Twips{9000});
    });
}

TEST_F(FavouriteLocationsTest, AKeyGivesItMostOfTheMainWindowsSize) {
    owner.Left = Twips{1000};
    owner.Top = Twips{500};
    owner.Width = Twips{20000};
    owner.Height = Twips{10000};
    InWindow("", [](frmFavouriteLocations& f) {
        EXPECT_TRUE(Press(f, Key::F(2), Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Left.Get(), Twips{2000});
        EXPECT_EQ(f.Top.Get(), Twips{1000});
        EXPECT_EQ(f.Width.Get(), Twips{18000});
        EXPECT_EQ(f.Height.Get(), Twips{9000});
    });
}

TEST_F(FavouriteLocationsTest, KeepsItsPlace) {
    Settings& settings = t.app.Settings;
    settings.FavLeft = 1500;
    settings.FavTop = 1600;
    settings.FavWidth = 7000;
    settings.FavHeight = 8000;
    InWindow("", [](frmFavouriteLocations& f) {
        EXPECT_EQ(f.Left.Get(), Twips{1500});
        EXPECT_EQ(f.Top.Get(), Twips{1600});
        EXPECT_EQ(f.Width.Get(), Twips{7000});
        EXPECT_EQ(f.Height.Get(), Twips{8000});
        f.Left = Twips{1700};
        f.Height = Twips{8100};
    });
    EXPECT_EQ(settings.FavLeft, 1700);
    EXPECT_EQ(settings.FavTop, 1600);
    EXPECT_EQ(settings.FavWidth, 7000);
    EXPECT_EQ(settings.FavHeight, 8100);
}

TEST_F(FavouriteLocationsTest, HasTheColourOfTheListWindows) {
    t.app.Settings.FavGeoTree = 0xC0FFFF;
    InWindow("", [](frmFavouriteLocations& f) {
        EXPECT_EQ(f.List1.BackColor.Get(), Colour{0xC0FFFF});
        EXPECT_EQ(f.txtFindThisString.BackColor.Get(), Colour{0xC0FFFF});
    });
    t.app.Settings.FavGeoTree = -2;
    InWindow("", [](frmFavouriteLocations& f) { EXPECT_EQ(f.List1.BackColor.Get(), kNoColour); });
}

// ---- Texts ---------------------------------------------------------------------------------------------

TEST_F(FavouriteLocationsTest, TheMenuInItsOrder) {
    frmFavouriteLocations f(t.app, owner, u"");
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuClose", u"&Close"},
                                                 {"mnuExplorer", u"E&xplorer"},
                                                 {"mnuLoadList", u"&Load list"},
                                                 {"mnuSaveList", u"&Save list"},
                                                 {"mnuInfo", u"&Info"},
                                                 {"mnuRemoveFolder", u"&Remove folder"},
                                                 {"mnuNewEntry", u"&New entry"},
                                                 {"mnuAddFolder", u"&Add current folder"},
                                                 {"mnuFindString", u"&Find string"},
                                                 {"mnuGotoFolder", u"&Goto folder"}}));
}

TEST_F(FavouriteLocationsTest, TheTips) {
    frmFavouriteLocations f(t.app, owner, u"");
    EXPECT_EQ(f.cmdFind.ToolTipText.Get(), u"Find string in list");
    EXPECT_EQ(f.cmdInfo.ToolTipText.Get(), u"Information on current list file");
    EXPECT_EQ(f.cmdSaveList.ToolTipText.Get(), u"Save list to disk");
    EXPECT_EQ(f.cmdLoadFile.ToolTipText.Get(), u"Load list from disk");
    EXPECT_EQ(f.cmdGotoFolder.ToolTipText.Get(), u"Goto currently highlighted folder in list");
    EXPECT_EQ(f.cmdAddFolder.ToolTipText.Get(), u"Add current folder to list");
    EXPECT_EQ(f.cmdRemoveFolder.ToolTipText.Get(), u"Remove folder from list");
    EXPECT_EQ(f.cmdExplorer.ToolTipText.Get(), u"Windows Explorer");
    EXPECT_EQ(f.cmdExit.ToolTipText.Get(), u"Close this window");
    EXPECT_EQ(f.cmdSeparator.ToolTipText.Get(), u"New entry");
    EXPECT_EQ(f.Image1.ToolTipText.Get(), u"Move item down one in list (keystroke: Ctrl-Down)");
    EXPECT_EQ(f.Image2.ToolTipText.Get(), u"Move item up one in list (keystroke: Ctrl-Up)");
}

TEST_F(FavouriteLocationsTest, EveryControlStandsInTheLook) {
    ExpectLook(frmFavouriteLocations(t.app, owner, u""), "files/lists", {});
}

TEST(FavouriteLocationsOnPosix, GoesToAFolder) {
    TestApp t(PathStyle::Posix);
    Form owner(t.app.Forms(), "frmMain", u"");
    t.files.AddDir(u"/home/me/Work");
    t.files.AddFile(u"/opt/korvane/FavouriteLocations.lst", "/home/me/Work\r\n/mnt/Drive_x\r\n");
    t.user.On<frmFavouriteLocations>([](frmFavouriteLocations& f) {
        f.List1.Select(1);
        f.cmdGotoFolder.Press();
        f.List1.Select(0);
        f.cmdGotoFolder.Press();
    });
    t.user.Answer({u"Cannot locate this directory:\r\n\r\n/mnt/Drive_x", MessageIcon::Stop}, Answer::Ok);
    frmFavouriteLocations(t.app, owner, u"/").ShowModal();
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"/home/me/Work");
}

} // namespace
} // namespace korvane
