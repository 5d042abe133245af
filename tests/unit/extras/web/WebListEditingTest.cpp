// The rows and the file of the list of websites.

#include "context/exchange/ListerRequest.h"
#include "unit/extras/web/WebListStage.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WebListEditingTest : public WebListStage {};

// ---- Editing -------------------------------------------------------------------------------------------

TEST_F(WebListEditingTest, ARowIsEditedInTheFields) {
    InWindow([](frmWebList& f) {
        f.ListView1.Select(2);
        f.OfficeMenu1.Choose("mnuEditItem");
        EXPECT_TRUE(f.Frame1.Visible);
        EXPECT_EQ(f.Frame1.Caption.Get(), u" Text for name && website ");
        EXPECT_EQ(f.txtName.Text.Get(), u"B");
        EXPECT_EQ(f.txtSite.Text.Get(), u"http://b");
        EXPECT_EQ(f.Focused(), &f.txtName);
        EXPECT_FALSE(f.ListView1.Visible);
        f.txtName.Text = u"Bee";
        f.txtSite.Text = u"http://bee";
        f.btnAccept.Press();
        EXPECT_FALSE(f.Frame1.Visible);
        EXPECT_TRUE(f.ListView1.Visible);
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"Bee", u"C"));
        EXPECT_EQ(f.ListView1.TextAt(2, 2), u"http://bee");
        EXPECT_EQ(f.ListDirty, 1);
    });
}

TEST_F(WebListEditingTest, RejectedFieldsChangeNothing) {
    InWindow([](frmWebList& f) {
        for (const bool byKey : {false, true}) {
            f.OfficeMenu1.Choose("mnuEditItem");
            f.txtName.Text = u"x";
            if (byKey)
                Press(f, f.txtName, Key::Escape);
            else
                f.btnReject.Press();
            EXPECT_FALSE(f.Frame1.Visible);
            EXPECT_EQ(f.ListView1.TextAt(1, 1), u"A");
            EXPECT_EQ(f.ListDirty, 0);
        }
        EXPECT_TRUE(f.Shown());
    });
}

TEST_F(WebListEditingTest, ReturnInTheFieldsAccepts) {
    InWindow([](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuEditItem");
        f.txtSite.Text = u"http://x";
        EXPECT_TRUE(Press(f, f.txtSite, Key::Return));
        EXPECT_EQ(f.ListView1.TextAt(1, 2), u"http://x");
    });
}

TEST_F(WebListEditingTest, NothingIsEditedInAnEmptyList) {
    t.app.Settings.WebListFile.clear();
    InWindow([](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuEditItem");
        EXPECT_FALSE(f.Frame1.Visible);
        f.cmdDuplicate.Press();
        f.cmdArrowUp.Press();
        f.cmdArrowDown.Press();
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_EQ(f.ListDirty, 0);
    });
}

// Kept for compatibility: website-moves-leave-checks.
TEST_F(WebListEditingTest, AnAddedRowMovesTheTextsDownAndLeavesTheChecks) {
    InWindow([this](frmWebList& f) {
        f.ListView1.Select(2);
        f.cmdAddItem.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"", u"B", u"C"));
        EXPECT_THAT(Urls(f), ElementsAre(u"http://a", u"", u"http://b", u"http://c"));
        EXPECT_THAT(Checks(f), ElementsAre(0, 1, 0, 0));
        EXPECT_EQ(f.ListView1.KeyAt(4), u"K_ 4");
        EXPECT_EQ(f.ListView1.Current(), 2);
        EXPECT_TRUE(f.Frame1.Visible);
        EXPECT_EQ(f.txtName.Text.Get(), u"");
        EXPECT_EQ(f.ListDirty, 1);
        EXPECT_EQ(f.Caption.Get(), u"Website list :  " + kList + u"  ( 4 entries )");
    });
}

TEST_F(WebListEditingTest, AnAddedRowIsShown) {
    InWindow([](frmWebList& f) {
        f.ListView1.Select(2);
        while (f.ListView1.TakeWantedRow()) {
        }
        f.cmdAddItem.Press();
        EXPECT_EQ(f.ListView1.TakeWantedRow(), 1);
    });
}

