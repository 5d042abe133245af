#include "files/lister/frmGetFileFromTree.h"

#include "ListerFixture.h"
#include "context/exchange/FileOperation.h"
#include "dialogs/frmMyInputBox.h"
#include "files/names/frmEnterFileName.h"
#include "files/names/frmRenFile.h"
#include "support/DesignerFile.h"
#include "support/ScriptedPickers.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmGetFileFromTreeTest : public ListerFixture {};
KORVANE_IN_BOTH_STYLES(frmGetFileFromTreeTest);

// Texts. The key of today's folders is another one. Kept for compatibility: todays-folders-caption-key.

TEST_P(frmGetFileFromTreeTest, HasItsMenu) {
    Open([](frmGetFileFromTree& f) {
        std::vector<std::string> captions;
        for (const MenuEntry& entry : f.OfficeMenu1.Entries())
            captions.push_back(std::string(static_cast<std::size_t>(entry.level), ' ') +
                               ToUtf8(entry.caption));
        EXPECT_THAT(captions, ElementsAre("&File", " &Proceed", " Recent &files", " Refres&h", " ",
                                          " Find te&xt", " &Find file(s)", " ", " &Cancel", "&Edit",
                                          " &View file", " View &with user program", " &File info", " ",
                                          " &Copy file(s)    ( Ctrl-C )", " &Move file(s)    ( Ctrl-X )", " ",
                                          " Re&name file", " &Duplicate file", " &Delete file(s)", "&Folders",
                                          " &New folder", " &Delete folder", " &Rename folder", " ",
                                          " &Todays folders    ( Alt-X )", " &Get target from list", "&Misc",
                                          " &Explorer", " ", " &Background colour", " &Centre on screen", " ",
                                          " Move window to &Left", " Move window to &Right"));
    });
}

TEST_P(frmGetFileFromTreeTest, HasItsButtons) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.cmdOk.ToolTipText.Get(), u"Proceed (load/save file)");
        EXPECT_EQ(f.cmdEnterFileName.ToolTipText.Get(), u"Enter file name");
        EXPECT_EQ(f.cmdCopyFile.ToolTipText.Get(), u"Copy current file");
        EXPECT_EQ(f.cmdDirInfo.ToolTipText.Get(), u"Directory info");
        EXPECT_EQ(f.cmdViewWith.ToolTipText.Get(), u"View file with user-selected program");
        EXPECT_EQ(f.cmdCentreOnScreen.ToolTipText.Get(), u"Centre window on screen");
        EXPECT_EQ(f.cmdCancel.ToolTipText.Get(), u"Close window");
        EXPECT_EQ(f.cmdRename.ToolTipText.Get(), u"Rename current file");
        EXPECT_EQ(f.cmdDelete.ToolTipText.Get(), u"Delete current file");
        EXPECT_EQ(f.cmdDuplicate.ToolTipText.Get(), u"Duplicate current file");
        EXPECT_EQ(f.cmdExplorer.ToolTipText.Get(), u"Windows Explorer");
        EXPECT_EQ(f.cmdFileInfo.ToolTipText.Get(), u"File info");
        EXPECT_EQ(f.cmdGetTarget.ToolTipText.Get(), u"Get target from list of directories");
        EXPECT_EQ(f.cmdViewFile.ToolTipText.Get(), u"View current file");
        EXPECT_EQ(f.cmdEscape.Caption.Get(), u"Stop");
        ExpectLook(f, "files/lister", {});
    });
}

TEST_P(frmGetFileFromTreeTest, HasItsColumns) {
    Open([](frmGetFileFromTree& f) {
        const auto& columns = f.ListView1.Columns.Get();
        ASSERT_EQ(columns.size(), 3U);
        EXPECT_EQ(columns[0].header, u"Name");
        EXPECT_EQ(columns[1].header, u"Size");
        EXPECT_EQ(columns[2].header, u"mm/dd/yyyy");
        EXPECT_TRUE(f.ListView1.GridLines);
        EXPECT_TRUE(f.ListView1.MultiSelect);
        EXPECT_EQ(f.txtSearchSpec.Items.Get().size(), 13U);
    });
}

