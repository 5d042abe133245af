#include "dialogs/frmMyMsgBox.h"

#include "context/exchange/MessageQuestion.h"
#include "support/MenuEntries.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

const Text kFile = u"C:\\Data\\letter.rtf";

class MyMsgBoxTest : public testing::Test {
protected:
    MyMsgBoxTest() {
        t.files.AddFile(kFile, std::string(1234, 'x'));
        t.files.SetModified(kFile, {2026, 3, 1, 14, 5, 9});
        t.clock.Set({2026, 11, 21, 9, 8, 7});
        t.app.Exchange<MessageQuestion>().MsgFilePath = kFile;
    }
    /// Shows the box and lets `act` be done in it.
    MsgAnswer Ask(const std::function<void(frmMyMsgBox&)>& act) {
        t.app.Exchange<MessageQuestion>().MsgAnswer = MsgAnswer::Cancel;
        t.user.On<frmMyMsgBox>([&act](frmMyMsgBox& f) {
            act(f);
            if (f.Shown()) f.Close();
        });
        frmMyMsgBox(t.app).ShowModal();
        return t.app.Exchange<MessageQuestion>().MsgAnswer;
    }

    TestApp t;
};

TEST_F(MyMsgBoxTest, ShowsTheFile) {
    Ask([](frmMyMsgBox& f) {
        EXPECT_EQ(f.Caption.Get(), u"Closing altered file...");
        EXPECT_EQ(f.txtFileName.Text.Get(), u"letter.rtf");
        EXPECT_EQ(f.txtFilePath.Text.Get(), u"C:\\Data");
        EXPECT_EQ(f.lblFileSize.Caption.Get(), u"1,234");
        EXPECT_EQ(f.lblFileDate.Caption.Get(), u"2026-03-01 14:05:09     [ now: 21/11/2026, 09:08:07 ]");
    });
}

TEST_F(MyMsgBoxTest, AFileNotSavedYetHasNoDateAndNoSize) {
    for (const TextView path : {TextView(), TextView(u"C:\\gone.rtf")}) {
        t.app.Exchange<MessageQuestion>().MsgFilePath = Text(path);
        Ask([](frmMyMsgBox& f) {
            EXPECT_EQ(f.lblFileSize.Caption.Get(), u"0");
            EXPECT_EQ(f.lblFileDate.Caption.Get(), u"(not yet saved!)     [ now: 21/11/2026, 09:08:07 ]");
        });
    }
}

TEST_F(MyMsgBoxTest, OffersTheSaveFirst) {
    Ask([](frmMyMsgBox& f) { EXPECT_EQ(f.Focused(), &f.cmdYes); });
}

TEST_F(MyMsgBoxTest, HasItsCaptions) {
    const frmMyMsgBox f(t.app);
    EXPECT_EQ(f.cmdYes.Caption.Get(), u"&Save");
    EXPECT_EQ(f.cmdYes.ToolTipText.Get(), u"Save file");
    EXPECT_EQ(f.cmdAutoSave.Caption.Get(), u"&Direct save");
    EXPECT_EQ(f.cmdAutoSave.ToolTipText.Get(), u"Autosave file");
    EXPECT_EQ(f.cmdNo.Caption.Get(), u"&No save");
    EXPECT_EQ(f.cmdNo.ToolTipText.Get(), u"Do NOT save file");
    EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
    EXPECT_EQ(f.cmdCancel.ToolTipText.Get(), u"Cancel operation");
    EXPECT_EQ(f.chkDecisionConfirmNoSave.Caption.Get(), u"Confirm no save of file");
    EXPECT_EQ(f.cmdInfo.ToolTipText.Get(), u"More info on current file");
    EXPECT_EQ(f.cmdClip.ToolTipText.Get(), u"Deposit info in clipboard");
    EXPECT_EQ(f.cmdExplorer.ToolTipText.Get(), u"Windows Explorer");
    EXPECT_EQ(f.cmdLorrit.ToolTipText.Get(), u"File Lorrit");
}

TEST_F(MyMsgBoxTest, HasItsMenu) {
    const frmMyMsgBox f(t.app);
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuSave", u"Sa&ve file directly to disk"},
                                                 {"mnuFileInfo", u"&File info"},
                                                 {"mnuClip", u"Clip &info"},
                                                 {"mnuExplorer", u"E&xplorer"},
                                                 {"mnuLorrit", u"Lor&rit"}}));
}

TEST_F(MyMsgBoxTest, EachButtonHasItsAnswer) {
    EXPECT_EQ(Ask([](frmMyMsgBox& f) { f.cmdYes.Press(); }), MsgAnswer::SaveUnderAName);
    EXPECT_EQ(Ask([](frmMyMsgBox& f) { f.cmdAutoSave.Press(); }), MsgAnswer::SaveDirectly);
    EXPECT_EQ(Ask([](frmMyMsgBox& f) { f.OfficeMenu1.Choose("mnuSave"); }), MsgAnswer::SaveDirectly);
    EXPECT_EQ(Ask([](frmMyMsgBox& f) { f.cmdNo.Press(); }), MsgAnswer::DoNotSave);
    EXPECT_EQ(Ask([this](frmMyMsgBox& f) {
                  t.app.Exchange<MessageQuestion>().MsgAnswer = MsgAnswer::SaveDirectly;
                  f.cmdCancel.Press();
              }),
              MsgAnswer::Cancel);
}