TEST_F(WebListEditingTest, ARowIsAddedToAnEmptyList) {
    t.app.Settings.WebListFile.clear();
    InWindow([](frmWebList& f) {
        EXPECT_TRUE(Press(f, f.ListView1, Key::Insert));
        EXPECT_THAT(Names(f), ElementsAre(u""));
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_TRUE(f.Frame1.Visible);
    });
}

TEST_F(WebListEditingTest, ADuplicateGoesToTheEndWithoutItsCheck) {
    InWindow([](frmWebList& f) {
        f.ListView1.Select(2);
        f.cmdDuplicate.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C", u"B"));
        EXPECT_THAT(Checks(f), ElementsAre(0, 1, 0, 0));
        EXPECT_EQ(f.ListView1.TextAt(4, 2), u"http://b");
        EXPECT_EQ(f.ListView1.Current(), 4);
        EXPECT_THAT(f.ListView1.SelectedRows(), ElementsAre(4));
        EXPECT_EQ(f.ListDirty, 1);
    });
}

TEST_F(WebListEditingTest, ASeparatorGoesToTheEnd) {
    InWindow([this](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C", kMarker));
        EXPECT_EQ(f.ListView1.TextAt(4, 2), u"");
        EXPECT_EQ(f.ListView1.Current(), 4);
        EXPECT_EQ(f.ListDirty, 1);
    });
}

TEST_F(WebListEditingTest, DeletedRowsStayUntilTheNextReading) {
    InWindow([this](frmWebList& f) {
        f.ListView1.Select(1);
        f.ListView1.SetSelected(3, true);
        t.user.Answer(Question(u"Delete 2 items from list ? ", MessageButtons::YesNo, 2), Answer::Yes);
        EXPECT_TRUE(Press(f, f.ListView1, Key::Delete));
        EXPECT_THAT(Names(f), ElementsAre(u"---", u"B", u"---"));
        EXPECT_THAT(Urls(f), ElementsAre(u"---", u"http://b", u"---"));
        EXPECT_EQ(f.ListDirty, 1);
        dialog.answer = kList;
        f.cmdSaveList.Press();
        EXPECT_EQ(Written(), "B\r\nhttp://b\r\n1\r\n***\r\nhttp://a http://b\r\nhttp://c\r\n\r\n");
    });
    InWindow([](frmWebList& f) { EXPECT_THAT(Names(f), ElementsAre(u"B")); });
}

TEST_F(WebListEditingTest, ADeletionClosesTheFieldsOfAnEntry) {
    InWindow([this](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuEditItem");
        t.user.Answer(Answer::Yes);
        f.OfficeMenu1.Choose("mnuDelete");
        EXPECT_FALSE(f.Frame1.Visible);
        EXPECT_THAT(Names(f), ElementsAre(u"---", u"B", u"C"));
    });
}

TEST_F(WebListEditingTest, NewFieldsTakeThePlaceOfThoseThatAreOpen) {
    InWindow([](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuEditItem");
        f.txtName.Text = u"x";
        f.OfficeMenu1.Choose("mnuAddItem");
        EXPECT_TRUE(f.Frame1.Visible);
        EXPECT_EQ(f.txtName.Text.Get(), u"");
        EXPECT_THAT(Names(f), ElementsAre(u"", u"A", u"B", u"C"));
    });
}

TEST_F(WebListEditingTest, NothingIsDeletedWithoutAYes) {
    InWindow([this](frmWebList& f) {
        t.user.Answer(Answer::No);
        f.cmdDelete.Press();
        f.ListView1.SetAllSelected(false);
        t.user.Answer({u"No items checked.", MessageIcon::Information}, Answer::Ok);
        f.cmdDelete.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_EQ(f.ListDirty, 0);
    });
}

// Kept for compatibility: website-moves-leave-checks.
TEST_F(WebListEditingTest, AMoveSwapsTextsAndLeavesTheChecks) {
    InWindow([](frmWebList& f) {
        f.ListView1.Select(2);
        f.cmdArrowUp.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"B", u"A", u"C"));
        EXPECT_THAT(Urls(f), ElementsAre(u"http://b", u"http://a", u"http://c"));
        EXPECT_THAT(Checks(f), ElementsAre(0, 1, 0));
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_EQ(f.ListView1.SelectedCount(), 1);
        EXPECT_EQ(f.ListDirty, 1);
        Press(f, f.ListView1, 'D', Mask::Ctrl);
        Press(f, f.ListView1, 'D', Mask::Ctrl);
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"C", u"B"));
        Press(f, f.ListView1, 'U', Mask::Ctrl);
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
    });
}

