#include "files/jobs/frmAskCopyMove.h"

#include "support/DesignerFile.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

struct AskCopyMoveTest : testing::Test {
    AskCopyMoveTest() {
        t.files.AddFile(u"C:\\From\\a.txt", std::string(1234, 'n'));
        t.files.SetModified(u"C:\\From\\a.txt", {2026, 11, 20, 9, 5, 1});
        t.files.AddFile(u"C:\\To\\a.txt", std::string(1'000'001, 'o'));
        t.files.SetModified(u"C:\\To\\a.txt", {2020, 1, 2, 3, 4, 5});
        run.AskSource = u"C:\\From\\a.txt";
        run.AskTarget = u"C:\\To\\a.txt";
    }

    template <class ScriptT>
    void Show(ScriptT script) {
        t.user.On<frmAskCopyMove>(script);
        frmAskCopyMove(t.app, run).ShowModal();
    }
    static bool IsRenaming(const frmAskCopyMove& f) {
        const bool renaming = f.cmdAcceptRename.Visible;
        for (const CommandButton* button :
             {&f.cmdYes, &f.cmdYesToAll, &f.cmdNo, &f.cmdCancel, &f.cmdRenameTarget})
            EXPECT_EQ(button->Visible.Get(), !renaming) << button->Name();
        EXPECT_EQ(f.cmdReject.Visible.Get(), renaming);
        EXPECT_EQ(f.txtTarget.Locked.Get(), !renaming);
        EXPECT_TRUE(f.cmdNoToAll.Visible);
        return renaming;
    }

    TestApp t;
    CopyMoveRun run;
};

TEST_F(AskCopyMoveTest, ShowsBothFiles) {
    Show([](frmAskCopyMove& f) {
        EXPECT_EQ(f.Caption.Get(), u"Please confirm . . .");
        EXPECT_EQ(f.Frame1.Caption.Get(), u" Overwrite existing file ? ");
        EXPECT_EQ(f.lblSource.Caption.Get(), u"a.txt");
        EXPECT_EQ(f.lblSourceFacts.Caption.Get(), u"Size:  1,234    Modified:  2026-11-20 09:05:01");
        EXPECT_EQ(f.lblTargetPath.Caption.Get(), u"C:\\To");
        EXPECT_EQ(f.txtTarget.Text.Get(), u"a.txt");
        EXPECT_EQ(f.lblTargetFacts.Caption.Get(), u"Size:  1,000,001    Modified:  2020-01-02 03:04:05");
        EXPECT_FALSE(IsRenaming(f));
        EXPECT_EQ(f.Focused(), &f.cmdYes);
        ExpectLook(f, "files/jobs",
                   {"Source (file to copy)", "Target (file which will be overwritten)", "Target Path:"});
        f.cmdCancel.Press();
    });
}

TEST_F(AskCopyMoveTest, HasItsCaptions) {
    Show([](frmAskCopyMove& f) {
        EXPECT_EQ(f.cmdYes.Caption.Get(), u"&Yes");
        EXPECT_EQ(f.cmdNo.Caption.Get(), u"&No");
        EXPECT_EQ(f.cmdYesToAll.Caption.Get(), u"Yes to &All");
        EXPECT_EQ(f.cmdNoToAll.Caption.Get(), u"No to a&ll");
        EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(f.cmdRenameTarget.Caption.Get(), u"Rena&me target");
        EXPECT_EQ(f.cmdAcceptRename.Caption.Get(), u"&Accept");
        EXPECT_EQ(f.cmdReject.Caption.Get(), u"&Reject");
        f.cmdCancel.Press();
    });
}

TEST_F(AskCopyMoveTest, ATargetFolderOfTwoCharactersGetsItsBackslash) {
    t.files.AddFile(u"C:\\a.txt");
    run.AskTarget = u"C:\\a.txt";
    Show([](frmAskCopyMove& f) {
        EXPECT_EQ(f.lblTargetPath.Caption.Get(), u"C:\\");
        EXPECT_EQ(f.lblTargetFacts.Caption.Get(), u"Size:      Modified:  2026-11-21 10:30:00");
        f.cmdRenameTarget.Press();
        f.txtTarget.Type(u"b.txt");
        f.cmdAcceptRename.Press();
    });
    EXPECT_EQ(run.AskTarget, u"C:\\b.txt");
}

TEST_F(AskCopyMoveTest, EachButtonGivesItsAnswerAndCloses) {
    struct Case {
        CommandButton frmAskCopyMove::*button;
        std::int16_t copyThisFile;
        std::int16_t yesToAll;
        std::int16_t noToAll;
    };
    const Case cases[] = {
        {&frmAskCopyMove::cmdYes, 1, 0, 0},      {&frmAskCopyMove::cmdNo, 0, 0, 0},
        {&frmAskCopyMove::cmdYesToAll, 0, 1, 0}, {&frmAskCopyMove::cmdNoToAll, 0, 0, 1},
        {&frmAskCopyMove::cmdCancel, 0, 0, 0},
    };
    for (const Case& each : cases) {
        run.CopyThisFile = run.YesToAll = run.NoToAll = 0;
        Show([&each](frmAskCopyMove& f) {
            (f.*each.button).Press();
            EXPECT_FALSE(f.Shown());
        });
        EXPECT_EQ(run.CopyThisFile, each.copyThisFile);
        EXPECT_EQ(run.YesToAll, each.yesToAll);
        EXPECT_EQ(run.NoToAll, each.noToAll);
        EXPECT_EQ(run.AskTarget, u"C:\\To\\a.txt");
    }
}