// Kept for compatibility: directory-info-does-nothing.
TEST_P(frmGetFileFromTreeTest, DirectoryInfoDoesNothing) {
    Open([](frmGetFileFromTree& f) {
        f.cmdDirInfo.Press();
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

// Opening.

TEST_P(frmGetFileFromTreeTest, ShowsWhatTheCallerAsksFor) {
    request.FileDialogCaption = u"Load a file into text window";
    request.FileDialogFilter = u"*.tbx";
    request.FileDialogDefaultName = At(u"x/y/proposed.tbx");
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.Caption.Get(), u"Load a file into text window");
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.tbx");
        EXPECT_EQ(f.txtFileName.Text.Get(), u"proposed.tbx");
    });
}

TEST_P(frmGetFileFromTreeTest, KeepsItsOwnTitleWithoutACaption) {
    Open([](frmGetFileFromTree& f) { EXPECT_EQ(f.Caption.Get(), u"Get file"); });
}

TEST_P(frmGetFileFromTreeTest, StartsInTheFolderOfItsLastClosing) {
    app.Settings.TreeFormLastPath = At(u"Data/sub");
    Open([this](frmGetFileFromTree& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_EQ(f.TreeView1.Selected(), At(u"Data/sub"));
        EXPECT_EQ(t.files.CurrentDir(), At(u"Data/sub"));
        EXPECT_EQ(request.ListerFolder, At(u"Data/sub"));
    });
}

TEST_P(frmGetFileFromTreeTest, StartsInTheCurrentDirectoryWhenThatHasGone) {
    app.Settings.TreeFormLastPath = At(u"gone");
    Open([this](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data")); });
}

TEST_P(frmGetFileFromTreeTest, ASaveStartsInTheFolderThatIsHintedAt) {
    app.Settings.TreeFormLastPath = At(u"Data");
    request.CurrentFolderHint = At(u"Data/sub");
    OpenToSave([this](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub")); });
    request.ListerMode = 0;
    app.Settings.TreeFormLastPath = At(u"Data");
    Open([this](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data")); });
}

TEST_P(frmGetFileFromTreeTest, ASaveBeginsInTheLineOfTheName) {
    OpenToSave([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.Focused(), &f.txtFileName);
        EXPECT_EQ(f.txtFileName.BackColor.Get(), Colour{0xF7FFFF});
    });
    request.ListerMode = 0;
    Open([](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFileName.BackColor.Get(), kNoColour); });
}

TEST_P(frmGetFileFromTreeTest, ASaveSelectsTheProposedNameUpToItsExtension) {
    request.FileDialogDefaultName = u"letter.to all.tbx";
    OpenToSave([](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFileName.SelText(), u"letter.to all"); });
}

TEST_P(frmGetFileFromTreeTest, ReadsNothingBeforeItIsActive) {
    OpenOnly([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.ListView1.Count(), 0);
        f.ListView1.GotFocus();
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_THAT(f.TreeView1.Nodes(), IsEmpty());
        f.Activate();
        EXPECT_EQ(f.ListView1.Count(), 2);
        f.cmdCancel.Press();
    });
}

TEST_P(frmGetFileFromTreeTest, ReadsNothingAnewWhenItBecomesActiveAgain) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        f.Activate();
        EXPECT_EQ(f.ListView1.Count(), 2);
    });
}

// Kept for compatibility: drive-b-without-label.
TEST(frmGetFileFromTreeDrives, DriveAIsAFloppyAndDriveBIsNot) {
    TestApp t(PathStyle::Windows);
    t.files.AddDrive(u'A');
    t.files.AddDrive(u'B');
    t.user.On<frmGetFileFromTree>([](frmGetFileFromTree& f) {
        f.Activate();
        EXPECT_EQ(f.TreeView1.Node(u"A:\\")->text, u"A:[ Floppy Disk ]");
        EXPECT_EQ(f.TreeView1.Node(u"B:\\")->text.substr(0, 2), u"B:");
        EXPECT_EQ(f.TreeView1.Node(u"B:\\")->text.find(u"Floppy"), Text::npos);
        f.cmdCancel.Press();
    });
    frmGetFileFromTree(t.app).ShowModal();
}

