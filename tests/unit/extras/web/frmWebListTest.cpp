#include "extras/web/frmWebList.h"

#include "context/exchange/ListerRequest.h"
#include "support/DesignerFile.h"
#include "support/MenuEntries.h"
#include "unit/extras/web/WebListStage.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WebListTest : public WebListStage {};

// ---- Opening -------------------------------------------------------------------------------------------

TEST_F(WebListTest, ShowsTheRowsAndGroupsOfTheFile) {
    InWindow([this](frmWebList& f) {
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_THAT(Urls(f), ElementsAre(u"http://a", u"http://b", u"http://c"));
        EXPECT_THAT(Checks(f), ElementsAre(0, 1, 0));
        EXPECT_THAT(Groups(f), ElementsAre(u"http://a http://b", u"http://c"));
        EXPECT_EQ(f.ListView1.KeyAt(2), u"K_ 2");
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_THAT(f.ListView1.SelectedRows(), ElementsAre(1));
        EXPECT_EQ(f.Caption.Get(), u"Website list :  " + kList + u"  ( 3 entries )");
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_EQ(f.ListDirty, 0);
        EXPECT_FALSE(f.frameGroup.Visible);
        EXPECT_FALSE(f.Frame1.Visible);
    });
}

TEST_F(WebListTest, WithoutAFileItIsEmptyAndSaysNothing) {
    t.app.Settings.WebListFile.clear();
    InWindow([](frmWebList& f) {
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_EQ(f.Caption.Get(), u"Website list :    ( 0 entries )");
    });
}

TEST_F(WebListTest, AFileThatCannotBeReadIsReported) {
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    t.user.Answer({u"Can't open file: " + kList, MessageIcon::Exclamation}, Answer::Ok);
    InWindow([](frmWebList& f) { EXPECT_EQ(f.ListView1.Count(), 0); });
    EXPECT_EQ(Written(), kThree);
}

TEST_F(WebListTest, AFileWithoutTheStarsHasRowsOnly) {
    With("A\r\nhttp://a\r\n1\r\n", [](frmWebList& f) {
        EXPECT_THAT(Names(f), ElementsAre(u"A"));
        EXPECT_THAT(Groups(f), IsEmpty());
    });
}

TEST_F(WebListTest, TheBrowsersAreThoseOfTheSettings) {
    t.app.Settings.WebListB = u"two";
    t.app.Settings.WebListC = u"three";
    t.app.Settings.WebListD = 3;
    InWindow([this](frmWebList& f) {
        EXPECT_EQ(f.prgText1.Text.Get(), kBrowser);
        EXPECT_EQ(f.prgText2.Text.Get(), u"two");
        EXPECT_EQ(f.prgText3.Text.Get(), u"three");
        EXPECT_TRUE(f.Option3.Value);
        f.prgText1.Type(u"1");
        f.prgText2.Type(u"2");
        f.prgText3.Type(u"3");
        f.Option2.Press();
    });
    EXPECT_EQ(t.app.Settings.WebListA, u"1");
    EXPECT_EQ(t.app.Settings.WebListB, u"2");
    EXPECT_EQ(t.app.Settings.WebListC, u"3");
    EXPECT_EQ(t.app.Settings.WebListD, 2);
}

TEST_F(WebListTest, ANumberThatIsNoBrowserIsTheNearestOne) {
    for (const auto& [number, chosen] :
         {std::pair{0, &frmWebList::Option1}, {-5, &frmWebList::Option1}, {99, &frmWebList::Option3}}) {
        t.app.Settings.WebListD = static_cast<std::int16_t>(number);
        InWindow([option = chosen](frmWebList& f) { EXPECT_TRUE((f.*option).Value); });
    }
}

