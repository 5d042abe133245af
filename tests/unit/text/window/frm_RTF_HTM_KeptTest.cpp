#include "context/exchange/ListerRequest.h"
#include "kept/KeptTexts.h"
#include "text/window/TextWindows.h"
#include "unit/text/window/TextWindowStage.h"

namespace korvane {
namespace {

/// The text window of a program that keeps texts.
class KeptTextWindow : public TextWindowStage {
protected:
    KeptTextWindow() {
        t.app.SetPort<TextKeeper>(&keeper);
        t.files.AddFile(kLetter, "{\\rtf1 old}");
    }

    std::vector<UnsavedText> KeptOnDisk() {
        KeptTexts next(t.files, kRoot);
        next.LookForUnsaved();
        return next.Unsaved();
    }
    /// Keeps a text as a run would that has ended.
    void KeepFromEarlierRun(const Text& name) {
        KeptTexts earlier(t.files, kRoot);
        earlier.Keep({}, name, "{\\rtf1 {\\b kept} words}");
        keeper.LookForUnsaved();
        ASSERT_EQ(keeper.Unsaved().size(), 1u);
    }
    frm_RTF_HTM& ShowKept() {
        ExpectWindow();
        windows.TextWindowShowUnsaved(UnsavedText(keeper.Unsaved().front()));
        return *windows.Open();
    }

    const Text kRoot = u"C:\\state\\kept";
    const Text kLetter = u"C:\\letter.rtf";
    KeptTexts keeper{t.files, kRoot};
    TextWindows windows{t.app};
};

TEST_F(KeptTextWindow, KeepsAnAlteredTextWithItsFormatting) {
    Open(kLetter);
    Control().SetSelection(3, 0);
    Control().SetSelText(u"er");
    Control().SetSelection(0, -1);
    Control().SetFontBold(1);
    window->KeepUnsaved();
    ASSERT_EQ(KeptOnDisk().size(), 1u);
    EXPECT_EQ(KeptOnDisk().front().name, kLetter);
    const std::string rtf = t.files.Contents(KeptOnDisk().front().file).value_or("");
    EXPECT_NE(rtf.find("older"), std::string::npos) << rtf;
    EXPECT_NE(rtf.find("\\b"), std::string::npos) << rtf;
    EXPECT_EQ(t.files.Contents(kLetter), "{\\rtf1 old}");
    CloseUnsaved();
}

TEST_F(KeptTextWindow, KeepsNoTextWithoutChanges) {
    Open(kLetter);
    window->KeepUnsaved();
    EXPECT_TRUE(KeptOnDisk().empty());
    window->Close();
}

TEST_F(KeptTextWindow, KeepsALaterStateInTheSamePlace) {
    Open();
    Type(u"one");
    window->KeepUnsaved();
    Type(u"two");
    window->KeepUnsaved();
    ASSERT_EQ(KeptOnDisk().size(), 1u);
    EXPECT_NE(t.files.Contents(KeptOnDisk().front().file)->find("onetwo"), std::string::npos);
    CloseUnsaved();
}

TEST_F(KeptTextWindow, ForgetsWhatWasKeptOfATextThatIsSaved) {
    Open(kLetter);
    Type(u"new ");
    window->KeepUnsaved();
    window->SaveThisFile();
    EXPECT_TRUE(KeptOnDisk().empty());
    window->Close();
}

TEST_F(KeptTextWindow, LeavesWhatWasKeptWhereTheTextCannotBeSaved) {
    Open(kLetter);
    Type(u"new ");
    window->KeepUnsaved();
    t.files.SetFreeBytes(0);
    t.user.Answer(Answer::Ok);
    window->SaveThisFile();
    window->Close();
    EXPECT_EQ(KeptOnDisk().size(), 1u);
}

TEST_F(KeptTextWindow, ForgetsWhatWasKeptOfATextThatIsNotWanted) {
    Open(kLetter);
    Type(u"new ");
    window->KeepUnsaved();
    AnswerSaving(MsgAnswer::DoNotSave);
    window->Close();
    EXPECT_TRUE(KeptOnDisk().empty());
}

TEST_F(KeptTextWindow, ShowsAKeptTextAsAnAlteredOneOfItsName) {
    KeepFromEarlierRun(kLetter);
    frm_RTF_HTM& shown = ShowKept();
    EXPECT_EQ(shown.ThisTextCtrl.All(), u"kept words");
    EXPECT_EQ(shown.Caption.Get(), kLetter);
    EXPECT_TRUE(shown.Altered());
    EXPECT_EQ(State().TextWindowUntitled, 0);
    EXPECT_TRUE(keeper.Unsaved().empty());
    EXPECT_EQ(KeptOnDisk().size(), 1u) << "it is kept until it is saved";
    shown.SaveThisFile();
    EXPECT_TRUE(KeptOnDisk().empty());
    EXPECT_NE(t.files.Contents(kLetter)->find("kept"), std::string::npos);
    shown.Close();
}

TEST_F(KeptTextWindow, ShowsAKeptTextThatNeverHadAFileAsUntitled) {
    KeepFromEarlierRun(u"Untitled.rtf");
    frm_RTF_HTM& shown = ShowKept();
    EXPECT_EQ(shown.Caption.Get(), u"Untitled.rtf");
    EXPECT_EQ(State().TextWindowUntitled, 1);
    shown.TextAltered = 0;
    shown.Close();
    EXPECT_TRUE(KeptOnDisk().empty());
}

TEST_F(KeptTextWindow, AsksForTheTextOfAnOpenWindowBeforeItShowsAKeptOne) {
    KeepFromEarlierRun(kLetter);
    ExpectWindow();
    windows.TextWindowShow();
    frm_RTF_HTM& open = *windows.Open();
    open.ThisTextCtrl.SetSelText(u"mine");
    AnswerSaving(MsgAnswer::Cancel);
    const UnsavedText kept = keeper.Unsaved().front();
    windows.TextWindowShowUnsaved(kept);
    EXPECT_EQ(open.ThisTextCtrl.All(), u"mine");
    EXPECT_EQ(keeper.Unsaved().size(), 1u);
    AnswerSaving(MsgAnswer::DoNotSave);
    windows.TextWindowShowUnsaved(kept);
    EXPECT_EQ(open.ThisTextCtrl.All(), u"kept words");
    AnswerSaving(MsgAnswer::DoNotSave);
    open.Close();
}

TEST_F(KeptTextWindow, TheOpenWindowIsKeptWhenTheProgramHasToEnd) {
    windows.KeepNow();
    EXPECT_TRUE(KeptOnDisk().empty());
    ExpectWindow();
    windows.TextWindowShow();
    windows.Open()->ThisTextCtrl.SetSelText(u"mine");
    windows.KeepNow();
    EXPECT_EQ(KeptOnDisk().size(), 1u);
    AnswerSaving(MsgAnswer::DoNotSave);
    windows.Open()->Close();
}

} // namespace
} // namespace korvane