// Its place.

TEST_P(frmGetFileFromTreeTest, IsNeverSmallerThanItsLeastSize) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.Width.Get(), Twips{8256});
        EXPECT_EQ(f.Height.Get(), Twips{4000});
        f.Width = Twips{9000};
        f.Height = Twips{100};
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_EQ(f.Height.Get(), Twips{4000});
    });
}

TEST_P(frmGetFileFromTreeTest, KeepsItsPlaceFolderAndPattern) {
    Settings& settings = app.Settings;
    Open([](frmGetFileFromTree& f) {
        f.Left = Twips{1000};
        f.Top = Twips{900};
        f.Width = Twips{12000};
        f.Height = Twips{8000};
        f.txtSearchSpec.Type(u"*.rtf");
    });
    EXPECT_EQ(settings.TreeFormLeft, 1000);
    EXPECT_EQ(settings.TreeFormTop, 900);
    EXPECT_EQ(settings.TreeFormWidth, 12000);
    EXPECT_EQ(settings.TreeFormHeight, 8000);
    EXPECT_EQ(settings.TreeFormLastPath, At(u"Data"));
    EXPECT_EQ(settings.TreeFormPathB, u"*.rtf");
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.Left.Get(), Twips{1000});
        EXPECT_EQ(f.Width.Get(), Twips{12000});
        // Kept for compatibility: lister-pattern-is-forgotten.
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.*");
    });
}

TEST_P(frmGetFileFromTreeTest, AMinimisedWindowKeepsItsOldPlace) {
    app.Settings.TreeFormWidth = 12000;
    Open([](frmGetFileFromTree& f) {
        f.State = FormState::Minimised;
        f.Width = Twips{500};
        f.Resize();
    });
    EXPECT_EQ(app.Settings.TreeFormWidth, 12000);
}

TEST_P(frmGetFileFromTreeTest, TheSplitterStaysFortyPixelsFromBothEdges) {
    app.Settings.TreeFormWidth = 12000;
    Open([this](frmGetFileFromTree& f) {
        EXPECT_EQ(f.imgSplitV.Position.Get(), 200);
        f.imgSplitV.DragTo(5);
        EXPECT_EQ(f.imgSplitV.Position.Get(), 40);
        f.imgSplitV.DragTo(2000);
        EXPECT_EQ(f.imgSplitV.Position.Get(), 760);
        EXPECT_EQ(app.Settings.TreeFormWidthB, 760);
        f.Width = Twips{9000};
        f.Resize();
        EXPECT_EQ(f.imgSplitV.Position.Get(), 560);
    });
}

TEST_P(frmGetFileFromTreeTest, TheColumnsFollowTheWidthOfTheList) {
    app.Settings.TreeFormWidth = 12000;
    Open([](frmGetFileFromTree& f) {
        const auto share = [&f](int column) { return f.ListView1.ColumnWidth(column).Number(); };
        const int before = share(1);
        EXPECT_NEAR(share(2) * 10.0 * 27 / 48, before, 10);
        EXPECT_NEAR(share(3) * 5.0 * 27 / 48, before, 10);
        f.Width = Twips{15000};
        f.Resize();
        EXPECT_NEAR(share(1) - before, 3000.0 * 27 / 48, 2);
    });
}

TEST_P(frmGetFileFromTreeTest, IsCentredWithinTheMainWindow) {
    main.window.Left = Twips{1000};
    main.window.Top = Twips{1000};
    main.window.Width = Twips{20000};
    main.window.Height = Twips{10000};
    Open([](frmGetFileFromTree& f) {
        f.State = FormState::Maximised;
        f.cmdCentreOnScreen.Press();
        EXPECT_EQ(f.State.Get(), FormState::Normal);
        EXPECT_EQ(f.Width.Get(), Twips{19000});
        EXPECT_EQ(f.Height.Get(), Twips{9500});
        EXPECT_EQ(f.Left.Get(), Twips{1500});
        EXPECT_EQ(f.Top.Get(), Twips{1250});
    });
}