TEST_F(WebListTest, ItsPlaceIsKept) {
    Settings& settings = t.app.Settings;
    settings.WebListGeo1 = 700;
    settings.WebListGeo2 = 800;
    settings.WebListGeo3 = 6000;
    settings.WebListGeo4 = 9000;
    InWindow([](frmWebList& f) {
        EXPECT_EQ(f.Top.Get(), Twips{700});
        EXPECT_EQ(f.Left.Get(), Twips{800});
        EXPECT_EQ(f.Height.Get(), Twips{6000});
        EXPECT_EQ(f.Width.Get(), Twips{9000});
        EXPECT_EQ(f.ListView1.ColumnWidth(1), Twips{2800});
        f.Top = Twips{900};
        f.Left = Twips{1000};
        f.Height = Twips{6100};
        f.Width = Twips{6600};
        f.Resize();
        EXPECT_EQ(f.ListView1.ColumnWidth(2), Twips{3600});
    });
    EXPECT_EQ(settings.WebListGeo1, 900);
    EXPECT_EQ(settings.WebListGeo2, 1000);
    EXPECT_EQ(settings.WebListGeo3, 6100);
    EXPECT_EQ(settings.WebListGeo4, 6600);
}

TEST_F(WebListTest, HasItsMenus) {
    InWindow([](frmWebList& f) {
        EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuLoad", u"&Load checked items"},
                                                     {"mnuFileLine1", u""},
                                                     {"mnuOpenList", u"&Open list"},
                                                     {"mnuSaveList", u"Sa&ve list"},
                                                     {"mnuInfo", u"&Info about list"},
                                                     {"mnuFileLine2", u""},
                                                     {"mnuExit", u"E&xit"},
                                                     {"mnuEditItem", u"&Edit item"},
                                                     {"mnuEditLine1", u""},
                                                     {"mnuAddItem", u"&Add item"},
                                                     {"mnuDuplicate", u"Du&plicate"},
                                                     {"mnuEditLine2", u""},
                                                     {"mnuDelete", u"De&lete"},
                                                     {"mnuEditLine3", u""},
                                                     {"mnuInsertSeparator", u"&Insert separator"},
                                                     {"mnuMoveUp", u"Move item &up"},
                                                     {"mnuMoveDown", u"Move item &down"},
                                                     {"mnuAddToGroup", u"&Add to group"},
                                                     {"mnuGroupWin", u"&Open group window"},
                                                     {"mnuCustomBrowser", u"Specify custom browser"}}));
        EXPECT_THAT(TitlesOf(f.OfficeMenu1), ElementsAre(u"&File", u"&Edit", u"&Group", u"&Misc"));
        ExpectLook(f, "extras/web", {});
    });
}

TEST_F(WebListTest, HasItsTips) {
    InWindow([](frmWebList& f) {
        for (const auto& [button, tip] :
             std::vector<std::pair<CommandButton*, Text>>{{&f.cmdCloseWindow, u"Exit this level"},
                                                          {&f.cmdOpenList, u"Open list of websites"},
                                                          {&f.cmdSaveList, u"Save list to disk"},
                                                          {&f.cmdInfo, u"Info on list"},
                                                          {&f.cmdAddItem, u"Add item to list"},
                                                          {&f.cmdDuplicate, u"Duplicate item in list"},
                                                          {&f.cmdDelete, u"Delete item in list"},
                                                          {&f.cmdAddToGroup, u"Add to group"},
                                                          {&f.cmdGroupWin, u"Open group window"},
                                                          {&f.cmdArrowUp, u"Move item up in list"},
                                                          {&f.cmdArrowDown, u"Move item down in list"},
                                                          {&f.cmdLoadItem, u"Load checked item(s) in list"}})
            EXPECT_EQ(button->ToolTipText.Get(), tip) << button->Name();
    });
}

TEST_F(WebListTest, HasItsCaptions) {
    InWindow([](frmWebList& f) {
        EXPECT_EQ(f.frameGroup.Caption.Get(), u" Lists of websites for group loading ");
        EXPECT_EQ(f.btnEmptyList.Caption.Get(), u"&Empty");
        EXPECT_EQ(f.btnCloseGroup.Caption.Get(), u"Cl&ose");
        EXPECT_EQ(f.Frame2.Caption.Get(), u" Select browser to use ");
        EXPECT_EQ(f.btnLoad.Caption.Get(), u"&Load");
        EXPECT_EQ(f.btnCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(f.Label1.Caption.Get(), u"Name of website");
        EXPECT_EQ(f.Label2.Caption.Get(), u"URL of website");
        EXPECT_EQ(f.btnAccept.Caption.Get(), u"&Accept");
        EXPECT_EQ(f.btnReject.Caption.Get(), u"&Reject");
        EXPECT_EQ(f.ListView1.Columns.Get()[0].header, u"Name");
        EXPECT_EQ(f.ListView1.Columns.Get()[1].header, u"Website URL");
    });
}

// ---- Loading -------------------------------------------------------------------------------------------

TEST_F(WebListTest, LoadsTheCheckedRowsWithOneCommandLine) {
    InWindow([](frmWebList& f) {
        Check(f, {1, 3});
        f.cmdLoadItem.Press();
        f.btnLoad.Press();
        f.OfficeMenu1.Choose("mnuLoad");
    });
    const ProgramStart both = Browser({u"http://a", u"http://c"});
    EXPECT_THAT(t.shell.Starts(), ElementsAre(both, both, both));
}

TEST_F(WebListTest, WithNothingCheckedTheCurrentRowIsLoaded) {
    InWindow([](frmWebList& f) {
        Check(f, {});
        f.ListView1.Select(2);
        f.cmdLoadItem.Press();
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"http://b"})));
}