TEST_F(WebListEditingTest, NothingMovesPastTheEnds) {
    InWindow([](frmWebList& f) {
        f.cmdArrowUp.Press();
        f.ListView1.Select(3);
        f.cmdArrowDown.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_EQ(f.ListDirty, 0);
    });
}

// Kept for compatibility: website-checks-are-no-change.
TEST_F(WebListEditingTest, ACheckIsNoChange) {
    InWindow([](frmWebList& f) {
        f.ListView1.SetChecked(1, true);
        EXPECT_EQ(f.ListDirty, 0);
        EXPECT_TRUE(f.Close());
    });
}

// ---- The file ------------------------------------------------------------------------------------------

TEST_F(WebListEditingTest, SavesUnderTheChosenName) {
    InWindow([this](frmWebList& f) {
        f.cmdDuplicate.Press();
        dialog.answer = u"C:\\Other\\new.lst";
        t.files.AddFile(u"C:\\Other\\new.lst", "old");
        f.cmdSaveList.Press();
        EXPECT_EQ(f.ListDirty, 0);
        EXPECT_EQ(f.Caption.Get(), u"Website list :  C:\\Other\\new.lst  ( 4 entries )");
    });
    EXPECT_THAT(dialog.requests,
                ElementsAre(SystemFileDialog::Request{SystemFileDialog::Purpose::Save,
                                                      u"List of websites (*.lst)|*.lst|All files (*.*)|*.*",
                                                      u"Save website list to disk", kList, u"lst"}));
    EXPECT_EQ(t.app.Settings.WebListFile, u"C:\\Other\\new.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Other\\new.lst"),
              "A\r\nhttp://a\r\n0\r\nB\r\nhttp://b\r\n1\r\nC\r\nhttp://c\r\n0\r\nA\r\nhttp://a\r\n0\r\n"
              "***\r\nhttp://a http://b\r\nhttp://c\r\n\r\n");
    EXPECT_EQ(Written(), kThree);
}

TEST_F(WebListEditingTest, TheFileIsInTheSystemsCodePage) {
    With("M\xFCller\r\nhttp://m\xFC\r\n0\r\n", [this](frmWebList& f) {
        EXPECT_THAT(Names(f), ElementsAre(u"M\u00FCller"));
        f.ListView1.SetText(1, 2, u"http://\u4E00");
        dialog.answer = kList;
        f.cmdSaveList.Press();
    });
    EXPECT_EQ(Written(), "M\xFCller\r\nhttp://?\r\n0\r\n***\r\n\r\n");
}

TEST_F(WebListEditingTest, ACancelledSaveChangesNothing) {
    InWindow([this](frmWebList& f) {
        f.ListDirty = 1;
        f.OfficeMenu1.Choose("mnuSaveList");
        dialog.answer = Text();
        f.OfficeMenu1.Choose("mnuSaveList");
        EXPECT_EQ(f.ListDirty, 1);
    });
    EXPECT_EQ(t.app.Settings.WebListFile, kList);
    EXPECT_EQ(Written(), kThree);
}

TEST_F(WebListEditingTest, AnEmptyListIsNotSaved) {
    t.app.Settings.WebListFile.clear();
    InWindow([this](frmWebList& f) {
        t.user.Answer({u"Data grid contains no entries !", MessageIcon::Exclamation}, Answer::Ok);
        f.cmdSaveList.Press();
    });
    EXPECT_THAT(dialog.requests, IsEmpty());
}

TEST_F(WebListEditingTest, AFileThatCannotBeWrittenIsReportedAndKeptAsItWas) {
    InWindow([this](frmWebList& f) {
        f.ListDirty = 1;
        dialog.answer = kList;
        t.files.Faults().FailNth(FileStep::OpenToWrite, 1);
        t.user.Answer({u"Cannot save this file :\r\n\r\n" + kList +
                           u"\r\n\r\nThe error was probably triggered for the following reason : "
                           u"\r\n\r\n\"Input/output error\"\r\n\r\n",
                       MessageIcon::Stop},
                      Answer::Ok);
        f.cmdSaveList.Press();
        EXPECT_EQ(f.ListDirty, 1);
    });
    EXPECT_EQ(Written(), kThree);
}