TEST_P(frmGetFileFromTreeTest, DocksBesideTheMainWindow) {
    main.window.Left = Twips{9000};
    main.window.Width = Twips{10000};
    main.window.Height = Twips{9000};
    Open([](frmGetFileFromTree& f) {
        const Twips width = f.Width;
        EXPECT_TRUE(Press(f.ListView1, 'L', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Left.Get(), Twips{9000 - width.Number()});
        EXPECT_EQ(f.Width.Get(), width);
        EXPECT_TRUE(Press(f.TreeView1, 'L', Mask::Ctrl | Mask::Alt));
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_TRUE(Press(f.txtFileName, 'R', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Left.Get(), Twips{19000});
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_TRUE(Press(f.ListView1, 'R', Mask::Ctrl | Mask::Alt));
        EXPECT_EQ(f.Width.Get(), Twips{9800});
        f.Width = Twips{9000};
        f.OfficeMenu1.Choose("mnuMisc_Right");
        EXPECT_EQ(f.Width.Get(), Twips{9800});
        f.OfficeMenu1.Choose("mnuMisc_Left");
        EXPECT_EQ(f.Left.Get(), Twips{0});
    });
}

// Colours.

TEST_P(frmGetFileFromTreeTest, AChosenColourIsKeptAndApplied) {
    Open([this](frmGetFileFromTree& f) {
        EXPECT_EQ(f.cmdRename.BackColor.Get(), kNoColour);
        t.user.ChooseColour(Colour{0xC0FFC0});
        f.OfficeMenu1.Choose("mnuMisc_Colours");
        EXPECT_EQ(t.user.ColourRequests().at(0).start, Colour{-1});
        EXPECT_EQ(f.cmdRename.BackColor.Get(), Colour{0xC0FFC0});
        EXPECT_EQ(f.txtFileName.BackColor.Get(), Colour{0xC0FFC0});
        EXPECT_EQ(f.txtSearchSpec.BackColor.Get(), Colour{0xC0FFC0});
        for (const CommandButton* plain : {&f.cmdOk, &f.cmdCancel, &f.cmdEnterFileName})
            EXPECT_EQ(plain->BackColor.Get(), kNoColour);
    });
    EXPECT_EQ(app.Settings.FavGeoTree, 0xC0FFC0);
    Open([](frmGetFileFromTree& f) { EXPECT_EQ(f.cmdRename.BackColor.Get(), Colour{0xC0FFC0}); });
}

TEST_P(frmGetFileFromTreeTest, AGivenUpColourChangesNothing) {
    Open([this](frmGetFileFromTree& f) {
        t.user.ChooseColour(std::nullopt);
        f.OfficeMenu1.Choose("mnuMisc_Colours");
    });
    EXPECT_EQ(app.Settings.FavGeoTree, -1);
}

// The keys.

TEST_P(frmGetFileFromTreeTest, OneCycleLeadsToThePatternAndBack) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, 'X', Mask::Alt | Mask::Shift));
        EXPECT_EQ(f.Focused(), &f.txtSearchSpec);
        EXPECT_TRUE(Press(f.TreeView1, 'S', Mask::Alt | Mask::Shift));
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_EQ(f.txtFileName.Text.Get(), u"a.txt");
    });
}

TEST_P(frmGetFileFromTreeTest, TheOtherLeadsThroughListNameAndTree) {
    Open([](frmGetFileFromTree& f) {
        f.txtFileName.Type(u"typed");
        std::vector<Control*> way;
        for (int step = 0; step < 4; ++step) {
            EXPECT_TRUE(Press(f.ListView1, 'X', Mask::Alt));
            way.push_back(f.Focused());
        }
        EXPECT_THAT(way, ElementsAre(&f.ListView1, &f.txtFileName, &f.TreeView1, &f.ListView1));
        EXPECT_EQ(f.txtFileName.Text.Get(), u"typed");
        EXPECT_TRUE(Press(f.ListView1, 'S', Mask::Ctrl | Mask::Alt));
        EXPECT_EQ(f.Focused(), &f.txtFileName);
    });
}

