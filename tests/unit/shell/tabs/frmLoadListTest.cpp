#include "shell/tabs/frmLoadList.h"

#include "context/exchange/ListerRequest.h"
#include "grid/GridStore.h"
#include "support/MenuEntries.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

const Text kA = u"C:\\Data\\a.tbx";
const Text kB = u"C:\\Data\\b.tbx";

class LoadListTest : public testing::Test {
protected:
    void OpenBoth() {
        for (const Text& path : {kA, kB}) {
            p.files.AddFile(path, std::string(1234, 'x'));
            p.files.SetModified(path, {2026, 3, 1, 14, 5, 9});
        }
        p.StartWith({}, kA);
        p.Open(kB);
    }
    void InList(const std::function<void(frmLoadList&)>& act) {
        p.user.On<frmLoadList>([&act](frmLoadList& f) {
            act(f);
            if (f.Shown()) f.cmdExit.Press();
        });
        p.Choose("mnuFile_AreLoaded");
    }
    static bool Press(frmLoadList& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.FileTree.KeyDown(key);
        return key.consumed;
    }
    static std::vector<Text> Texts(const frmLoadList& f) {
        std::vector<Text> texts;
        for (const TreeNode* node : f.FileTree.Nodes())
            texts.push_back(node->text);
        return texts;
    }

    TestProgram p;
};

TEST_F(LoadListTest, WithoutATabItShowsItsRootAlone) {
    p.StartWith({});
    InList([](frmLoadList& f) {
        EXPECT_EQ(f.Caption.Get(), u"Following asterisks mean text has been altered");
        EXPECT_EQ(Texts(f), std::vector<Text>{u" Open files"});
        f.cmdSwitch.Press();
    });
}

TEST_F(LoadListTest, ShowsTheDateAndTime) {
    p.clock.Set({2026, 11, 21, 9, 8, 7});
    p.StartWith({});
    InList([](frmLoadList& f) {
        EXPECT_EQ(f.Label1.Caption.Get(), u" Date/time:  Saturday, Nov 21 2026, 09:08");
    });
}