TEST_F(WebListEditingTest, OpensAnotherList) {
    t.files.AddFile(u"C:\\x\\other.txt", "X\r\nhttp://x\r\n1\r\n");
    const Text before = t.files.CurrentDir();
    InWindow([this](frmWebList& f) {
        t.user.OnChooser([this](ListerRequest& request) {
            t.files.ChangeDir(u"C:\\x");
            request.ChosenFilePath = u"C:\\x\\other.txt";
        });
        f.OfficeMenu1.Choose("mnuEditItem");
        f.cmdOpenList.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"X"));
        EXPECT_THAT(Groups(f), IsEmpty());
        EXPECT_FALSE(f.Frame1.Visible);
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_EQ(f.Caption.Get(), u"Website list :  C:\\x\\other.txt  ( 1 entries )");
    });
    EXPECT_EQ(t.user.Requests().front().FileDialogFilter, u"*.lst;*.txt;*.asc");
    EXPECT_EQ(t.files.CurrentDir(), before);
    EXPECT_EQ(t.app.Settings.WebListFile, u"C:\\x\\other.txt");
}

// Kept for compatibility: opened-websites-stay-changed.
TEST_F(WebListEditingTest, OnlyASaveEndsTheQuestionAboutChanges) {
    InWindow([this](frmWebList& f) {
        t.user.ChooseFile(kList);
        f.cmdOpenList.Press();
        EXPECT_EQ(f.ListDirty, 0);
        f.cmdDuplicate.Press();
        t.user.ChooseFile(kList);
        f.cmdOpenList.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_EQ(f.ListDirty, 1);
        dialog.answer = kList;
        f.cmdSaveList.Press();
        EXPECT_EQ(f.ListDirty, 0);
    });
}

TEST_F(WebListEditingTest, NothingIsOpenedWithoutAResult) {
    InWindow([this](frmWebList& f) {
        t.user.CancelChooser();
        f.cmdOpenList.Press();
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
    });
    EXPECT_EQ(t.app.Settings.WebListFile, kList);
}

TEST_F(WebListEditingTest, AListThatCannotBeOpenedLeavesAnEmptyOne) {
    InWindow([this](frmWebList& f) {
        t.user.ChooseFile(u"C:\\gone.lst");
        t.user.Answer({u"Can't open file: C:\\gone.lst", MessageIcon::Exclamation}, Answer::Ok);
        f.cmdOpenList.Press();
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_THAT(Groups(f), IsEmpty());
    });
}

TEST_F(WebListEditingTest, InformsAboutTheFile) {
    InWindow([this](frmWebList& f) {
        t.user.Answer(Answer::Ok);
        f.cmdInfo.Press();
        const Text date = t.app.Locale().GeneralDate(*t.files.Modified(kList));
        EXPECT_EQ(t.user.Messages().back(),
                  (Message{u"sites.lst\r\nC:\\Data\r\n" + date + u"\r\n82\r\n    ( 3 items )",
                           MessageIcon::Information}));
    });
}

TEST_F(WebListEditingTest, TheSizeHasCommas) {
    With("A\r\nhttp://a/" + std::string(1'234'567 - 17, 'x') + "\r\n0\r\n", [this](frmWebList& f) {
        t.user.Answer(Answer::Ok);
        f.cmdInfo.Press();
        EXPECT_NE(t.user.Messages().back().text.find(u"\r\n1,234,567\r\n"), Text::npos);
    });
}

TEST_F(WebListEditingTest, InformsThatThereIsNoFile) {
    InWindow([this](frmWebList& f) {
        t.files.Erase(kList);
        t.user.Answer({u"(not yet saved / not present on disk)", MessageIcon::Information}, Answer::Ok);
        f.cmdInfo.Press();
        t.app.Settings.WebListFile.clear();
        t.user.Answer({u"(not yet saved / not present on disk)", MessageIcon::Information}, Answer::Ok);
        f.OfficeMenu1.Choose("mnuInfo");
    });
}

} // namespace
} // namespace korvane