TEST_P(frmGetFileFromTreeTest, TheOtherCycleLeavesOutADisabledName) {
    Open([](frmGetFileFromTree& f) {
        f.txtFileName.Enabled = false;
        Press(f.ListView1, 'X', Mask::Alt);
        Press(f.ListView1, 'X', Mask::Alt);
        EXPECT_EQ(f.Focused(), &f.TreeView1);
        Press(f.TreeView1, 'X', Mask::Alt);
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
}

TEST_P(frmGetFileFromTreeTest, F3GoesThroughThePatterns) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, Key::F(3)));
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.rtf");
        EXPECT_EQ(f.ListView1.Count(), 0);
        for (int step = 0; step < 3; ++step)
            EXPECT_TRUE(Press(f.TreeView1, Key::F(3)));
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.txt;*.lst");
        EXPECT_THAT(Names(f), ElementsAre("a.txt"));
    });
}

TEST_P(frmGetFileFromTreeTest, ThePatternIsReadOnReturnAndWhenItIsChosen) {
    Open([](frmGetFileFromTree& f) {
        f.txtSearchSpec.Type(u"*.txt");
        EXPECT_EQ(f.ListView1.Count(), 2);
        EXPECT_TRUE(Press(f.txtSearchSpec, Key::Return));
        EXPECT_THAT(Names(f), ElementsAre("a.txt"));
        f.txtSearchSpec.Choose(1);
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.tbx");
        EXPECT_THAT(Names(f), ElementsAre("b.tbx"));
    });
}

TEST_P(frmGetFileFromTreeTest, CtrlAMarksAllFiles) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, 'A', Mask::Ctrl));
        EXPECT_THAT(Marked(f), ElementsAre("a.txt", "b.tbx"));
    });
}

TEST_P(frmGetFileFromTreeTest, ModifiersHaveToMatch) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_FALSE(Press(f.ListView1, 'A', Mask::Ctrl | Mask::Shift));
        EXPECT_FALSE(Press(f.ListView1, Key::F(2), Mask::Shift));
        EXPECT_FALSE(Press(f.ListView1, Key::Delete, Mask::Shift));
        EXPECT_FALSE(Press(f.ListView1, Key::Return, Mask::Ctrl));
        EXPECT_FALSE(Press(f.ListView1, 'Z'));
    });
}

TEST_P(frmGetFileFromTreeTest, ProgramsAreStarted) {
    app.Settings.CustomBrowserPath = At(u"browser.exe");
    t.files.AddFile(At(u"browser.exe"));
    Open([this](frmGetFileFromTree& f) {
        const auto started = [this, before = std::size_t{0}]() mutable {
            const auto& starts = t.shell.Starts();
            const bool any = starts.size() > before;
            before = starts.size();
            return any ? ToUtf8(starts.back().program) : std::string();
        };
        auto next = started;
        EXPECT_TRUE(Press(f.ListView1, 'B', Mask::Alt));
        EXPECT_EQ(next(), ToUtf8(At(u"browser.exe")));
        EXPECT_TRUE(Press(f.ListView1, Key::F(1), Mask::Ctrl | Mask::Shift));
        EXPECT_THAT(next(), testing::HasSubstr("Lorrit"));
        EXPECT_THAT(t.shell.Starts().back().arguments, ElementsAre(At(u"Data")));
        EXPECT_TRUE(Press(f.TreeView1, Key::F(11)));
        EXPECT_THAT(next(), testing::HasSubstr("TolmereSet"));
        f.OfficeMenu1.Choose("mnuFile_FindText");
        EXPECT_THAT(next(), testing::HasSubstr("Ostrel"));
        f.OfficeMenu1.Choose("mnuFile_FindFiles");
        EXPECT_THAT(next(), testing::HasSubstr("Veldan"));
    });
}