TEST_F(WebListTest, ReturnAndADoubleClickLoadTheCurrentRowWhateverIsChecked) {
    InWindow([](frmWebList& f) {
        Check(f, {1, 2});
        f.ListView1.Select(3);
        EXPECT_TRUE(Press(f, f.ListView1, Key::Return));
        EXPECT_EQ(f.LoadByEnter, 0);
        f.ListView1.DoubleClick(1);
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"http://c"}), Browser({u"http://a"})));
}

TEST_F(WebListTest, TheQuestionComesFromFourOn) {
    With("A\r\na\r\n1\r\nB\r\nb\r\n1\r\nC\r\nc\r\n1\r\nD\r\nd\r\n0\r\n", [this](frmWebList& f) {
        f.cmdLoadItem.Press();
        EXPECT_EQ(t.shell.Starts().size(), 1U);
        Check(f, {1, 2, 3, 4});
        t.user.Answer(Question(u"Load 4 selected websites from list?"), Answer::No);
        f.cmdLoadItem.Press();
        EXPECT_EQ(t.shell.Starts().size(), 1U);
        t.user.Answer(Answer::Yes);
        f.cmdLoadItem.Press();
    });
    EXPECT_EQ(t.shell.Starts().back(), Browser({u"a", u"b", u"c", u"d"}));
}

// Kept for compatibility: question-counts-checked-websites.
TEST_F(WebListTest, ReturnAsksAboutTheCheckedRowsAndLoadsOne) {
    With("A\r\na\r\n1\r\nB\r\nb\r\n1\r\nC\r\nc\r\n1\r\nD\r\nd\r\n1\r\n", [this](frmWebList& f) {
        t.user.Answer(Question(u"Load 4 selected websites from list?"), Answer::No);
        Press(f, f.ListView1, Key::Return);
        EXPECT_EQ(f.LoadByEnter, 0);
        t.user.Answer(Answer::Yes);
        Press(f, f.ListView1, Key::Return);
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"a"})));
}