TEST_F(AskCopyMoveTest, EscCancelsAndRejects) {
    const frmAskCopyMove form(t.app, run);
    EXPECT_TRUE(form.cmdCancel.Cancel);
    EXPECT_TRUE(form.cmdReject.Cancel);
}

// Kept for compatibility: no-to-all-while-renaming.
TEST_F(AskCopyMoveTest, RenamingSelectsTheNameAndKeepsNoToAll) {
    Show([](frmAskCopyMove& f) {
        f.cmdRenameTarget.Press();
        EXPECT_TRUE(IsRenaming(f));
        EXPECT_EQ(f.txtTarget.SelText(), u"a.txt");
        EXPECT_EQ(f.Focused(), &f.txtTarget);
        f.cmdNoToAll.Press();
    });
    EXPECT_EQ(run.NoToAll, 1);
}

TEST_F(AskCopyMoveTest, AFreeNameIsTaken) {
    Show([](frmAskCopyMove& f) {
        f.cmdRenameTarget.Press();
        f.txtTarget.Type(u"b.txt");
        f.cmdAcceptRename.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(run.AskTarget, u"C:\\To\\b.txt");
    EXPECT_EQ(run.CopyThisFile, 1);
}

TEST_F(AskCopyMoveTest, ANameThatIsThereIsShownAndMayBeTriedAgain) {
    t.files.AddFile(u"C:\\To\\b.txt", "12");
    Show([this](frmAskCopyMove& f) {
        t.user.Answer(
            {u"Altered target already exists on disk !\r\n\r\nTry renaming it again or choose Cancel.",
             MessageIcon::Exclamation, MessageButtons::OkCancel},
            Answer::Ok);
        f.cmdRenameTarget.Press();
        f.txtTarget.Type(u"b.txt");
        f.cmdAcceptRename.Press();
        EXPECT_TRUE(IsRenaming(f));
        EXPECT_EQ(f.lblTargetFacts.Caption.Get(), u"Size:  2    Modified:  2026-11-21 10:30:00");
        EXPECT_EQ(f.txtTarget.Text.Get(), u"b.txt");
        f.txtTarget.Type(u"c.txt");
        f.cmdAcceptRename.Press();
    });
    EXPECT_EQ(run.AskTarget, u"C:\\To\\c.txt");
}

TEST_F(AskCopyMoveTest, CancelAtThatBoxIsReject) {
    Show([this](frmAskCopyMove& f) {
        t.user.Answer(Answer::Cancel);
        f.cmdRenameTarget.Press();
        f.cmdAcceptRename.Press();
        EXPECT_FALSE(IsRenaming(f));
        EXPECT_EQ(f.txtTarget.Text.Get(), u"a.txt");
        f.cmdNo.Press();
    });
    EXPECT_EQ(run.AskTarget, u"C:\\To\\a.txt");
    EXPECT_EQ(run.CopyThisFile, 0);
}

TEST_F(AskCopyMoveTest, RejectShowsTheTargetAgain) {
    Show([](frmAskCopyMove& f) {
        f.cmdRenameTarget.Press();
        f.txtTarget.Type(u"b.txt");
        f.cmdReject.Press();
        EXPECT_FALSE(IsRenaming(f));
        EXPECT_EQ(f.txtTarget.Text.Get(), u"a.txt");
        EXPECT_EQ(f.lblTargetFacts.Caption.Get(), u"Size:  1,000,001    Modified:  2020-01-02 03:04:05");
        f.cmdYes.Press();
    });
    EXPECT_EQ(run.AskTarget, u"C:\\To\\a.txt");
    EXPECT_EQ(run.CopyThisFile, 1);
}

TEST_F(AskCopyMoveTest, TheKeysChangeTheCaseOfTheName) {
    Show([](frmAskCopyMove& f) {
        f.cmdRenameTarget.Press();
        f.txtTarget.Type(u"war and peace.txt");
        KeyEvent plain{'U', Mask::Ctrl};
        f.txtTarget.KeyDown(plain);
        EXPECT_TRUE(plain.consumed);
        EXPECT_EQ(f.txtTarget.Text.Get(), u"war_and_peace.txt");
        KeyEvent titled{'U', Mask::Ctrl | Mask::Shift};
        f.txtTarget.KeyDown(titled);
        EXPECT_EQ(f.txtTarget.Text.Get(), u"War_and_Peace.txt");
        f.cmdNoToAll.Press();
    });
}

TEST_F(AskCopyMoveTest, AFileThatIsGoneMeanwhileIsShownWithoutFacts) {
    t.files.Erase(u"C:\\From\\a.txt");
    Show([](frmAskCopyMove& f) {
        EXPECT_EQ(f.lblSourceFacts.Caption.Get(), u"Size:      Modified:  ");
        f.cmdCancel.Press();
    });
}

} // namespace
} // namespace korvane