TEST_P(frmGetFileFromTreeTest, TreeAndLineOfTheNameHaveMostKeysOfTheList) {
    app.Settings.CustomBrowserPath = At(u"browser.exe");
    t.files.AddFile(At(u"browser.exe"));
    Open([this](frmGetFileFromTree& f) {
        for (Control* control : std::initializer_list<Control*>{&f.ListView1, &f.TreeView1, &f.txtFileName}) {
            t.user.Answer({u"Only available when saving files.", MessageIcon::Information}, Answer::Ok);
            EXPECT_TRUE(Press(*control, Key::F(1)));
            EXPECT_TRUE(Press(*control, 'B', Mask::Alt));
            EXPECT_EQ(t.shell.Starts().back(), (ProgramStart{At(u"browser.exe"), {}}));
            EXPECT_TRUE(Press(*control, Key::F(1), Mask::Ctrl | Mask::Shift));
            EXPECT_THAT(t.shell.Starts().back().arguments, ElementsAre(At(u"Data")));
            EXPECT_TRUE(Press(*control, Key::F(9), Mask::Ctrl | Mask::Shift));
            EXPECT_EQ(t.shell.Calls().back(), (ShellCall{ShellCall::Kind::Explore, At(u"Data")}));
            EXPECT_TRUE(Press(*control, 'D', Mask::Ctrl | Mask::Alt));
            EXPECT_EQ(t.shell.Calls().back(), (ShellCall{ShellCall::Kind::ToggleDesktop, {}}));
            EXPECT_TRUE(Press(*control, Key::F(11), Mask::Alt));
            EXPECT_EQ(main.commands.size(), t.user.Messages().size());
        }
    });
}

TEST_P(frmGetFileFromTreeTest, IvrandGetsTheFolder) {
    const Text ivrand = t.files.Style().JoinPath(t.files.ProgramDir(), u"Ivrand.exe");
    t.files.AddFile(ivrand);
    Open([&](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, 'U', Mask::Alt));
        EXPECT_EQ(t.shell.Starts().back(), (ProgramStart{ivrand, {At(u"Data")}, WindowState::Minimised}));
    });
}

TEST_P(frmGetFileFromTreeTest, TheWebmailIsAskedForAndKept) {
    app.Settings.CustomBrowserPath = At(u"browser.exe");
    app.Settings.WebmailUrl = u"old";
    t.files.AddFile(At(u"browser.exe"));
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmMyInputBox>([](frmMyInputBox& ask) {
            EXPECT_EQ(ask.txtBoxCaption.Caption.Get(), u"Enter URL for webmail interface");
            EXPECT_EQ(ask.txtBoxText.Text.Get(), u"old");
            ask.txtBoxText.Text = u"mail.example.org";
            ask.cmdOk.Press();
        });
        EXPECT_TRUE(Press(f.ListView1, Key::F(5), Mask::Ctrl | Mask::Alt));
        t.user.On<frmMyInputBox>([](frmMyInputBox& ask) { ask.cmdCancel.Press(); });
        EXPECT_TRUE(Press(f.ListView1, Key::F(5), Mask::Ctrl | Mask::Alt));
    });
    EXPECT_EQ(app.Settings.WebmailUrl, u"mail.example.org");
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_THAT(t.shell.Starts().front().arguments, ElementsAre(u"mail.example.org"));
}

TEST_P(frmGetFileFromTreeTest, TheDesktopAndItsFileManagerHaveKeys) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, 'D', Mask::Ctrl | Mask::Alt));
        EXPECT_TRUE(Press(f.ListView1, 'X', Mask::Ctrl | Mask::Alt));
        EXPECT_TRUE(Press(f.TreeView1, Key::F(9), Mask::Ctrl | Mask::Shift));
    });
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::ToggleDesktop, {}},
                                             ShellCall{ShellCall::Kind::Explore, At(u"Data")},
                                             ShellCall{ShellCall::Kind::Explore, At(u"Data")}));
}

TEST_P(frmGetFileFromTreeTest, F11WithAModifierShowsTheClock) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.ListView1, Key::F(11), Mask::Shift));
        EXPECT_TRUE(Press(f.ListView1, Key::F(11), Mask::Ctrl | Mask::Alt));
    });
    EXPECT_THAT(main.commands, ElementsAre("mnuMisc_Clock", "mnuMisc_Clock"));
}

// The line of the name.

