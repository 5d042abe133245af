#include "files/names/frmRenFile.h"

#include "support/DesignerFile.h"
#include "unit/files/names/NamesFixture.h"

namespace korvane {
namespace {

struct RenFileTest : NameWindowTest<frmRenFile> {};

TEST_F(RenFileTest, HasItsTextsAndTheOldName) {
    Show([](frmRenFile& f) {
        EXPECT_EQ(f.Caption.Get(), u"Enter new name for file");
        EXPECT_EQ(f.Frame1.Caption.Get(), u"Old name : ");
        EXPECT_EQ(f.Frame2.Caption.Get(), u"New name : ");
        EXPECT_EQ(f.cmdUnderscoreCaps.Caption.Get(), u"Underscore / Ca&ps");
        EXPECT_EQ(f.cmdAddDate.Caption.Get(), u"Add da&te");
        EXPECT_EQ(f.cmdBufferName.Caption.Get(), u"&Buffer name and close");
        EXPECT_EQ(f.cmdUnderscores.Caption.Get(), u"Spaces to &underscores  [ Ctrl-U ]");
        EXPECT_EQ(f.Text1.Text.Get(), u"Old.txt");
        EXPECT_EQ(f.Text2.Text.Get(), u"Old.txt");
        EXPECT_EQ(f.lblNameLength.Caption.Get(), u"7 characters");
        EXPECT_EQ(f.Focused(), &f.Text2);
        EXPECT_EQ(f.Text2.SelText(), u"Old");
        ExpectLook(f, "files/names", {});
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(RenFileTest, CountsTheCharactersAsTheyAreTyped) {
    Show([](frmRenFile& f) {
        f.Text2.Type(u"Old.text");
        EXPECT_EQ(f.lblNameLength.Caption.Get(), u"8 characters");
        f.Text2.Type(u"");
        EXPECT_EQ(f.lblNameLength.Caption.Get(), u"0 characters");
        f.cmdCancel.Press();
    });
}

TEST_F(RenFileTest, RenamesInItsFolderAndComesBackToTheCurrentOne) {
    t.files.ChangeDir(u"C:\\");
    Show([](frmRenFile& f) {
        f.Text2.Type(u"New.txt");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(file.FileNewName, u"New.txt");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\New.txt"), "bytes");
    EXPECT_FALSE(t.files.FileExists(u"C:\\Data\\Old.txt"));
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\");
}

TEST_F(RenFileTest, ANameThatIsThereIsTold) {
    t.files.AddFile(u"C:\\Data\\There.txt", "there");
    Show([this](frmRenFile& f) {
        t.user.Answer({u"A file with this name already exists in the current directory!\r\n\r\nthere.txt",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        f.Text2.Type(u"there.txt");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\There.txt"), "there");
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(RenFileTest, TheSameNameIsThereToo) {
    Show([this](frmRenFile& f) {
        t.user.Answer({u"A file with this name already exists in the current directory!\r\n\r\nOld.txt",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        f.cmdAccept.Press();
        f.cmdCancel.Press();
    });
}

TEST_F(RenFileTest, AnEmptyNameFailsInTheRename) {
    Show([this](frmRenFile& f) {
        t.user.Answer(
            {u"File:   Old.txt\r\nError:   No such file or directory\r\n\r\nIs this file open elsewhere "
             u"or access-protected ?",
             MessageIcon::Stop},
            Answer::Ok);
        f.Text2.Type(u"");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\Old.txt"), "bytes");
}

TEST_F(RenFileTest, AFolderThatHasGoneIsToldAndNoFileOfAnotherOneIsRenamed) {
    t.files.AddFile(u"C:\\Old.txt", "another");
    Show([this](frmRenFile& f) {
        t.files.ChangeDir(u"C:\\");
        t.files.Erase(u"C:\\Data");
        t.user.Answer(
            {u"File:   Old.txt\r\nError:   No such file or directory\r\n\r\nIs this file open elsewhere "
             u"or access-protected ?",
             MessageIcon::Stop},
            Answer::Ok);
        f.Text2.Type(u"New.txt");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.files.Contents(u"C:\\Old.txt"), "another");
}

TEST_F(RenFileTest, AFolderOfThatNameIsNotReplaced) {
    t.files.AddDir(u"C:\\Data\\Folder");
    Show([this](frmRenFile& f) {
        t.user.Answer({u"File:   Old.txt\r\nError:   File exists\r\n\r\nIs this file open elsewhere or "
                       u"access-protected ?",
                       MessageIcon::Stop},
                      Answer::Ok);
        f.Text2.Type(u"Folder");
        f.cmdAccept.Press();
        f.cmdCancel.Press();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\Data\\Folder"));
}

TEST_F(RenFileTest, TheNameGoesIntoTheClipboardAndTheWindowCloses) {
    Show([](frmRenFile& f) {
        f.Text2.Type(u"New.txt");
        f.cmdBufferName.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.clipboard.GetText(), u"Old.txt");
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_TRUE(t.files.FileExists(u"C:\\Data\\Old.txt"));
}

TEST_F(RenFileTest, TheTypingAids) {
    Show([](frmRenFile& f) {
        f.Text2.Type(u"letters for ann.txt");
        f.cmdUnderscoreCaps.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"Letters_for_Ann.txt");
        f.cmdAddDate.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"Letters_for_Ann_(21-Nov-2026).txt");
        f.Text2.Type(u"a.txt");
        EXPECT_TRUE(PressIn(f.Text2, 'T', Mask::Ctrl));
        EXPECT_EQ(f.Text2.Text.Get(), u"a_(21-Nov-2026).txt");
        f.cmdCancel.Press();
    });
}

// Kept for compatibility: underscore-key-trims.
TEST_F(RenFileTest, KeyAndButtonForUnderscoresDifferByOuterBlanks) {
    Show([](frmRenFile& f) {
        f.Text2.Type(u" war and peace ");
        f.cmdUnderscores.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"_war_and_peace_");
        f.Text2.Type(u" war and peace ");
        EXPECT_TRUE(PressIn(f.Text2, 'U', Mask::Ctrl));
        EXPECT_EQ(f.Text2.Text.Get(), u"war_and_peace");
        f.Text2.Type(u" war and peace ");
        EXPECT_TRUE(PressIn(f.Text2, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Text2.Text.Get(), u"War_and_Peace");
        f.Text1.Text = u"old name.txt";
        EXPECT_TRUE(PressIn(f.Text1, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Text1.Text.Get(), u"Old_Name.txt");
        f.cmdCancel.Press();
    });
}

TEST_F(RenFileTest, ReturnAcceptsAndEscGivesUp) {
    Show([](frmRenFile& f) {
        f.Text2.Type(u"New.txt");
        EXPECT_TRUE(PressIn(f.Text2, Key::Escape));
    });
    EXPECT_EQ(app.DialogResult, 0);
    Show([](frmRenFile& f) {
        f.Text2.Type(u"New.txt");
        EXPECT_TRUE(PressIn(f.Text1, Key::Return));
    });
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_F(RenFileTest, KeepsTheCommonWidth) {
    app.Settings.DialogWidth = 7000;
    Show([](frmRenFile& f) {
        EXPECT_EQ(f.Width.Get(), Twips{7000});
        f.Width = Twips{7100};
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.Settings.DialogWidth, 7100);
}

} // namespace
} // namespace korvane