TEST_F(LoadListTest, ShowsTheTabsShortOrLong) {
    OpenBoth();
    const Text info = u"  [ disk size: 1,234; modified: 01.03.2026, 14:05 ]";
    InList([this, &info](frmLoadList& f) {
        EXPECT_EQ(Texts(f), (std::vector<Text>{u" Open files", u"[1]  a.tbx" + info, u"[2]  b.tbx" + info}));
        f.cmdToggleForm.Press();
        EXPECT_EQ(p.app.Settings.LoadListLongForm, 1);
        EXPECT_EQ(Texts(f), (std::vector<Text>{u" Open files", u"[1]  " + kA + info, u"[2]  " + kB + info}));
        EXPECT_TRUE(Press(f, 'D', Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(p.app.Settings.LoadListLongForm, 0);
    });
}

TEST_F(LoadListTest, TabsAreCountedAndFoundByTheirSlots) {
    OpenBoth();
    p.Main().MDITabs1.CloseWanted(p.Tab(1));
    InList([](frmLoadList& f) {
        EXPECT_TRUE(Texts(f).at(1).starts_with(u"[1]  b.tbx"));
        EXPECT_EQ(f.FileTree.Nodes().at(1)->key, u"X_2");
    });
}

TEST_F(LoadListTest, AnAlteredTextHasAsterisks) {
    OpenBoth();
    p.AllTabs().TabState[1].Dirty = -1;
    InList([](frmLoadList& f) {
        EXPECT_TRUE(Texts(f).at(1).starts_with(u"[1]  a.tbx   * * *  [ disk size: "));
    });
}

TEST_F(LoadListTest, SwitchesToTheSelectedTab) {
    OpenBoth();
    const std::vector<std::function<void(frmLoadList&)>> ways{
        [](frmLoadList& f) { f.cmdSwitch.Press(); },
        [](frmLoadList& f) { f.OfficeMenu1.Choose("mnuSwitch"); },
        [](frmLoadList& f) { EXPECT_TRUE(Press(f, Key::Return)); },
        [](frmLoadList& f) { f.FileTree.DoubleClick(u"X_1"); },
    };
    for (const auto& way : ways) {
        p.AllTabs().Show(2);
        FocusCounter focus(p.Tab(1).GridStore());
        InList([&way](frmLoadList& f) {
            EXPECT_EQ(f.FileTree.Selected(), u"X_2");
            f.FileTree.Select(u"X_1");
            way(f);
            EXPECT_FALSE(f.Shown());
        });
        EXPECT_EQ(p.AllTabs().Active(), &p.Tab(1));
        EXPECT_GT(focus.Count(), 0);
    }
}

TEST_F(LoadListTest, TheRootSwitchesNowhere) {
    OpenBoth();
    InList([](frmLoadList& f) {
        f.FileTree.Select(u"Root");
        f.cmdSwitch.Press();
    });
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(2));
}

TEST_F(LoadListTest, PutsTheCaptionsInTheClipboard) {
    OpenBoth();
    const Message hint{u"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option.",
                       MessageIcon::Information};
    InList([this, &hint](frmLoadList& f) {
        p.user.Answer(hint, Answer::Ok);
        f.cmdToClip.Press();
        EXPECT_EQ(p.clipboard.GetText(), u"a.tbx\r\nb.tbx\r\n");
        p.user.Answer(hint, Answer::Ok);
        EXPECT_TRUE(Press(f, 'C', Mask::Ctrl));
    });
}

TEST_F(LoadListTest, ExploresTheFolderOfTheSelectedTab) {
    OpenBoth();
    InList([](frmLoadList& f) {
        f.cmdExplorer.Press();
        EXPECT_TRUE(Press(f, Key::F(9), Mask::Ctrl | Mask::Alt));
        f.OfficeMenu1.Choose("mnuExpolorer");
    });
    const OpenRequest request{u"explore", u"C:\\Data", u"", u"C:\\Data"};
    EXPECT_EQ(p.shell.Opened(), (std::vector<OpenRequest>{request, request, request}));
}

// Kept for compatibility: explorer-entry-misspelt.
TEST_F(LoadListTest, HasItsMenuAndToolTipsOneNameMisspelt) {
    p.StartWith({});
    const frmLoadList f(p.app, p.AllTabs(), p.Main());
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuSwitch", u"&Switch to text"},
                                                 {"mnuClipList", u"List to clip&board"},
                                                 {"mnuExpolorer", u"E&xplorer"},
                                                 {"mnuDirLister", u"Directory &lister"},
                                                 {"mnuExit", u"&Close"},
                                                 {"mnuToggle", u"Long/short &display"}}));
    EXPECT_EQ(f.cmdSwitch.ToolTipText.Get(), u"Switch to selected text");
    EXPECT_EQ(f.cmdToClip.ToolTipText.Get(), u"List to clipboard");
    EXPECT_EQ(f.cmdToggleForm.ToolTipText.Get(), u"Toggle long / short display");
    EXPECT_EQ(f.cmdExplorer.ToolTipText.Get(), u"Windows Explorer");
    EXPECT_EQ(f.cmdDirLister.ToolTipText.Get(), u"Directory lister");
    EXPECT_EQ(f.cmdCentreOnScreen.ToolTipText.Get(), u"Centre window on screen");
    EXPECT_EQ(f.cmdExit.ToolTipText.Get(), u"Close window");
}

TEST_F(LoadListTest, TheMenuDoesAsTheButtonsDo) {
    OpenBoth();
    InList([this](frmLoadList& f) {
        p.user.Answer(Answer::Ok);
        f.OfficeMenu1.Choose("mnuClipList");
        EXPECT_EQ(p.clipboard.GetText(), u"a.tbx\r\nb.tbx\r\n");
        f.OfficeMenu1.Choose("mnuToggle");
        EXPECT_EQ(p.app.Settings.LoadListLongForm, 1);
        f.OfficeMenu1.Choose("mnuExit");
        EXPECT_FALSE(f.Shown());
    });
}

TEST_F(LoadListTest, TheDirectoryListerComesByButtonMenuAndKey) {
    p.StartWith({});
    InList([this](frmLoadList& f) {
        for (int i = 0; i < 3; ++i)
            p.user.CancelChooser();
        f.cmdDirLister.Press();
        f.OfficeMenu1.Choose("mnuDirLister");
        EXPECT_TRUE(Press(f, Key::F(2)));
    });
    for (const ListerRequest& request : p.user.Requests())
        EXPECT_EQ(request.FileDialogCaption, u"Directory lister");
}

TEST_F(LoadListTest, ATabWithoutAFileHasNeitherSizeNorDate) {
    p.StartWith({});
    p.AllTabs().AddNewTab();
    InList([](frmLoadList& f) {
        EXPECT_EQ(Texts(f).at(1), u"[1]  Untitled_1.tbx  [ disk size: ; modified:  ]");
    });
}

TEST_F(LoadListTest, TheRootHasNoFolderToExplore) {
    OpenBoth();
    InList([](frmLoadList& f) {
        f.FileTree.Select(u"Root");
        f.cmdExplorer.Press();
    });
    EXPECT_TRUE(p.shell.Opened().empty());
}