TEST_P(frmGetFileFromTreeTest, AClickOrAStepOnlyTakesTheName) {
    Open([](frmGetFileFromTree& f) {
        f.ListView1.Select(2);
        EXPECT_EQ(f.txtFileName.Text.Get(), u"b.tbx");
        EXPECT_TRUE(f.Shown());
    });
}

TEST_P(frmGetFileFromTreeTest, ARenamedFileHasItsNewNameInTheLineUnlessAnotherWasTyped) {
    const auto rename = [this](const Text& name) {
        t.user.On<frmRenFile>([name](frmRenFile& window) {
            window.Text2.Text = name;
            window.cmdAccept.Press();
        });
    };
    Open([&](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        rename(u"c.tbx");
        f.cmdRename.Press();
        EXPECT_EQ(f.txtFileName.Text.Get(), u"c.tbx");
        f.txtFileName.Type(u"typed");
        rename(u"d.tbx");
        f.cmdRename.Press();
        EXPECT_EQ(f.txtFileName.Text.Get(), u"typed");
    });
}

TEST_P(frmGetFileFromTreeTest, TheNameGetsAnotherExtension) {
    Open([this](frmGetFileFromTree& f) {
        f.txtFileName.Type(u"letter");
        for (const TextView wanted : {u"letter.txt", u"letter.rtf", u"letter.docx", u"letter.txt"}) {
            EXPECT_TRUE(Press(f.txtFileName, Key::F(3)));
            EXPECT_EQ(f.txtFileName.Text.Get(), wanted);
        }
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.*");
        f.txtFileName.Type(u"my.old letter.txt");
        EXPECT_TRUE(Press(f.txtFileName, Key::F(3), Mask::Ctrl));
        EXPECT_EQ(f.txtFileName.Text.Get(), u"my.docx");
        EXPECT_EQ(f.txtSearchSpec.Text.Get(), u"*.docx");
        t.clock.Set({2026, 11, 21, 10, 0, 0});
        EXPECT_TRUE(Press(f.txtFileName, 'T', Mask::Ctrl));
        EXPECT_EQ(f.txtFileName.Text.Get(), u"my_(21-Nov-2026).docx");
    });
}

TEST_P(frmGetFileFromTreeTest, TheNameChangesItsCase) {
    Open([](frmGetFileFromTree& f) {
        f.txtFileName.Type(u"war and peace");
        EXPECT_TRUE(Press(f.txtFileName, 'U', Mask::Ctrl));
        EXPECT_EQ(f.txtFileName.Text.Get(), u"war_and_peace");
        f.txtFileName.Type(u"war and peace");
        EXPECT_TRUE(Press(f.txtFileName, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.txtFileName.Text.Get(), u"War_and_Peace");
    });
}

TEST_P(frmGetFileFromTreeTest, TheLineKeepsTheKeysOfAField) {
    Open([](frmGetFileFromTree& f) {
        for (const int code : {'A', 'C', 'V', 'X', 'Z'})
            EXPECT_FALSE(Press(f.txtFileName, code, Mask::Ctrl));
        for (const int code : {Key::Space, Key::Delete, Key::Home, Key::Return})
            EXPECT_FALSE(Press(f.txtFileName, code));
        EXPECT_TRUE(Press(f.txtFileName, 'X', Mask::Alt));
    });
}

TEST_P(frmGetFileFromTreeTest, EscInTheLineClosesTheWindow) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_TRUE(Press(f.txtFileName, Key::Escape));
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, u"");
}

TEST_P(frmGetFileFromTreeTest, ANameIsEnteredForASaveOnly) {
    Open([this](frmGetFileFromTree& f) {
        t.user.Answer({u"Only available when saving files.", MessageIcon::Information}, Answer::Ok);
        EXPECT_TRUE(Press(f.ListView1, Key::F(1)));
    });
}

TEST_P(frmGetFileFromTreeTest, AnEnteredNameStandsInTheLine) {
    OpenToSave([this](frmGetFileFromTree& f) {
        t.user.On<frmEnterFileName>([&f](frmEnterFileName& enter) {
            enter.txtFileName.Type(u"letter.rtf");
            EXPECT_EQ(f.txtFileName.Text.Get(), u"letter.rtf");
            enter.OfficeMenu1.Choose("mnuAccept");
        });
        EXPECT_TRUE(Press(f.txtFileName, Key::F(1)));
        EXPECT_TRUE(f.Shown());
    });
}