TEST_F(WebListTest, SeparatorsAreNotLoaded) {
    InWindow([](frmWebList& f) {
        Check(f, {});
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        Press(f, f.ListView1, Key::Return);
        f.ListView1.SetChecked(4, true);
        f.cmdLoadItem.Press();
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(t.shell.Browsed(), IsEmpty());
}

TEST_F(WebListTest, ReturnAndADoubleClickOnASeparatorLoadNothingAndAskNothing) {
    With("A\r\na\r\n1\r\nB\r\nb\r\n1\r\nC\r\nc\r\n1\r\nD\r\nd\r\n1\r\n", [](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        Press(f, f.ListView1, Key::Return);
        EXPECT_EQ(f.LoadByEnter, 0);
        f.ListView1.DoubleClick(5);
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_F(WebListTest, TheButtonOnASeparatorLoadsTheCheckedWebsites) {
    InWindow([](frmWebList& f) {
        Check(f, {1, 3});
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        f.cmdLoadItem.Press();
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"http://a", u"http://c"})));
}

TEST_F(WebListTest, ARowWithoutAnAddressStartsNothing) {
    With("A\r\n\r\n0\r\n", [](frmWebList& f) { Press(f, f.ListView1, Key::Return); });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_F(WebListTest, AnEmptyListLoadsNothing) {
    t.app.Settings.WebListFile.clear();
    InWindow([](frmWebList& f) {
        f.cmdLoadItem.Press();
        Press(f, f.ListView1, Key::Return);
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

// Kept for compatibility: deleted-website-still-loads.
TEST_F(WebListTest, ADeletedRowThatIsCheckedIsStillLoaded) {
    InWindow([this](frmWebList& f) {
        f.ListView1.Select(2);
        t.user.Answer(Answer::Yes);
        f.cmdDelete.Press();
        f.cmdLoadItem.Press();
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"---"})));
}

TEST_F(WebListTest, TheChosenBrowserIsStartedAndKept) {
    t.files.AddFile(u"C:\\Web\\c.exe");
    InWindow([this](frmWebList& f) {
        f.prgText3.Type(u"C:\\Web\\c.exe");
        f.Option3.Press();
        f.cmdLoadItem.Press();
        EXPECT_EQ(t.app.Settings.WebListC, u"C:\\Web\\c.exe");
        EXPECT_EQ(t.app.Settings.WebListD, 3);
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\Web\\c.exe", {u"http://b"}}));
}

TEST_F(WebListTest, OnlyALoadStoresTheBrowsersBeforeTheWindowCloses) {
    With("A\r\na\r\n1\r\nB\r\nb\r\n1\r\nC\r\nc\r\n1\r\nD\r\nd\r\n1\r\n", [this](frmWebList& f) {
        f.prgText1.Type(u"mybrowser");
        f.Option2.Press();
        t.user.Answer(Answer::No);
        f.cmdLoadItem.Press();
        EXPECT_EQ(t.app.Settings.WebListA, kBrowser);
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        Check(f, {});
        f.cmdLoadItem.Press();
        EXPECT_EQ(t.app.Settings.WebListA, kBrowser);
        EXPECT_NE(t.app.Settings.WebListD, 2);
    });
    EXPECT_EQ(t.app.Settings.WebListA, u"mybrowser");
    EXPECT_EQ(t.app.Settings.WebListD, 2);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_F(WebListTest, ALoadLeavesTheCurrentDirectoryAlone) {
    t.files.AddDir(u"C:\\Elsewhere");
    t.files.ChangeDir(u"C:\\Elsewhere");
    InWindow([](frmWebList& f) { f.cmdLoadItem.Press(); });
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Elsewhere");
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_EQ(t.shell.Starts().front().window, WindowState::Normal);
}

TEST_F(WebListTest, WithoutABrowserTheDesktopsOwnTakesEachAddress) {
    t.app.Settings.WebListA = u"C:\\Gone.exe";
    InWindow([](frmWebList& f) {
        Check(f, {1, 2});
        f.cmdLoadItem.Press();
    });
    EXPECT_THAT(t.shell.Browsed(), ElementsAre(u"http://a", u"http://b"));
}

TEST_F(WebListTest, ABrowserIsPickedFromTheDisk) {
    struct Row {
        CommandButton frmWebList::*pick;
        TextBox frmWebList::*path;
        Text Settings::*setting;
    };
    for (const Row& row : {Row{&frmWebList::imgSet_1, &frmWebList::prgText1, &Settings::WebListA},
                           Row{&frmWebList::imgSet_2, &frmWebList::prgText2, &Settings::WebListB},
                           Row{&frmWebList::imgSet_3, &frmWebList::prgText3, &Settings::WebListC}}) {
        InWindow([this, &row](frmWebList& f) {
            t.user.ChooseFile(u"C:\\Web\\new.exe");
            (f.*row.pick).Press();
            EXPECT_EQ((f.*row.path).Text.Get(), u"C:\\Web\\new.exe");
            EXPECT_EQ(t.app.Settings.*row.setting, u"C:\\Web\\new.exe");
            t.user.CancelChooser();
            (f.*row.pick).Press();
            EXPECT_EQ((f.*row.path).Text.Get(), u"C:\\Web\\new.exe");
        });
        EXPECT_EQ(t.user.Requests().back().FileDialogFilter, u"*.exe");
        EXPECT_EQ(t.user.Requests().back().FileDialogCaption, u"Specify custom browser");
    }
}

TEST_F(WebListTest, TheChosenBrowserCanBecomeTheOneOfLinks) {
    const Message question = Question(u"Use selected browser below when clicking on hyperlink in text?");
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        t.app.Settings.CustomBrowserPath.clear();
        t.app.Settings.UseCustomBrowser = 7;
        InWindow([&](frmWebList& f) {
            t.user.Answer(question, answer);
            f.OfficeMenu1.Choose("mnuCustomBrowser");
        });
        EXPECT_EQ(t.app.Settings.UseCustomBrowser, answer == Answer::Yes ? 1 : 0);
        EXPECT_EQ(t.app.Settings.CustomBrowserPath, kBrowser);
    }
}

// ---- Closing -------------------------------------------------------------------------------------------

TEST_F(WebListTest, EveryWayOutLeads) {
    for (const auto& out : std::vector<std::function<void(frmWebList&)>>{
             [](frmWebList& f) { f.cmdCloseWindow.Press(); }, [](frmWebList& f) { f.btnCancel.Press(); },
             [](frmWebList& f) { f.OfficeMenu1.Choose("mnuExit"); },
             [](frmWebList& f) { Press(f, f.ListView1, Key::Escape); }}) {
        InWindow([&out](frmWebList& f) {
            out(f);
            EXPECT_FALSE(f.Shown());
        });
    }
}

TEST_F(WebListTest, AChangedListAsksBeforeItCloses) {
    const Message question = Question(u"Save list before exiting this level ? ", MessageButtons::YesNoCancel);
    InWindow([&](frmWebList& f) {
        f.cmdDuplicate.Press();
        t.user.Answer(question, Answer::Cancel);
        f.btnCancel.Press();
        EXPECT_TRUE(f.Shown());
        t.user.Answer(question, Answer::No);
        f.btnCancel.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(Written(), kThree);
}

// Kept for compatibility: cancelled-save-asks-again.
TEST_F(WebListTest, ACancelledSaveAsksAgain) {
    InWindow([this](frmWebList& f) {
        f.cmdDuplicate.Press();
        t.user.Answer(Answer::Yes);
        t.user.AnswerAfter([this] { dialog.answer = kList; }, Answer::Yes);
        f.btnCancel.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(dialog.requests.size(), 2U);
    EXPECT_NE(Written(), kThree);
}

TEST_F(WebListTest, AFailedSaveAsksAgain) {
    InWindow([this](frmWebList& f) {
        f.cmdDuplicate.Press();
        dialog.answer = kList;
        t.files.Faults().FailNth(FileStep::OpenToWrite, 1);
        t.user.Answer(Answer::Yes);
        t.user.Answer(Answer::Ok);
        t.user.Answer(Answer::Cancel);
        f.btnCancel.Press();
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(f.ListDirty, 1);
        EXPECT_EQ(Written(), kThree);
        t.user.Answer(Answer::Yes);
        f.btnCancel.Press();
        EXPECT_FALSE(f.Shown());
        EXPECT_NE(Written(), kThree);
    });
    EXPECT_EQ(t.user.Messages().size(), 4U);
}

// ---- Keys ----------------------------------------------------------------------------------------------

TEST_F(WebListTest, DocksBesideTheMainWindow) {
    main.window.Left = Twips{6000};
    main.window.Top = Twips{100};
    main.window.Width = Twips{4000};
    main.window.Height = Twips{5000};
    InWindow([](frmWebList& f) {
        for (const int mask : {Mask::Ctrl, Mask::Ctrl | Mask::Alt, Mask::Ctrl | Mask::Shift}) {
            f.Top = Twips{0};
            EXPECT_TRUE(Press(f, f.ListView1, 'L', mask));
            EXPECT_EQ(f.Top.Get(), Twips{100});
        }
        for (const int mask : {Mask::Ctrl, Mask::Ctrl | Mask::Alt, Mask::Ctrl | Mask::Shift}) {
            f.Left = Twips{0};
            EXPECT_TRUE(Press(f, f.ListView1, 'R', mask));
            EXPECT_EQ(f.Left.Get(), Twips{10000});
        }
        EXPECT_TRUE(Press(f, f.ListView1, Key::F(2), Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(f.Width.Get(), Twips{3600});
        EXPECT_EQ(f.Left.Get(), Twips{6200});
    });
}

} // namespace
} // namespace korvane
