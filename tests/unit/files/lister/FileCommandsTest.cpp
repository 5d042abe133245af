#include "files/lister/FileCommands.h"

#include "ListerFixture.h"
#include "context/exchange/CopyMoveRequest.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/OpenWithRequest.h"
#include "context/ports/TextFileViewer.h"
#include "dialogs/frmTxtInfo.h"
#include "files/jobs/frmCopyMove.h"
#include "files/lists/frmOpenFileWith.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmRenFile.h"

#include <functional>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct FakeTextFileViewer final : TextFileViewer {
    explicit FakeTextFileViewer(App& app) { app.SetPort<TextFileViewer>(this); }
    void View(TextView path) override {
        viewed.emplace_back(path);
        onView();
    }
    std::vector<Text> viewed;
    /// What the user does meanwhile.
    std::function<void()> onView = [] {};
};

class FileCommandsTest : public ListerFixture {
protected:
    static constexpr TextView kNote =
        u"\r\n\r\nNote: Deleted files can be retrieved from the Windows Recycle Bin as\r\nlong as they stem "
        u"from a fixed drive, i.e. the hard disk of your computer.";

    /// The next to come is the question before files are deleted.
    void AwaitDelete(const Text& question, Answer answer) {
        Await({question + Text(kNote), MessageIcon::Exclamation, MessageButtons::YesNo, 2}, answer);
    }

    FakeTextFileViewer texts{app};
};
KORVANE_IN_BOTH_STYLES(FileCommandsTest);

// Viewing.

TEST_P(FileCommandsTest, AFileIsViewedAsATextUnlessItsTypeIsTaken) {
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        f.cmdViewFile.Press();
    });
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/a.txt")));
    EXPECT_EQ(app.Exchange<FileOperation>().FileOpFolder, At(u"Data"));
}

TEST_P(FileCommandsTest, SpaceViewsWithAnyModifier) {
    Open([](frmGetFileFromTree& f) {
        for (const int mask : {Mask::None, Mask::Shift, Mask::Ctrl, Mask::Ctrl | Mask::Alt})
            EXPECT_TRUE(Press(f.ListView1, Key::Space, mask));
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
    EXPECT_EQ(texts.viewed.size(), 4U);
}

TEST_P(FileCommandsTest, TheTreeHasTheKeysOfTheListForFiles) {
    const auto awaitCaption = [this](TextView caption) {
        t.user.On<frmCopyMove>([caption](frmCopyMove& copy) {
            EXPECT_EQ(copy.Caption.Get(), caption);
            copy.Close();
        });
    };
    Open([&](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.TreeView1, 'A', Mask::Ctrl));
        EXPECT_THAT(Marked(f), ElementsAre("a.txt", "b.tbx"));
        awaitCaption(u" Target for: 2 file(s) [ Copy ] ");
        EXPECT_TRUE(Press(f.TreeView1, 'C', Mask::Ctrl));
        awaitCaption(u" Target for: a.txt [ Move ] ");
        EXPECT_TRUE(Press(f.TreeView1, 'X', Mask::Ctrl));
        EXPECT_TRUE(Press(f.TreeView1, Key::Space, Mask::Shift));
    });
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/a.txt")));
}

TEST_P(FileCommandsTest, AViewLeavesTheDirectoryTheRowAndTheKeyboardAsTheyWere) {
    texts.onView = [this] { t.files.ChangeDir(At(u"Data/sub")); };
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        f.cmdViewFile.Press();
        EXPECT_EQ(t.files.CurrentDir(), At(u"Data"));
        EXPECT_EQ(f.ListView1.Current(), 2);
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
    EXPECT_EQ(texts.viewed.size(), 1U);
}

/// The parts of the lister on which the commands work.
struct ListParts : Form {
    explicit ListParts(App& app) : Form(app.Forms(), "ListParts", u"") {}

    TextBox path{*this, "path"};
    DropDown pattern{*this, "pattern"};
    TreeView nodes{*this, "nodes"};
    Timer timer{*this, "timer", FolderTree::kBetween};
    ListView list{*this, "list", {{u"Name", {}}, {u"Size", {}}, {u"Date", {}}}};
    ProgressBar bar{*this, "bar"};
    CommandButton stop{*this, "stop", u""};
};