TEST_P(frmGetFileFromTreeTest, AnEnteredNameMayBeSavedAtOnce) {
    OpenToSave([this](frmGetFileFromTree& f) {
        t.user.On<frmEnterFileName>([](frmEnterFileName& enter) {
            enter.txtFileName.Type(u"letter.rtf");
            enter.OfficeMenu1.Choose("mnuAcceptSave");
        });
        f.cmdEnterFileName.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/letter.rtf"));
    EXPECT_EQ(app.DialogResult, 1);
}

// Recent files.

TEST_P(frmGetFileFromTreeTest, ARecentFileIsLoaded) {
    request.CurrentFolderHint = At(u"left over");
    t.files.AddFile(At(u"Data/sub/picture.jpg"));
    main.onFileList = [this] {
        EXPECT_EQ(request.CurrentFolderHint, u"");
        request.ListerFolder = At(u"Data/sub");
        app.Exchange<FileOperation>().FileOpName = u"recent.tbx";
        app.DialogResult = 1;
    };
    OpenToSave([](frmGetFileFromTree& f) {
        f.OfficeMenu1.Choose("mnuFile_Recent");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ListerMode, 0);
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/sub/recent.tbx"));
    EXPECT_EQ(request.ChosenFileCount, 1);
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_P(frmGetFileFromTreeTest, TheFolderOfARecentFileIsShown) {
    main.onFileList = [this] {
        request.CurrentFolderHint = At(u"Data/sub");
        app.DialogResult = 99;
    };
    Open([this](frmGetFileFromTree& f) {
        f.OfficeMenu1.Choose("mnuFile_Recent");
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(frmGetFileFromTreeTest, ANewTextClosesTheWindow) {
    main.onFileList = [this] { app.DialogResult = 11; };
    Open([](frmGetFileFromTree& f) {
        f.OfficeMenu1.Choose("mnuFile_Recent");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, u"");
}

TEST_P(frmGetFileFromTreeTest, TheRecentFilesMayBeLeftAlone) {
    Open([](frmGetFileFromTree& f) {
        f.OfficeMenu1.Choose("mnuFile_Recent");
        EXPECT_TRUE(f.Shown());
    });
}

// Closing.

TEST_P(frmGetFileFromTreeTest, ACancelLeavesNothingChosen) {
    request.ChosenFilePath = u"left over";
    app.DialogResult = 1;
    Open([](frmGetFileFromTree& f) {
        f.ListView1.Select(2);
        f.OfficeMenu1.Choose("mnuFile_Cancel");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(app.DialogResult, 0);
}

TEST_P(frmGetFileFromTreeTest, TheCloseBoxCancels) {
    request.ChosenFilePath = u"left over";
    Open([](frmGetFileFromTree& f) { f.Close(); });
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(app.DialogResult, 0);
}

// Files and folders that are dropped.

TEST_P(frmGetFileFromTreeTest, ADroppedFolderIsShown) {
    Open([this](frmGetFileFromTree& f) {
        f.FilesDropped({At(u"Data/sub")});
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
    });
}

TEST_P(frmGetFileFromTreeTest, ADroppedFileIsShownInItsFolder) {
    app.Settings.TreeFormLastPath = At(u"Data/sub");
    Open([this](frmGetFileFromTree& f) {
        f.FilesDropped({At(u"Data/b.tbx")});
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        EXPECT_EQ(f.ListView1.Current(), 2);
    });
}

TEST_P(frmGetFileFromTreeTest, MarkedFilesAreDraggedByTheirPaths) {
    Open([this](frmGetFileFromTree& f) {
        Mark(f, u"a.txt", u"b.tbx");
        EXPECT_THAT(f.ListView1.FilesToDrag(), ElementsAre(At(u"Data/a.txt"), At(u"Data/b.tbx")));
    });
}

} // namespace
} // namespace korvane
