#include "files/names/frmNewDir.h"

#include "support/DesignerFile.h"
#include "unit/files/names/NamesFixture.h"

namespace korvane {
namespace {

struct NewDirTest : NameWindowTest<frmNewDir> {};

TEST_F(NewDirTest, HasItsTexts) {
    Show([](frmNewDir& f) {
        EXPECT_EQ(f.Caption.Get(), u"Enter name for new directory");
        EXPECT_EQ(f.Frame1.Caption.Get(), u" Current Dir.: C:\\Data");
        EXPECT_EQ(f.Label2.Caption.Get(), u"Forbidden characters in file names");
        EXPECT_EQ(f.cmdAccept.Caption.Get(), u"&Accept");
        EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(f.cmdUnderscoreCaps.Caption.Get(), u"&Underscore / Caps");
        EXPECT_EQ(f.Focused(), &f.Text1);
        ExpectLook(f, "files/names", {});
        f.cmdCancel.Press();
    });
}

TEST_F(NewDirTest, MakesTheFolderAndTellsItsPath) {
    Show([](frmNewDir& f) {
        f.Text1.Type(u"New one");
        f.cmdAccept.Press();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\New one"));
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(file.NewFolderPath, u"C:\\Data\\New one");
    EXPECT_EQ(file.NewFolderResult, u"C:\\Data\\New one");
}

TEST_F(NewDirTest, ARootGetsNoSecondSeparator) {
    t.files.ChangeDir(u"C:\\");
    Show([](frmNewDir& f) {
        EXPECT_EQ(f.Frame1.Caption.Get(), u" Current Dir.: C:\\");
        f.Text1.Type(u"New");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(file.NewFolderPath, u"C:\\New");
    EXPECT_TRUE(t.files.DirExists(u"C:\\New"));
}

TEST_F(NewDirTest, MakesItWhereItWasOpenedWhateverTheCurrentDirectoryIsNow) {
    Show([this](frmNewDir& f) {
        t.files.ChangeDir(u"C:\\");
        f.Text1.Type(u"New");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(file.NewFolderPath, u"C:\\Data\\New");
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Data");
}

TEST_F(NewDirTest, AForbiddenCharacterIsRefusedAndNoFolderIsMade) {
    t.user.On<frmNewDir>([](frmNewDir& f) {
        f.Text1.Type(u"What?");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    t.user.Answer(
        {u"File name contains this forbidden character:    ?\t\r\n\r\nPending operation will not be "
         u"executed.",
         MessageIcon::Stop},
        Answer::Ok);
    frmNewDir(app).ShowModal();
    EXPECT_TRUE(t.files.FolderNames(u"C:\\Data").empty());
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(NewDirTest, AFolderThatIsThereIsTold) {
    t.files.AddDir(u"C:\\Data\\There");
    t.user.On<frmNewDir>([](frmNewDir& f) {
        f.Text1.Type(u"there");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    t.user.Answer({u"This directory already exists!\r\n\r\nthere", MessageIcon::Exclamation}, Answer::Ok);
    frmNewDir(app).ShowModal();
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(NewDirTest, AFailureIsToldInTheSystemsWordsAndTheWindowStays) {
    t.files.Faults().FailNth(FileStep::MakeDir, 1, u"Permission denied");
    t.user.On<frmNewDir>([](frmNewDir& f) {
        f.Text1.Type(u"New");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdAccept.Press();
    });
    t.user.Answer({u"Error creating directory:   New\r\nError:   Permission denied\r\n\r\nIs this drive "
                   u"access protected ?",
                   MessageIcon::Stop},
                  Answer::Ok);
    frmNewDir(app).ShowModal();
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\New"));
}

TEST_F(NewDirTest, ReturnAcceptsAndEscGivesUp) {
    Show([](frmNewDir& f) {
        f.Text1.Type(u"New");
        EXPECT_TRUE(PressIn(f.Text1, Key::Return));
    });
    EXPECT_EQ(app.DialogResult, 1);
    Show([](frmNewDir& f) {
        f.Text1.Type(u"Another");
        EXPECT_TRUE(PressIn(f.Text1, Key::Escape));
    });
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_FALSE(t.files.DirExists(u"C:\\Data\\Another"));
}

TEST_F(NewDirTest, TheFieldHasNoKeysForItsCase) {
    Show([](frmNewDir& f) {
        f.Text1.Type(u"new one");
        EXPECT_FALSE(PressIn(f.Text1, 'U', Mask::Ctrl));
        EXPECT_FALSE(PressIn(f.Text1, 'T', Mask::Ctrl));
        EXPECT_EQ(f.Text1.Text.Get(), u"new one");
        f.cmdCancel.Press();
    });
}

TEST_F(NewDirTest, UnderscoreCapsTidiesThePhrase) {
    Show([](frmNewDir& f) {
        f.Text1.Type(u" letters for ann and ben ");
        f.cmdUnderscoreCaps.Press();
        EXPECT_EQ(f.Text1.Text.Get(), u"Letters_For_Ann_and_Ben");
        f.cmdCancel.Press();
    });
}

TEST_F(NewDirTest, KeepsItsWidthForTheOthersOfItsKind) {
    app.Settings.DialogWidth = 6840;
    Show([](frmNewDir& f) {
        EXPECT_EQ(f.Width.Get(), Twips{0});
        f.Width = Twips{7100};
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.Settings.DialogWidth, 7100);
    app.Settings.DialogWidth = 6841;
    Show([](frmNewDir& f) {
        EXPECT_EQ(f.Width.Get(), Twips{6841});
        f.cmdCancel.Press();
    });
}

struct PosixNewDirTest : NameWindowTest<frmNewDir, PosixNamesFixture> {};

TEST_F(PosixNewDirTest, MakesTheFolderBelowAShortOneToo) {
    t.files.AddDir(u"/a");
    for (const TextView folder : {u"/a", u"/"}) {
        t.files.ChangeDir(folder);
        Show([](frmNewDir& f) {
            f.Text1.Type(u"New");
            f.cmdAccept.Press();
        });
        EXPECT_EQ(file.NewFolderPath, t.files.Style().JoinPath(folder, u"New"));
        EXPECT_TRUE(t.files.DirExists(file.NewFolderPath));
    }
}

TEST_F(PosixNewDirTest, ASeparatorIsForbiddenOnEverySystem) {
    t.user.On<frmNewDir>([](frmNewDir& f) {
        f.Text1.Type(u"a\\b");
        f.cmdAccept.Press();
        f.cmdCancel.Press();
    });
    t.user.Answer(Answer::Ok);
    frmNewDir(app).ShowModal();
    EXPECT_TRUE(t.files.FolderNames(u"/home/me").empty());
}

} // namespace
} // namespace korvane