TEST_P(FileCommandsTest, AsATextAFileIsViewedWhateverItsTypeAndSize) {
    t.files.AddFile(At(u"Data/c.png"), std::string(1'000'001, 'c'));
    ListParts parts(app);
    parts.pattern.Text = u"*.png";
    FolderTree tree(t.files, parts.nodes, parts.timer);
    DiskWait wait(app, {parts.list, parts.bar, parts.stop});
    FileRows rows(app, {parts.list, parts.bar, parts.stop}, wait);
    ShownFolder folder(app, {parts.path, parts.pattern, tree, rows, wait});
    folder.GoTo(At(u"Data"));
    FileCommands(app, folder, rows, wait).View(FileCommands::Viewing::AsText);
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/c.png")));
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_P(FileCommandsTest, ATypeGoesToItsProgram) {
    t.files.AddFile(At(u"Data/c.png"), "picture");
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"c.png");
        f.OfficeMenu1.Choose("mnuEdit_View");
    });
    EXPECT_THAT(texts.viewed, IsEmpty());
    EXPECT_EQ(t.shell.Starts().size(), 1U);
}

TEST_P(FileCommandsTest, ALargeTextIsAskedAbout) {
    t.files.AddFile(At(u"Data/c.txt"), std::string(1'000'001, 'c'));
    Await(Answer::No);
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"c.txt");
        f.cmdViewFile.Press();
    });
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_P(FileCommandsTest, AFileThatHasGoneIsTold) {
    Await(Answer::Ok);
    Open([this](frmGetFileFromTree& f) {
        t.files.Erase(At(u"Data/a.txt"));
        f.cmdViewFile.Press();
    });
    EXPECT_THAT(
        ToUtf8(t.user.Messages().at(0).text),
        testing::StartsWith("Cannot locate the following program/file:\r\n\r\n" + ToUtf8(At(u"Data/a.txt"))));
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_P(FileCommandsTest, AShortcutIsOpenedByTheDesktop) {
    t.files.AddFile(At(u"Data/c.pbk"), "book");
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"c.pbk");
        f.cmdViewFile.Press();
    });
    ASSERT_EQ(t.shell.Opened().size(), 1U);
    EXPECT_EQ(t.shell.Opened().front().parameters, At(u"Data/c.pbk"));
}

TEST_P(FileCommandsTest, APipeIsNotOpened) {
    t.files.AddPipe(At(u"Data/c.txt"));
    Await(Answer::Ok);
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"c.txt");
        f.cmdViewFile.Press();
    });
    EXPECT_THAT(ToUtf8(t.user.Messages().at(0).text), testing::StartsWith("Cannot load the following file:"));
    EXPECT_THAT(texts.viewed, IsEmpty());
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
}

TEST_P(FileCommandsTest, AFileCanBeViewedWithAProgram) {
    app.Settings.OpenWithListFile = At(u"programs.lst");
    t.files.AddFile(At(u"programs.lst"));
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        t.user.On<frmOpenFileWith>([this](frmOpenFileWith& with) {
            EXPECT_EQ(app.Exchange<OpenWithRequest>().ViewWithFile, At(u"Data/b.tbx"));
            with.cmdExit.Press();
        });
        f.cmdViewWith.Press();
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_P(FileCommandsTest, InAnEmptyListNothingHappens) {
    request.FileDialogFilter = u"*.none";
    Open([](frmGetFileFromTree& f) {
        for (CommandButton* button :
             {&f.cmdViewFile, &f.cmdViewWith, &f.cmdFileInfo, &f.cmdRename, &f.cmdDuplicate})
            button->Press();
    });
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_P(FileCommandsTest, InAnEmptyListNothingIsMarked) {
    request.FileDialogFilter = u"*.none";
    for (int command = 0; command < 3; ++command)
        Await({u"No items checked.", MessageIcon::Information}, Answer::Ok);
    Open([](frmGetFileFromTree& f) {
        f.cmdDelete.Press();
        f.cmdCopyFile.Press();
        EXPECT_TRUE(Press(f.ListView1, 'X', Mask::Ctrl));
    });
    EXPECT_EQ(t.user.Messages().size(), 3U);
}

TEST_P(FileCommandsTest, InARootNoPathGetsASecondSeparator) {
    t.files.AddFile(At(u"top.tbx"), "t");
    t.files.AddFile(At(u"Data/programs.lst"));
    app.Settings.OpenWithListFile = At(u"Data/programs.lst");
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u""));
        Pick(f, u"top.tbx");
        f.cmdViewFile.Press();
        EXPECT_EQ(app.Exchange<FileOperation>().FileOpFolder, At(u""));
        t.user.On<frmOpenFileWith>([this](frmOpenFileWith& with) {
            EXPECT_EQ(app.Exchange<OpenWithRequest>().ViewWithFile, At(u"top.tbx"));
            with.cmdExit.Press();
        });
        f.cmdViewWith.Press();
        t.user.On<frmTxtInfo>([this](frmTxtInfo& info) {
            EXPECT_EQ(info.lblFilePath.Caption.Get(), At(u""));
            info.cmdClose.Press();
        });
        f.cmdFileInfo.Press();
        t.user.On<frmDupFile>([](frmDupFile& duplicate) {
            duplicate.Text2.Text = u"twin.tbx";
            duplicate.cmdAccept.Press();
        });
        f.cmdDuplicate.Press();
        EXPECT_THAT(f.ListView1.FilesToDrag(), ElementsAre(At(u"top.tbx")));
        t.user.On<frmCopyMove>([this](frmCopyMove& copy) {
            EXPECT_EQ(app.Exchange<CopyMoveRequest>().CopySourceFolder, At(u""));
            copy.Close();
        });
        f.cmdCopyFile.Press();
        t.user.Answer(Answer::Yes);
        f.cmdDelete.Press();
    });
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"top.tbx")));
    EXPECT_EQ(t.files.Contents(At(u"twin.tbx")), "t");
    EXPECT_EQ(t.shell.Recycled().front().path, At(u"top.tbx"));
}