TEST_F(LoadListTest, TheChosenTabHasTheKeyboardWhateverComesInMeanwhile) {
    OpenBoth();
    p.AddTable(u"C:\\Data\\c.tbx", {"c"});
    InList([this](frmLoadList& f) {
        f.FileTree.Select(u"X_1");
        f.cmdSwitch.Press();
        p.screen.QueueMessage([] {});
        p.screen.QueueMessage([this] { p.instance.Arrive(u"C:\\Data\\c.tbx"); });
    });
    EXPECT_EQ(p.Captions().size(), 3u);
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(1));
}

TEST_F(LoadListTest, ATabThatClosesMeanwhileIsNotSwitchedTo) {
    OpenBoth();
    InList([this](frmLoadList& f) {
        f.FileTree.Select(u"X_1");
        f.cmdSwitch.Press();
        p.screen.QueueMessage([this] { p.Main().MDITabs1.CloseWanted(p.Tab(1)); });
    });
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(2));
}

TEST_F(LoadListTest, LettersCountWithCtrlAndWhateverElse) {
    OpenBoth();
    InList([this](frmLoadList& f) {
        EXPECT_FALSE(Press(f, 'D'));
        EXPECT_FALSE(Press(f, Key::F(9)));
        for (const int others : {Mask::None, Mask::Shift, Mask::Alt, Mask::Shift | Mask::Alt}) {
            p.user.Answer(Answer::Ok);
            EXPECT_TRUE(Press(f, 'C', Mask::Ctrl | others));
            EXPECT_TRUE(Press(f, Key::F(9), Mask::Ctrl | others));
        }
    });
    EXPECT_EQ(p.shell.Opened().size(), 4u);
}

TEST_F(LoadListTest, CentresWithTheHeightOfTheScreen) {
    p.screen.SetWorkArea({Twips{100}, Twips{200}, Twips{20000}, Twips{10000}});
    p.StartWith({});
    InList([](frmLoadList& f) {
        f.cmdCentreOnScreen.Press();
        EXPECT_EQ(f.Top.Get(), Twips{200});
        EXPECT_EQ(f.Height.Get(), Twips{10000});
        EXPECT_EQ(f.Left.Get(), Twips{100 + (20000 - 4800) / 2});
    });
}

TEST_F(LoadListTest, KeepsItsPlace) {
    p.StartWith({});
    InList([](frmLoadList& f) {
        EXPECT_EQ(f.Left.Get(), Twips{600});
        EXPECT_EQ(f.Width.Get(), Twips{4800});
        f.Left = Twips{1000};
        f.Top = Twips{2000};
        f.Width = Twips{5000};
        f.Height = Twips{4000};
    });
    EXPECT_EQ(p.app.Settings.LoadListLeft, 1000);
    EXPECT_EQ(p.app.Settings.LoadListTop, 2000);
    EXPECT_EQ(p.app.Settings.LoadListWidth, 5000);
    EXPECT_EQ(p.app.Settings.LoadListHeight, 4000);
    InList([](frmLoadList& f) { EXPECT_EQ(f.Left.Get(), Twips{1000}); });
}

TEST_F(LoadListTest, EscapeAndTheClearKeyClose) {
    p.StartWith({});
    for (const int code : {Key::Escape, Key::Clear}) {
        InList([code](frmLoadList& f) {
            EXPECT_TRUE(Press(f, code));
            EXPECT_FALSE(f.Shown());
        });
    }
}

TEST_F(LoadListTest, KeysWithoutALetterCountAloneOnly) {
    OpenBoth();
    InList([](frmLoadList& f) {
        for (const int code : {Key::Escape, Key::Clear, Key::Return, Key::F(2)}) {
            for (int mask = Mask::Shift; mask <= (Mask::Shift | Mask::Ctrl | Mask::Alt); ++mask)
                EXPECT_FALSE(Press(f, code, mask)) << code << " with " << mask;
        }
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(f.SwitchTarget, -1);
    });
    EXPECT_EQ(p.user.Requests().size(), 1u) << "the chooser was for the second file alone";
}

TEST_F(LoadListTest, DocksByKeyAndLeavesOtherKeysAlone) {
    p.StartWith({});
    p.Main().Left = Twips{6000};
    InList([](frmLoadList& f) {
        EXPECT_TRUE(Press(f, 'L', Mask::Ctrl));
        EXPECT_EQ(f.Width.Get(), Twips{6000});
        EXPECT_FALSE(Press(f, 'C'));
        EXPECT_TRUE(f.Shown());
    });
}

} // namespace
} // namespace korvane