TEST_F(MyMsgBoxTest, EscapeOnAButtonClosesAndLeavesTheAnswer) {
    for (CommandButton frmMyMsgBox::*button :
         {&frmMyMsgBox::cmdYes, &frmMyMsgBox::cmdNo, &frmMyMsgBox::cmdCancel}) {
        EXPECT_EQ(Ask([button](frmMyMsgBox& f) {
                      KeyEvent key{Key::Escape};
                      (f.*button).KeyDown(key);
                      EXPECT_TRUE(key.consumed);
                      EXPECT_FALSE(f.Shown());
                  }),
                  MsgAnswer::Cancel);
    }
}

TEST_F(MyMsgBoxTest, EscapeLeavesAnyAnswerAsItStands) {
    EXPECT_EQ(Ask([this](frmMyMsgBox& f) {
                  t.app.Exchange<MessageQuestion>().MsgAnswer = MsgAnswer::SaveDirectly;
                  KeyEvent key{Key::Escape};
                  f.cmdCancel.KeyDown(key);
              }),
              MsgAnswer::SaveDirectly);
}

TEST_F(MyMsgBoxTest, OtherKeysOnAButtonAreItsOwn) {
    Ask([](frmMyMsgBox& f) {
        KeyEvent key{Key::Space};
        f.cmdYes.KeyDown(key);
        EXPECT_FALSE(key.consumed);
        EXPECT_TRUE(f.Shown());
    });
}

TEST_F(MyMsgBoxTest, NotSavingNeedsNoConfirmationWhereNoneIsWanted) {
    EXPECT_EQ(Ask([](frmMyMsgBox& f) { f.cmdNo.Press(); }), MsgAnswer::DoNotSave);
    EXPECT_TRUE(t.user.Messages().empty());
}

TEST_F(MyMsgBoxTest, NotSavingCanBeConfirmed) {
    t.app.Settings.ConfirmNoSave = 1;
    const Message question{u"Unload file without saving?", MessageIcon::Question, MessageButtons::YesNo, 2};
    const MsgAnswer answer = Ask([this, &question](frmMyMsgBox& f) {
        t.user.Answer(question, Answer::No);
        f.cmdNo.Press();
        EXPECT_TRUE(f.Shown());
        t.user.Answer(question, Answer::Yes);
        f.cmdNo.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(answer, MsgAnswer::DoNotSave);
}

TEST_F(MyMsgBoxTest, TheCheckBoxCountsAtOnce) {
    t.app.Settings.ConfirmNoSave = 1;
    Ask([this](frmMyMsgBox& f) {
        EXPECT_EQ(f.chkDecisionConfirmNoSave.Value.Get(), 1);
        f.chkDecisionConfirmNoSave.Press();
        EXPECT_EQ(t.app.Settings.ConfirmNoSave, 0);
        f.cmdNo.Press();
    });
}

TEST_F(MyMsgBoxTest, TheHeightIsFixedAndTheWidthHasALeastAndIsKept) {
    t.app.Settings.MsgBoxWidth = 9000;
    Ask([](frmMyMsgBox& f) {
        EXPECT_EQ(f.Width.Get(), Twips{9630});
        EXPECT_EQ(f.Height.Get(), Twips{4200});
        f.Width = Twips{12000};
        f.Height = Twips{9000};
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{12000});
        EXPECT_EQ(f.Height.Get(), Twips{4200});
    });
    EXPECT_EQ(t.app.Settings.MsgBoxWidth, 12000);
}

TEST_F(MyMsgBoxTest, TellsTheFactsInAWindow) {
    Ask([this](frmMyMsgBox& f) {
        for (const bool byMenu : {false, true}) {
            t.user.On<frmTxtInfo>([](frmTxtInfo& info) {
                EXPECT_EQ(info.lblFileName.Caption.Get(), u"letter.rtf");
                EXPECT_EQ(info.lblFilePath.Caption.Get(), u"C:\\Data");
                EXPECT_EQ(info.lblFileSize.Caption.Get(), u"1,234");
                EXPECT_EQ(info.lblArchived.Caption.Get(), u"2026-03-01 14:05:09");
                info.cmdClose.Press();
            });
            byMenu ? f.OfficeMenu1.Choose("mnuFileInfo") : f.cmdInfo.Press();
        }
    });
}

TEST_F(MyMsgBoxTest, PutsTheFactsInTheClipboard) {
    t.clipboard.SetText(u"before");
    Ask([this](frmMyMsgBox& f) {
        t.user.Answer({u"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option.",
                       MessageIcon::Information},
                      Answer::Ok);
        f.OfficeMenu1.Choose("mnuClip");
    });
    EXPECT_EQ(t.clipboard.GetText(),
              u"\r\nCurrent File: letter.rtf\r\nPath: C:\\Data\r\nSize: 1,234\r\n"
              u"Saved: 2026-03-01 14:05:09\r\n\r\nTime: 09:08:07\r\nDate: 21/11/2026\r\n");
}

TEST_F(MyMsgBoxTest, ShowsTheFolder) {
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe");
    Ask([](frmMyMsgBox& f) {
        f.cmdExplorer.Press();
        f.OfficeMenu1.Choose("mnuExplorer");
        f.cmdLorrit.Press();
        f.OfficeMenu1.Choose("mnuLorrit");
    });
    const OpenRequest explored{u"explore", u"C:\\Data", u"", u"C:\\Data"};
    EXPECT_EQ(t.shell.Opened(), (std::vector<OpenRequest>{explored, explored}));
    const ProgramStart lorrit{u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe", {u"C:\\Data"}};
    EXPECT_EQ(t.shell.Starts(), (std::vector<ProgramStart>{lorrit, lorrit}));
}

} // namespace
} // namespace korvane