TEST_P(FileCommandsTest, TheFactsOfAFileAreShown) {
    Open([this](frmGetFileFromTree& f) {
        for (int turn = 0; turn < 2; ++turn) {
            t.user.On<frmTxtInfo>([this](frmTxtInfo& info) {
                EXPECT_EQ(info.lblFileName.Caption.Get(), u"a.txt");
                EXPECT_EQ(info.lblFilePath.Caption.Get(), At(u"Data"));
                EXPECT_EQ(info.lblFileSize.Caption.Get(), u"1,234");
                EXPECT_EQ(info.lblArchived.Caption.Get(), u"2026-03-14 15:09:26");
                info.cmdClose.Press();
            });
        }
        Pick(f, u"a.txt");
        f.ListView1.RightClick();
        f.cmdFileInfo.Press();
    });
}

// Names.

TEST_P(FileCommandsTest, ARenamedFileIsTheCurrentOne) {
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        t.user.On<frmRenFile>([](frmRenFile& rename) {
            EXPECT_EQ(rename.Text1.Text.Get(), u"a.txt");
            rename.Text2.Text = u"z.txt";
            rename.cmdAccept.Press();
        });
        EXPECT_TRUE(Press(f.ListView1, Key::F(2)));
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "z.txt"));
        EXPECT_EQ(f.ListView1.Current(), 2);
    });
}

TEST_P(FileCommandsTest, OfAFolderThatHasGoneNoFileIsTakenFromAnotherOne) {
    t.files.AddFile(At(u"a.txt"), "another");
    Open([this](frmGetFileFromTree& f) {
        t.files.ChangeDir(At(u""));
        t.files.Erase(At(u"Data"));
        for (const char* command :
             {"mnuEdit_Rename", "mnuEdit_Duplicate", "mnuEdit_Copy", "mnuEdit_Move", "mnuFolders_New"}) {
            t.user.Answer({u"Cannot locate this directory:\r\n\r\n" + At(u"Data"), MessageIcon::Stop},
                          Answer::Ok);
            f.OfficeMenu1.Choose(command);
        }
    });
    EXPECT_EQ(t.user.Messages().size(), 5U);
    EXPECT_EQ(t.files.Contents(At(u"a.txt")), "another");
}

TEST_P(FileCommandsTest, AFileIsDuplicatedInItsFolder) {
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        t.files.ChangeDir(At(u"Data/sub"));
        t.user.On<frmDupFile>([](frmDupFile& duplicate) {
            duplicate.Text2.Text = u"a2.tbx";
            duplicate.cmdAccept.Press();
        });
        f.cmdDuplicate.Press();
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "a2.tbx", "b.tbx"));
    });
    EXPECT_EQ(t.files.Contents(At(u"Data/a2.tbx")), "b!");
}

// Copying and moving.

TEST_P(FileCommandsTest, TheMarkedFilesAreCopied) {
    t.files.AddDir(At(u"To"));
    app.Exchange<CopyMoveRequest>().LastCopyTarget = At(u"To");
    Open([this](frmGetFileFromTree& f) {
        Mark(f, u"a.txt", u"b.tbx");
        t.user.On<frmCopyMove>([this](frmCopyMove& copy) {
            EXPECT_EQ(copy.Caption.Get(), u" Target for: 2 file(s) [ Copy ] ");
            EXPECT_EQ(request.ChosenFileCount, 2);
            EXPECT_EQ(app.Exchange<CopyMoveRequest>().CopySourceFolder, At(u"Data"));
            t.user.Answer(Answer::No);
            copy.cmdOk.Press();
        });
        EXPECT_TRUE(Press(f.ListView1, 'C', Mask::Ctrl));
    });
    EXPECT_TRUE(t.files.FileExists(At(u"To/a.txt")));
    EXPECT_TRUE(t.files.FileExists(At(u"Data/b.tbx")));
    EXPECT_EQ(request.ChosenFileCount, 1);
}

