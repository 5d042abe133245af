#include "files/names/frmDupFile.h"

#include "support/DesignerFile.h"
#include "support/HandlerFailure.h"
#include "unit/files/names/NamesFixture.h"

namespace korvane {
namespace {

struct DupFileTest : NameWindowTest<frmDupFile> {};

TEST_F(DupFileTest, HasItsTexts) {
    Show([](frmDupFile& f) {
        EXPECT_EQ(f.Caption.Get(), u"Enter name for file duplicate");
        EXPECT_EQ(f.Frame1.Caption.Get(), u"Current file : ");
        EXPECT_EQ(f.Frame2.Caption.Get(), u"Duplicate : ");
        EXPECT_EQ(f.cmdAddDate.Caption.Get(), u"Add da&te");
        EXPECT_EQ(f.Text1.Text.Get(), u"Old.txt");
        EXPECT_EQ(f.Focused(), &f.Text2);
        ExpectLook(f, "files/names", {});
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_F(DupFileTest, CopiesTheFileWithItsTime) {
    const DateTime time{2020, 1, 2, 3, 4, 5};
    t.files.SetModified(u"C:\\Data\\Old.txt", time);
    Show([](frmDupFile& f) {
        f.Text2.Type(u"New.txt");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\New.txt"), "bytes");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\Old.txt"), "bytes");
    EXPECT_EQ(t.files.Modified(u"C:\\Data\\New.txt"), time);
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

// Kept for compatibility: duplicate-boxes-break-by-cr.
TEST_F(DupFileTest, TheSameNameIsRefusedWithCarriageReturnsAlone) {
    Show([this](frmDupFile& f) {
        t.user.Answer({u"Files must be different!\r\rSource :  Old.txt\rTarget  :  OLD.txt\r",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        f.Text2.Type(u"OLD.txt");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
}

// Kept for compatibility: duplicate-boxes-break-by-cr.
TEST_F(DupFileTest, ANameThatIsThereIsToldWithCarriageReturnsAlone) {
    t.files.AddFile(u"C:\\Data\\There.txt", "there");
    Show([this](frmDupFile& f) {
        t.user.Answer({u"A file with this name already exists in the current directory!\r\rThere.txt\r",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        f.Text2.Type(u"There.txt");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\There.txt"), "there");
}

TEST_F(DupFileTest, AnEmptyNameDiffersAndFailsInTheCopy) {
    Show([this](frmDupFile& f) {
        t.user.Answer(
            {u"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )\r\n\r\nThe error "
             u"was probably triggered for the following reason : \r\n\r\n\"No such file or "
             u"directory\"\r\n\r\n",
             MessageIcon::Stop},
            Answer::Ok);
        f.Text2.Type(u"");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_EQ(t.files.FileNames(u"C:\\Data", u"*").size(), 1u);
}

TEST_F(DupFileTest, AFullDiskIsToldAndTheWindowStays) {
    t.files.SetQuota(7);
    Show([this](frmDupFile& f) {
        t.user.Answer(Answer::Ok);
        f.Text2.Type(u"New.txt");
        f.cmdAccept.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.user.Messages().back().icon, MessageIcon::Stop);
    EXPECT_NE(InStr(t.user.Messages().back().text, u"\"No space left on device\""), 0u);
    EXPECT_FALSE(t.files.FileExists(u"C:\\Data\\New.txt"));
}

TEST_F(DupFileTest, ACopyOnItsWayIsNeitherLeftNorStartedAgain) {
    t.files.AddFile(u"C:\\Data\\Old.txt", std::string(3000, 'b'));
    Show([this](frmDupFile& f) {
        t.screen.QueueMessage([&f] {
            f.cmdAccept.Press();
            f.cmdCancel.Press();
            EXPECT_TRUE(f.Shown());
        });
        f.Text2.Type(u"New.txt");
        f.cmdAccept.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 2);
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\New.txt"), std::string(3000, 'b'));
}

TEST_F(DupFileTest, ACopyThatFailsInAHandlerCanBeStartedAgainOrLeft) {
    t.files.AddFile(u"C:\\Data\\Old.txt", std::string(3000, 'b'));
    Show([this](frmDupFile& f) {
        t.screen.QueueMessage(FailInHandler);
        f.Text2.Type(u"New.txt");
        EXPECT_THROW(f.cmdAccept.Press(), HandlerFailure);
        EXPECT_TRUE(f.QueryUnload());
        f.Text2.Type(u"Newer.txt");
        f.cmdAccept.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\Newer.txt"), std::string(3000, 'b'));
}

TEST_F(DupFileTest, AddsTheDateByButtonAndKey) {
    Show([](frmDupFile& f) {
        f.Text2.Type(u"Old.txt");
        f.cmdAddDate.Press();
        EXPECT_EQ(f.Text2.Text.Get(), u"Old_(21-Nov-2026).txt");
        f.Text2.Type(u"a");
        EXPECT_TRUE(PressIn(f.Text2, 'T', Mask::Ctrl));
        EXPECT_EQ(f.Text2.Text.Get(), u"a_(21-Nov-2026)");
        f.Text2.Type(u"new one");
        EXPECT_FALSE(PressIn(f.Text2, 'U', Mask::Ctrl));
        EXPECT_EQ(f.Text2.Text.Get(), u"new one");
        f.cmdCancel.Press();
    });
}

TEST_F(DupFileTest, ReturnAcceptsAndEscGivesUp) {
    Show([](frmDupFile& f) { EXPECT_TRUE(PressIn(f.Text2, Key::Escape)); });
    EXPECT_EQ(app.DialogResult, 0);
    Show([](frmDupFile& f) {
        f.Text2.Type(u"New.txt");
        EXPECT_TRUE(PressIn(f.Text2, Key::Return));
    });
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_F(DupFileTest, KeepsTheCommonWidth) {
    app.Settings.DialogWidth = 6840;
    Show([](frmDupFile& f) {
        EXPECT_EQ(f.Width.Get(), Twips{0});
        f.Width = Twips{6841};
        f.cmdCancel.Press();
    });
    EXPECT_EQ(app.Settings.DialogWidth, 6841);
    Show([](frmDupFile& f) {
        EXPECT_EQ(f.Width.Get(), Twips{6841});
        f.cmdCancel.Press();
    });
}

struct PosixDupFileTest : NameWindowTest<frmDupFile, PosixNamesFixture> {};

TEST_F(PosixDupFileTest, WhereCaseCountsANameMayDifferByItAlone) {
    Show([](frmDupFile& f) {
        f.Text2.Type(u"OLD.txt");
        f.cmdAccept.Press();
    });
    EXPECT_EQ(t.files.Contents(u"/home/me/OLD.txt"), "bytes");
}

TEST_F(PosixDupFileTest, APipeIsNotOpened) {
    t.files.AddPipe(u"/home/me/pipe");
    file.FileOpName = u"pipe";
    Show([this](frmDupFile& f) {
        t.user.Answer(Answer::Ok);
        f.Text2.Type(u"copy");
        f.cmdAccept.Press();
        f.cmdCancel.Press();
    });
    EXPECT_NE(InStr(t.user.Messages().back().text, u"\"Operation not permitted\""), 0u);
    EXPECT_FALSE(t.files.FileExists(u"/home/me/copy"));
}

} // namespace
} // namespace korvane
