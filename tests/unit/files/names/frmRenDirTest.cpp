#include "files/names/frmRenDir.h"

#include "support/DesignerFile.h"
#include "unit/files/names/NamesFixture.h"

namespace korvane {
namespace {

struct RenDirTest : NameWindowTest<frmRenDir> {
    RenDirTest() {
        t.files.AddFile(u"C:\\Data\\Old\\a.txt", "a");
        lister.ListerFolder = u"C:\\Data\\Old";
    }
};

TEST_F(RenDirTest, HasItsTextsAndTheOldName) {
    Show([](frmRenDir& f) {
        EXPECT_EQ(f.Caption.Get(), u"Enter new name for directory");
        EXPECT_EQ(f.Frame1.Caption.Get(), u"Old name : ");
        EXPECT_EQ(f.Frame2.Caption.Get(), u"New name (last section of path) : ");
        EXPECT_EQ(f.cmdUnderscoreCaps.Caption.Get(), u"&Underscore / Caps");
        EXPECT_EQ(f.Text1.Text.Get(), u"C:\\Data\\Old");
        EXPECT_EQ(f.Text2.Text.Get(), u"Old");
        EXPECT_EQ(f.Focused(), &f.Text2);
        ExpectLook(f, "files/names", {});
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(RenDirTest, RenamesTheFolderAndGoesThere) {
    t.files.ChangeDir(u"C:\\Data\\Old");
    Show([](frmRenDir& f) {
        f.Text2.Type(u"New");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\New\\a.txt"), "a");
    EXPECT_FALSE(t.files.DirExists(u"C:\\Data\\Old"));
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Data\\New");
    EXPECT_EQ(lister.ListerFolder, u"C:\\Data\\New");
    EXPECT_EQ(file.NewFolderResult, u"C:\\Data\\New");
}

TEST_F(RenDirTest, AFolderUnderTheRootGetsNoSecondSeparator) {
    t.files.AddDir(u"C:\\Top");
    lister.ListerFolder = u"C:\\Top";
    Show([](frmRenDir& f) {
        f.Text2.Type(u"New");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(file.NewFolderResult, u"C:\\New");
    EXPECT_TRUE(t.files.DirExists(u"C:\\New"));
}

TEST_F(RenDirTest, ANameThatDiffersByCaseOnlyCountsAsThere) {
    Show([this](frmRenDir& f) {
        t.user.Answer(
            {u"C:\\Data\\OLD\r\n\r\nA directory with this name already exists on the current drive!",
             MessageIcon::Exclamation},
            Answer::Ok);
        f.Text2.Type(u"OLD");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_EQ(lister.ListerFolder, u"C:\\Data\\Old");
}

TEST_F(RenDirTest, AForbiddenCharacterIsRefused) {
    Show([this](frmRenDir& f) {
        t.user.Answer(Answer::Ok);
        f.Text2.Type(u"a\\b");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\Old"));
}

TEST_F(RenDirTest, AFailureIsToldAndTheWindowStays) {
    t.files.Faults().FailNth(FileStep::Rename, 1, u"Device or resource busy");
    Show([this](frmRenDir& f) {
        t.user.Answer(
            {u"Error trying to rename directory\r\n\r\nC:\\Data\\Old\r\n\r\nTo C:\\Data\\New\r\n\r\nIs "
             u"this drive access-protected ?",
             MessageIcon::Stop},
            Answer::Ok);
        f.Text2.Type(u"New");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(app.DialogResult, 0);
        f.cmdAccept.Press();
    });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\New"));
}

TEST_F(RenDirTest, ReturnAcceptsAndEscGivesUpInBothFields) {
    for (TextBox frmRenDir::*field : {&frmRenDir::Text1, &frmRenDir::Text2}) {
        Show([field](frmRenDir& f) {
            f.Text2.Type(u"New");
            EXPECT_TRUE(PressIn(f.*field, Key::Escape));
        });
        EXPECT_EQ(app.DialogResult, 0);
        EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\Old"));
        Show([field](frmRenDir& f) {
            f.Text2.Type(u"New");
            EXPECT_TRUE(PressIn(f.*field, Key::Return));
        });
        EXPECT_EQ(app.DialogResult, 1);
        t.files.Rename(u"C:\\Data\\New", u"C:\\Data\\Old");
        lister.ListerFolder = u"C:\\Data\\Old";
    }
}

TEST_F(RenDirTest, TheKeysChangeTheCaseOfTheirField) {
    Show([](frmRenDir& f) {
        f.Text2.Type(u" war and peace ");
        EXPECT_TRUE(PressIn(f.Text2, 'U', Mask::Ctrl));
        EXPECT_EQ(f.Text2.Text.Get(), u"war_and_peace");
        f.Text2.Type(u" war and peace ");
        EXPECT_TRUE(PressIn(f.Text2, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Text2.Text.Get(), u"War_and_Peace");
        EXPECT_FALSE(PressIn(f.Text2, 'T', Mask::Ctrl));
        f.Text1.Text = u"c:\\war and peace";
        EXPECT_TRUE(PressIn(f.Text1, 'U', Mask::Ctrl));
        EXPECT_EQ(f.Text1.Text.Get(), u"c:\\war_and_peace");
        f.cmdCancel.Press();
    });
}

TEST_F(RenDirTest, UnderscoreCapsTidiesTheNewName) {
    Show([](frmRenDir& f) {
        f.Text2.Type(u"letters for ann");
        f.cmdUnderscoreCaps.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"Letters_for_Ann");
        f.cmdCancel.Press();
    });
}

TEST_F(RenDirTest, TakesALargerStoredWidthThanTheOthers) {
    app.Settings.DialogWidth = 6975;
    Show([](frmRenDir& f) {
        EXPECT_EQ(f.Width.Get(), Twips{0});
        f.Width = Twips{6980};
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.Settings.DialogWidth, 6980);
    Show([](frmRenDir& f) {
        EXPECT_EQ(f.Width.Get(), Twips{6980});
        f.cmdCancel.Press();
    });
}

struct PosixRenDirTest : NameWindowTest<frmRenDir, PosixNamesFixture> {};

TEST_F(PosixRenDirTest, WhereCaseCountsANameMayDifferByItAlone) {
    t.files.AddDir(u"/a");
    lister.ListerFolder = u"/a";
    Show([](frmRenDir& f) {
        EXPECT_EQ(f.Text2.Text.Get(), u"a");
        f.Text2.Type(u"A");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(file.NewFolderResult, u"/A");
    EXPECT_TRUE(t.files.DirExists(u"/A"));
}

} // namespace
} // namespace korvane
