#include "files/jobs/frmCopyMove.h"

#include "common/number/Number.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FavouriteFolders.h"
#include "files/jobs/frmAskCopyMove.h"
#include "files/names/frmNewDir.h"
#include "support/DesignerFile.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Files a and b in C:\From, which is the current directory, and the folder C:\To with a folder in it.
struct CopyMoveTest : testing::Test {
    CopyMoveTest() {
        t.files.AddFile(u"C:\\From\\a", "first");
        t.files.AddFile(u"C:\\From\\b", "second");
        t.files.AddDir(u"C:\\To\\sub");
        t.files.SetVolume(u"C:\\", {.totalBytes = 1'000'000, .freeBytes = 900'000});
        t.files.ChangeDir(u"C:\\From");
        request.CopyMoveKind = 1;
        request.CopySourceFolder = u"C:\\From";
        request.lstMarkedFiles = {u"a", u"b"};
    }

    template <class ScriptT>
    void Show(ScriptT script) {
        t.user.On<frmCopyMove>(script);
        frmCopyMove(t.app).ShowModal();
    }
    /// The next to come is the closing question.
    void AwaitEnd(int copied, Answer answer = Answer::No) {
        const Text text = NumberText(copied) + u" file(s) copied to this folder:\r\n\r\nC:\\To\r\n\r\n" +
                          u"View folder with Windows Explorer?";
        t.user.Answer({text, MessageIcon::Question, MessageButtons::YesNo}, answer);
    }
    std::string At(TextView path) const { return t.files.Contents(path).value_or("(none)"); }
    static void GoTo(frmCopyMove& f, TextView folder) { f.TreeView1.Select(folder); }
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }

    TestApp t;
    CopyMoveRequest& request = t.app.Exchange<CopyMoveRequest>();
};

// The window.

TEST_F(CopyMoveTest, HasItsTexts) {
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.chkUpdateOnly.Caption.Get(), u"Only copy newer files or those not on target");
        EXPECT_EQ(f.lblNewName.Caption.Get(), u"New name for file to copy");
        EXPECT_EQ(f.cmdExploreSource.ToolTipText.Get(), u"Explore source folder");
        EXPECT_EQ(f.cmdExploreTarget.ToolTipText.Get(), u"Explore target folder");
        EXPECT_EQ(f.cmdGetFromTarget.ToolTipText.Get(), u"Get target folder from list");
        std::vector<Text> captions;
        for (const MenuEntry& entry : f.OfficeMenu1.Entries())
            captions.emplace_back(entry.caption);
        EXPECT_THAT(captions, ElementsAre(u"E&xit", u"&Delete", u"&New folder", u"&Source", u"&Target",
                                          u"&Get from target list", u"&Proceed"));
        ExpectLook(f, "files/jobs", {});
        f.OfficeMenu1.Choose("mnuExit");
    });
}

TEST_F(CopyMoveTest, TellsWhatIsToBeDone) {
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.Caption.Get(), u" Target for: 2 file(s) [ Copy ] ");
        EXPECT_FALSE(f.txtTargetName.Visible);
        EXPECT_FALSE(f.lblNewName.Visible);
        EXPECT_EQ(f.lstMarkedFiles.ListCount(), 2);
        EXPECT_EQ(f.lstMarkedFiles.List(1), u"b");
        f.Close();
    });
    request.lstMarkedFiles = {u"b"};
    request.CopyMoveKind = 2;
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.Caption.Get(), u" Target for: b [ Move ] ");
        EXPECT_TRUE(f.txtTargetName.Visible);
        EXPECT_TRUE(f.lblNewName.Visible);
        EXPECT_EQ(f.txtTargetName.Text.Get(), u"b");
        f.Close();
    });
}

TEST_F(CopyMoveTest, StartsWhereTheLastJobCopiedToElseInTheCurrentDirectory) {
    request.LastCopyTarget = u"C:\\Gone";
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\From");
        EXPECT_EQ(f.TreeView1.Selected(), u"C:\\From");
        f.Close();
    });
    request.LastCopyTarget = u"C:\\To\\sub";
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To\\sub");
        EXPECT_EQ(f.TreeView1.Selected(), u"C:\\To\\sub");
        f.Close();
    });
}