TEST_P(FileCommandsTest, AfterACopyARefreshShowsTheFolderAndNotTheTarget) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmCopyMove>([this](frmCopyMove& copy) {
            request.ListerFolder = At(u"Data/sub");
            copy.Close();
        });
        f.cmdCopyFile.Press();
        EXPECT_EQ(request.ListerFolder, At(u"Data"));
        f.OfficeMenu1.Choose("mnuFile_Refresh");
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
}

TEST_P(FileCommandsTest, MovedFilesLeaveTheList) {
    t.files.AddDir(At(u"To"));
    app.Exchange<CopyMoveRequest>().LastCopyTarget = At(u"To");
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        t.user.On<frmCopyMove>([this](frmCopyMove& copy) {
            EXPECT_EQ(copy.Caption.Get(), u" Target for: a.txt [ Move ] ");
            t.user.Answer(Answer::No);
            copy.cmdOk.Press();
        });
        EXPECT_TRUE(Press(f.ListView1, 'X', Mask::Ctrl));
        EXPECT_THAT(Names(f), ElementsAre("b.tbx"));
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
    EXPECT_TRUE(t.files.FileExists(At(u"To/a.txt")));
}

// Deleting.

TEST_P(FileCommandsTest, OneFileIsAskedAboutByItsName) {
    AwaitDelete(u"Delete the following file ?\r\n\r\na.txt", Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, Key::Delete));
        ASSERT_EQ(t.shell.Recycled().size(), 1U);
        EXPECT_EQ(t.shell.Recycled().front().path, At(u"Data/a.txt"));
        EXPECT_EQ(t.shell.Recycled().front().talk, RecycleTalk::Silent);
    });
}

TEST_P(FileCommandsTest, SeveralAreAskedAboutByTheirNumber) {
    AwaitDelete(u"Delete   >   2   <   files ?", Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, 'A', Mask::Ctrl));
        f.cmdDelete.Press();
        EXPECT_EQ(t.shell.Recycled().size(), 2U);
    });
}

TEST_P(FileCommandsTest, TheListIsReadAnewAtTheSameRow) {
    t.files.AddFile(At(u"Data/c.rtf"));
    t.shell.SetRecycler([this](TextView path) {
        t.files.Erase(path);
        return true;
    });
    AwaitDelete(u"Delete the following file ?\r\n\r\nb.tbx", Answer::Yes);
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        f.cmdDelete.Press();
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "c.rtf"));
        EXPECT_EQ(f.ListView1.Current(), 2);
        EXPECT_THAT(Marked(f), ElementsAre("c.rtf"));
    });
}

TEST_P(FileCommandsTest, ANoOnlyGivesTheKeyboardBack) {
    AwaitDelete(u"Delete the following file ?\r\n\r\na.txt", Answer::No);
    Open([this](frmGetFileFromTree& f) {
        f.txtFileName.SetFocus();
        f.cmdDelete.Press();
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_THAT(t.shell.Recycled(), IsEmpty());
    });
}

TEST_P(FileCommandsTest, WithoutMarksThereIsNothingToDelete) {
    Await({u"No items checked.", MessageIcon::Information}, Answer::Ok);
    Open([](frmGetFileFromTree& f) {
        f.ListView1.SetAllSelected(false);
        f.cmdDelete.Press();
    });
}

TEST_P(FileCommandsTest, AFileThatHasGoneIsPassedOver) {
    AwaitDelete(u"Delete   >   2   <   files ?", Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        Mark(f, u"a.txt", u"b.tbx");
        t.files.Erase(At(u"Data/a.txt"));
        f.cmdDelete.Press();
        ASSERT_EQ(t.shell.Recycled().size(), 1U);
        EXPECT_EQ(t.shell.Recycled().front().path, At(u"Data/b.tbx"));
    });
}

TEST_P(FileCommandsTest, FilesThatTheRecycleStoreRefusesStayWithoutAWord) {
    t.shell.SetRecycler([](TextView) { return false; });
    AwaitDelete(u"Delete   >   2   <   files ?", Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        Mark(f, u"a.txt", u"b.tbx");
        f.cmdDelete.Press();
        EXPECT_EQ(t.shell.Recycled().size(), 2U);
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
    });
    EXPECT_EQ(t.user.Messages().size(), 1U);
}

TEST_P(FileCommandsTest, ALinkThatLeadsNowhereCanBeDeleted) {
    t.files.AddLink(At(u"Data/c"), At(u"nowhere"));
    AwaitDelete(u"Delete the following file ?\r\n\r\nc", Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"c");
        f.cmdDelete.Press();
        EXPECT_EQ(t.shell.Recycled().size(), 1U);
    });
}

} // namespace
} // namespace korvane