TEST_F(CopyMoveTest, ThePathFollowsTheTree) {
    Show([](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To");
        f.TreeView1.SetExpanded(u"C:\\To", true);
        GoTo(f, u"C:\\To\\sub");
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To\\sub");
        f.Close();
    });
}

TEST_F(CopyMoveTest, AFirstRunHasItsOpeningSize) {
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.Height.Get(), Twips{8148});
        EXPECT_EQ(f.Width.Get(), Twips{6612});
        f.Close();
    });
}

TEST_F(CopyMoveTest, KeepsItsPlaceUnlessItIsMinimised) {
    t.app.Settings.CopyMoveGeo3 = 8149;
    t.app.Settings.CopyMoveGeo4 = 6613;
    Show([](frmCopyMove& f) {
        EXPECT_EQ(f.Height.Get(), Twips{8149});
        EXPECT_EQ(f.Width.Get(), Twips{6613});
        f.Left = Twips{100};
        f.Top = Twips{200};
        f.Height = Twips{9000};
        f.Width = Twips{9100};
        f.Close();
    });
    const auto& settings = t.app.Settings;
    EXPECT_EQ(settings.CopyMoveGeo1, 100);
    EXPECT_EQ(settings.CopyMoveGeo2, 200);
    EXPECT_EQ(settings.CopyMoveGeo3, 9000);
    EXPECT_EQ(settings.CopyMoveGeo4, 9100);
    Show([](frmCopyMove& f) {
        f.Left = Twips{999};
        f.State = FormState::Minimised;
        f.Close();
    });
    EXPECT_EQ(settings.CopyMoveGeo1, 100);
}

TEST_F(CopyMoveTest, APlaceOffTheScreenIsReplaced) {
    t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{10'000}, Twips{8000}});
    struct Case {
        std::int32_t left, top;
        int expectedLeft, expectedTop;
    };
    for (const Case& each :
         {Case{9759, 7759, 9759, 7759}, Case{9760, 7760, 360, 360}, Case{20'000, 100, 360, 100}}) {
        t.app.Settings.CopyMoveGeo1 = each.left;
        t.app.Settings.CopyMoveGeo2 = each.top;
        Show([&each](frmCopyMove& f) {
            EXPECT_EQ(f.Left.Get(), Twips{each.expectedLeft});
            EXPECT_EQ(f.Top.Get(), Twips{each.expectedTop});
            f.Close();
        });
    }
}

TEST_F(CopyMoveTest, IsHeldToItsLeastSize) {
    Show([](frmCopyMove& f) {
        f.Width = Twips{6575};
        f.Height = Twips{5999};
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{6576});
        EXPECT_EQ(f.Height.Get(), Twips{6000});
        f.Close();
    });
}

TEST_F(CopyMoveTest, ComesBackToTheDirectoryOfItsOpening) {
    Show([this](frmCopyMove& f) {
        t.files.ChangeDir(u"C:\\To");
        f.Close();
    });
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\From");
}

TEST_F(CopyMoveTest, EscLeavesAnIdleWindow) {
    Show([](frmCopyMove& f) {
        KeyEvent key{Key::Escape};
        f.KeyDown(key);
        EXPECT_FALSE(f.Shown());
    });
}

TEST_F(CopyMoveTest, EscLeavesAnIdleWindowFromTheButtonToo) {
    Show([](frmCopyMove& f) {
        EXPECT_FALSE(Press(f.cmdOk, Key::Escape));
        f.Close();
    });
}

// The job.

TEST_F(CopyMoveTest, CopiesTheMarkedFilesAndAsksAtTheEnd) {
    Show([this](frmCopyMove& f) {
        AwaitEnd(2);
        GoTo(f, u"C:\\To");
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "first");
    EXPECT_EQ(At(u"C:\\To\\b"), "second");
    EXPECT_THAT(t.screen.Pointers(), ElementsAre(Pointer::Hourglass, Pointer::Default));
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
    EXPECT_EQ(request.LastCopyTarget, u"C:\\To");
}

// Kept for compatibility: move-told-as-copied.
TEST_F(CopyMoveTest, AMoveIsToldAsCopied) {
    request.CopyMoveKind = 2;
    Show([this](frmCopyMove& f) {
        AwaitEnd(2, Answer::Yes);
        GoTo(f, u"C:\\To");
        f.OfficeMenu1.Choose("mnuProceed");
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "first");
    EXPECT_EQ(At(u"C:\\From\\a"), "(none)");
    EXPECT_THAT(t.shell.Opened(),
                ElementsAre(OpenRequest{.verb = u"explore", .file = u"C:\\To", .directory = u"C:\\To"}));
}

TEST_F(CopyMoveTest, SourceAndTargetMustDiffer) {
    request.CopySourceFolder = u"c:\\FROM";
    Show([this](frmCopyMove& f) {
        t.user.Answer({u"Source and Target directories must be different!", MessageIcon::Exclamation},
                      Answer::Ok);
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
        f.Close();
    });
}

TEST_F(CopyMoveTest, OneFileTakesTheNewName) {
    request.lstMarkedFiles = {u"a"};
    Show([this](frmCopyMove& f) {
        AwaitEnd(1);
        GoTo(f, u"C:\\To");
        f.txtTargetName.Type(u"z");
        EXPECT_TRUE(Press(f.txtTargetName, Key::Return));
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\z"), "first");
}

TEST_F(CopyMoveTest, CtrlVInTheTreeStartsTheJobToo) {
    Show([this](frmCopyMove& f) {
        AwaitEnd(2);
        GoTo(f, u"C:\\To");
        EXPECT_FALSE(Press(f.TreeView1, 'V'));
        EXPECT_TRUE(Press(f.TreeView1, 'V', Mask::Ctrl));
    });
    EXPECT_EQ(At(u"C:\\To\\b"), "second");
}

TEST_F(CopyMoveTest, TheKeysChangeTheCaseOfTheNewName) {
    request.lstMarkedFiles = {u"a"};
    Show([](frmCopyMove& f) {
        f.txtTargetName.Type(u"war and peace");
        EXPECT_TRUE(Press(f.txtTargetName, 'U', Mask::Ctrl));
        EXPECT_EQ(f.txtTargetName.Text.Get(), u"war_and_peace");
        EXPECT_TRUE(Press(f.txtTargetName, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.txtTargetName.Text.Get(), u"War_and_Peace");
        f.Close();
    });
}

TEST_F(CopyMoveTest, AsksAboutEachFileThatIsThere) {
    t.files.AddFile(u"C:\\To\\a", "old");
    t.files.AddFile(u"C:\\To\\b", "old");
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.user.On<frmAskCopyMove>([](frmAskCopyMove& ask) {
            EXPECT_EQ(ask.lblSource.Caption.Get(), u"a");
            EXPECT_EQ(ask.lblTargetPath.Caption.Get(), u"C:\\To");
            ask.cmdYes.Press();
        });
        t.user.On<frmAskCopyMove>([](frmAskCopyMove& ask) { ask.cmdCancel.Press(); });
        AwaitEnd(1);
        f.cmdOk.Press();
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "first");
    EXPECT_EQ(At(u"C:\\To\\b"), "old");
}

TEST_F(CopyMoveTest, UpdatesWithoutQuestions) {
    t.files.AddFile(u"C:\\To\\a", "old");
    t.files.SetModified(u"C:\\To\\a", {2099, 1, 1, 0, 0, 0});
    Show([this](frmCopyMove& f) {
        AwaitEnd(1);
        GoTo(f, u"C:\\To");
        f.chkUpdateOnly.Press();
        f.cmdOk.Press();
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "old");
    EXPECT_EQ(At(u"C:\\To\\b"), "second");
}

TEST_F(CopyMoveTest, WhileItRunsOnlyStoppingIsLeft) {
    Show([this](frmCopyMove& f) {
        AwaitEnd(2);
        EXPECT_FALSE(f.cmdCancel.Visible);
        EXPECT_FALSE(f.frmCopying.Visible);
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([&f] {
            EXPECT_TRUE(f.cmdCancel.Visible);
            EXPECT_TRUE(f.frmCopying.Visible);
            EXPECT_EQ(f.frmCopying.Caption.Get(), u" File 1 of 2 ");
            EXPECT_EQ(f.cmdCancel.Caption.Get(), u"Escape = Stop");
            EXPECT_EQ(f.Focused(), &f.cmdCancel);
            EXPECT_FALSE(f.TreeView1.Enabled);
            f.cmdOk.Press();
            f.OfficeMenu1.Choose("mnuProceed");
            f.OfficeMenu1.Choose("mnuDelete");
            Press(f.TreeView1, 'V', Mask::Ctrl);
        });
        f.cmdOk.Press();
    });
    EXPECT_EQ(At(u"C:\\To\\b"), "second");
}

TEST_F(CopyMoveTest, EscStopsAfterTheCurrentFileAndTheClosingQuestionStillComes) {
    Show([this](frmCopyMove& f) {
        AwaitEnd(1);
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([] {});
        t.screen.QueueMessage([] {});
        t.screen.QueueMessage([&f] {
            KeyEvent key{Key::Escape};
            f.KeyDown(key);
            EXPECT_FALSE(key.consumed);
            EXPECT_TRUE(Press(f.cmdCancel, Key::Escape));
        });
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\b"), "(none)");
}

TEST_F(CopyMoveTest, AnyKeyOnTheButtonStopsAndSoDoesEscOnProceed) {
    Show([this](frmCopyMove& f) {
        AwaitEnd(0);
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([&f] { EXPECT_TRUE(Press(f.cmdCancel, Key::Space)); });
        f.cmdOk.Press();
    });
    request.LastCopyTarget.clear();
    Show([this](frmCopyMove& f) {
        AwaitEnd(0);
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([&f] {
            EXPECT_FALSE(Press(f.cmdOk, Key::Return));
            EXPECT_TRUE(Press(f.cmdOk, Key::Escape));
        });
        f.cmdOk.Press();
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "(none)");
}

TEST_F(CopyMoveTest, CancelByMouseEndsWithoutAQuestion) {
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([&f] { f.cmdCancel.Press(); });
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "first");
    EXPECT_EQ(At(u"C:\\To\\b"), "(none)");
}

TEST_F(CopyMoveTest, ClosingTheWindowWhileItRunsIsCancel) {
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.screen.QueueMessage([&f] {
            EXPECT_FALSE(f.Close());
            EXPECT_TRUE(f.Shown());
        });
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\b"), "(none)");
}

TEST_F(CopyMoveTest, AFullDriveIsReportedAndTheClosingQuestionFollows) {
    t.files.SetVolume(u"C:\\", {.totalBytes = 1'000'000, .freeBytes = 4000});
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\tC:\\\r\nTotal space\t1,000,000\r\nFree "
                       u"space\t4,000\r\n\r\nHalted at\tC:\\FROM\\A\r\nSize\t5",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        AwaitEnd(0);
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(At(u"C:\\To\\a"), "(none)");
}

// Folders.

TEST_F(CopyMoveTest, MakesAFolderAndGoesThere) {
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.user.On<frmNewDir>([](frmNewDir& dialog) {
            EXPECT_EQ(dialog.Frame1.Caption.Get(), u" Current Dir.: C:\\To");
            dialog.Text1.Type(u"new");
            dialog.cmdAccept.Press();
        });
        f.cmdNewDir.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To\\new");
        EXPECT_EQ(f.TreeView1.Selected(), u"C:\\To\\new");
        f.Close();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\To\\new"));
}

TEST_F(CopyMoveTest, NoNewFolderLeavesTheOldOne) {
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        t.user.On<frmNewDir>([](frmNewDir& dialog) { dialog.cmdCancel.Press(); });
        f.OfficeMenu1.Choose("mnuNewDir");
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To");
        f.Close();
    });
}

TEST_F(CopyMoveTest, ARootIsNotDeleted) {
    Show([this](frmCopyMove& f) {
        GoTo(f, u"C:\\");
        t.user.Answer({u"You cannot delete the root directory!", MessageIcon::Stop}, Answer::Ok);
        f.cmdDelDir.Press();
        f.Close();
    });
}

TEST_F(CopyMoveTest, AFolderWithFilesIsNotDeleted) {
    Show([this](frmCopyMove& f) {
        t.user.Answer({u"You can only delete an empty directory!", MessageIcon::Exclamation}, Answer::Ok);
        f.cmdDelDir.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\From");
        f.Close();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\From"));
}

const Message kDeleteQuestion{u"Do you wish to delete this directory ?\r\n\r\nC:\\To\\sub",
                              MessageIcon::Exclamation, MessageButtons::YesNo, 2};

TEST_F(CopyMoveTest, AnEmptyFolderIsDeletedAfterAQuestion) {
    Show([this](frmCopyMove& f) {
        f.TreeView1.SetExpanded(u"C:\\To", true);
        GoTo(f, u"C:\\To\\sub");
        t.user.Answer(kDeleteQuestion, Answer::No);
        f.cmdDelDir.Press();
        EXPECT_TRUE(t.files.DirExists(u"C:\\To\\sub"));
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To\\sub");
        t.user.Answer(kDeleteQuestion, Answer::Yes);
        f.OfficeMenu1.Choose("mnuDelete");
        EXPECT_FALSE(t.files.DirExists(u"C:\\To\\sub"));
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To");
        EXPECT_EQ(f.TreeView1.Node(u"C:\\To\\sub"), nullptr);
        f.Close();
    });
}

TEST_F(CopyMoveTest, ADeletionThatFailsIsToldAndTheTreeIsReadAnew) {
    t.files.AddDir(u"C:\\To\\sub\\below");
    Show([this](frmCopyMove& f) {
        f.TreeView1.SetExpanded(u"C:\\To", true);
        GoTo(f, u"C:\\To\\sub");
        t.files.AddDir(u"C:\\New");
        t.user.Answer(kDeleteQuestion, Answer::Yes);
        t.user.Answer(
            {u"There was an error attempting to remove the following directory.\r\n\r\nC:\\To\\sub\r\n\r\n"
             u"Maybe it is not a terminal node in the drive tree ?",
             MessageIcon::Exclamation},
            Answer::Ok);
        f.cmdDelDir.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To");
        EXPECT_NE(f.TreeView1.Node(u"C:\\New"), nullptr);
        f.Close();
    });
    EXPECT_TRUE(t.files.DirExists(u"C:\\To\\sub"));
}

TEST_F(CopyMoveTest, ExploresBothFolders) {
    Show([](frmCopyMove& f) {
        GoTo(f, u"C:\\To");
        f.cmdExploreSource.Press();
        f.OfficeMenu1.Choose("mnuTarget");
        f.OfficeMenu1.Choose("mnuSource");
        f.cmdExploreTarget.Press();
        f.Close();
    });
    std::vector<Text> folders;
    for (const OpenRequest& request : t.shell.Opened())
        folders.push_back(request.verb + u" " + request.file);
    EXPECT_THAT(folders,
                ElementsAre(u"explore C:\\From", u"explore C:\\To", u"explore C:\\From", u"explore C:\\To"));
}

/// Picks a folder, or nothing.
struct FakeFavourites final : FavouriteFolders {
    explicit FakeFavourites(App& program) : app(program) { app.SetPort<FavouriteFolders>(this); }
    void Show() override {
        modes.push_back(app.Exchange<FolderPick>().FavouritePickMode);
        EXPECT_EQ(app.DialogResult, 0);
        EXPECT_EQ(app.Exchange<ListerRequest>().ChosenFilePath, u"");
        if (pick.empty()) return;
        app.Exchange<ListerRequest>().ChosenFilePath = pick;
        app.DialogResult = 1;
    }

    App& app;
    Text pick;
    std::vector<std::int16_t> modes;
};

TEST_F(CopyMoveTest, TakesItsTargetFromTheFavourites) {
    FakeFavourites favourites(t.app);
    t.app.Exchange<ListerRequest>().ChosenFilePath = u"left over";
    Show([&](frmCopyMove& f) {
        f.cmdGetFromTarget.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\From");
        favourites.pick = u"C:\\To\\sub";
        f.OfficeMenu1.Choose("mnuGetFromTarget");
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\To\\sub");
        EXPECT_EQ(f.TreeView1.Selected(), u"C:\\To\\sub");
        f.Close();
    });
    EXPECT_THAT(favourites.modes, ElementsAre(1, 1));
    EXPECT_EQ(t.app.Exchange<FolderPick>().FavouritePickMode, 0);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ListerFolder, u"C:\\To\\sub");
}

// Where there are no drives.

struct PosixCopyMoveTest : testing::Test {
    PosixCopyMoveTest() {
        t.files.AddFile(u"/from/a", "first");
        t.files.AddDir(u"/to/sub");
        t.files.ChangeDir(u"/from");
        request.CopyMoveKind = 1;
        request.CopySourceFolder = u"/from";
        request.lstMarkedFiles = {u"a"};
    }
    template <class ScriptT>
    void Show(ScriptT script) {
        t.user.On<frmCopyMove>(script);
        frmCopyMove(t.app).ShowModal();
    }

    TestApp t{PathStyle::Posix};
    CopyMoveRequest& request = t.app.Exchange<CopyMoveRequest>();
};

TEST_F(PosixCopyMoveTest, CopiesToAFolderOfTheTree) {
    Show([this](frmCopyMove& f) {
        f.TreeView1.Select(u"/to");
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"/to");
        t.user.Answer(
            {u"1 file(s) copied to this folder:\r\n\r\n/to\r\n\r\nView folder with Windows Explorer?",
             MessageIcon::Question, MessageButtons::YesNo},
            Answer::Yes);
        f.cmdOk.Press();
    });
    EXPECT_EQ(t.files.Contents(u"/to/a"), "first");
    EXPECT_THAT(t.shell.Opened(),
                ElementsAre(OpenRequest{.verb = u"explore", .file = u"/to", .directory = u"/to"}));
}

TEST_F(PosixCopyMoveTest, AFolderInAnotherCaseIsAnotherFolder) {
    t.files.AddDir(u"/FROM");
    Show([this](frmCopyMove& f) {
        f.TreeView1.Select(u"/FROM");
        t.user.Answer(
            {u"1 file(s) copied to this folder:\r\n\r\n/FROM\r\n\r\nView folder with Windows Explorer?",
             MessageIcon::Question, MessageButtons::YesNo},
            Answer::No);
        f.cmdOk.Press();
    });
    EXPECT_EQ(t.files.Contents(u"/FROM/a"), "first");
}

TEST_F(PosixCopyMoveTest, ALinkToTheSourceFolderIsTheSourceFolder) {
    t.files.AddLink(u"/way", u"/from");
    Show([this](frmCopyMove& f) {
        f.TreeView1.Select(u"/way");
        t.user.Answer({u"Source and Target directories must be different!", MessageIcon::Exclamation},
                      Answer::Ok);
        f.cmdOk.Press();
        f.Close();
    });
}

TEST_F(PosixCopyMoveTest, TheRootIsNotDeletedAndTakesFolders) {
    Show([this](frmCopyMove& f) {
        f.TreeView1.Select(u"/");
        t.user.Answer({u"You cannot delete the root directory!", MessageIcon::Stop}, Answer::Ok);
        f.cmdDelDir.Press();
        t.user.On<frmNewDir>([](frmNewDir& dialog) {
            dialog.Text1.Type(u"new");
            dialog.cmdAccept.Press();
        });
        f.cmdNewDir.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"/new");
        EXPECT_EQ(f.TreeView1.Selected(), u"/new");
        f.Close();
    });
    EXPECT_TRUE(t.files.DirExists(u"/new"));
}

TEST_F(PosixCopyMoveTest, AShortFolderIsDeletedAsAnyOther) {
    t.files.AddDir(u"/a");
    Show([this](frmCopyMove& f) {
        f.TreeView1.Select(u"/a");
        t.user.Answer({u"Do you wish to delete this directory ?\r\n\r\n/a", MessageIcon::Exclamation,
                       MessageButtons::YesNo, 2},
                      Answer::Yes);
        f.cmdDelDir.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"/");
        f.Close();
    });
    EXPECT_FALSE(t.files.DirExists(u"/a"));
}

} // namespace
} // namespace korvane
