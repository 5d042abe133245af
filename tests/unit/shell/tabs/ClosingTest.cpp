#include "context/exchange/ClosingSave.h"
#include "grid/Grid.h"
#include "support/HandlerFailure.h"
#include "support/TestProgram.h"
#include "table/frmTxtDbInfo.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

const Text kIni = u"C:\\Korvane\\Korvane.ini";
const Text kRec = u"C:\\Korvane\\Korvane.rec";

Text PathOf(char16_t letter) {
    return Text(u"C:\\Data\\") + letter + u".tbx";
}

Message Question(const Text& path) {
    return {u"The text database has been changed.\r\n\r\n" + path +
                u"\r\n\r\nDo you want to save the changes?\r\n",
            MessageIcon::Question, MessageButtons::YesNoCancel, 1};
}

/// Three tabs, a, b and c, all of them altered.
class Closing : public testing::Test {
protected:
    void Start(const Settings& settings = {}) {
        for (const char16_t letter : {u'a', u'b', u'c'})
            p.AddTable(PathOf(letter), {"old"});
        p.StartWith(settings, PathOf(u'a'));
        p.Open(PathOf(u'b'));
        p.Open(PathOf(u'c'));
        for (int slot = 1; slot <= 3; ++slot)
            p.Tab(slot).iGrid1.CommitEdit(Row{1}, Col{1}, u"new");
    }
    std::string Saved(char16_t letter) { return p.FileBytes(PathOf(letter)); }
    static std::string With(char16_t letter, const char* cell) { return NameTable(PathOf(letter), {cell}); }

    TestProgram p;
};

TEST_F(Closing, ATabWithoutChangesClosesWithoutAWord) {
    Start();
    p.Tab(3).Table().TableAltered = 0;
    p.PressKey('Q', Mask::Ctrl);
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx"}));
    EXPECT_EQ(p.AllTabs().TabState[3].Deleted, -1);
}

TEST_F(Closing, NoClosesWithoutSaving) {
    Start();
    p.user.Answer(Question(PathOf(u'c')), Answer::No);
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx"}));
    EXPECT_EQ(Saved(u'c'), With(u'c', "old"));
}

TEST_F(Closing, CancelKeepsTheTab) {
    Start();
    p.user.Answer(Question(PathOf(u'c')), Answer::Cancel);
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions().size(), 3u);
    EXPECT_EQ(p.AllTabs().TabState[3].Deleted, 0);
    EXPECT_EQ(p.app.Settings.LastDbFindText, u"");
}

TEST_F(Closing, TheTabIsShownThatTheQuestionIsAbout) {
    Start();
    const auto expectShown = [this](int slot) {
        return [this, slot] { EXPECT_EQ(p.AllTabs().Active(), &p.Tab(slot)); };
    };
    p.user.AnswerAfter(expectShown(1), Answer::No);
    p.user.AnswerAfter(expectShown(2), Answer::Cancel);
    p.Choose("mnuFile_Exit");
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(2));
}

TEST_F(Closing, ATabThatClosesWithoutAWordIsNotShown) {
    Start();
    p.Tab(1).Table().TableAltered = 0;
    p.AllTabs().Close(p.Tab(1));
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(3));
}

// Kept for compatibility: closing-saves-directly.
TEST_F(Closing, YesSavesUnderThePresentNameWhereOtherQuestionsAskForOne) {
    Start();
    p.app.DialogResult = 99;
    p.user.Answer(Question(PathOf(u'c')), Answer::Yes);
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions().size(), 2u);
    EXPECT_EQ(Saved(u'c'), With(u'c', "new"));
    EXPECT_EQ(p.app.Exchange<ClosingSave>().ClosingTabSave, 0);
}

TEST_F(Closing, TheInfoWindowAfterTheSaveCanKeepTheTab) {
    Settings settings;
    settings.ShowFileInfoAfterSave = 1;
    Start(settings);
    p.user.Answer(Answer::Yes);
    p.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        EXPECT_TRUE(info.cmdCancel.Visible);
        info.cmdCancel.Press();
    });
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions().size(), 3u);
    EXPECT_EQ(p.app.DialogResult, 99);
    EXPECT_EQ(Saved(u'c'), With(u'c', "new"));
}

TEST_F(Closing, ASaveThatFailsKeepsTheTab) {
    Start();
    p.files.SetFileReadOnly(PathOf(u'c'));
    p.user.Answer(Answer::Yes);
    p.user.Answer(Answer::Ok);
    p.Choose("mnuFile_Close");
    EXPECT_TRUE(p.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\nC:\\Data\\c.tbx"));
    EXPECT_EQ(p.Captions().size(), 3u);
    EXPECT_EQ(p.Tab(3).Table().TableAltered, 1);
}

TEST_F(Closing, ASaveThatIsAbandonedInTheChooserKeepsTheTab) {
    Start();
    p.files.Erase(PathOf(u'c'));
    p.user.Answer(Answer::Yes);
    p.user.Answer({u"Cannot save this file: \r\n\r\nC:\\Data\\c.tbx\r\n\r\nTry saving it explicitly.",
                   MessageIcon::Stop},
                  Answer::Ok);
    p.user.CancelChooser();
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions().size(), 3u);
}

TEST_F(Closing, ASaveInWhichAHandlerFailsIsNoSaveAtClosingAfterwards) {
    Start();
    p.files.Erase(PathOf(u'c'));
    p.user.Answer(Answer::Yes);
    p.user.AnswerAfter(FailInHandler, Answer::Ok);
    EXPECT_THROW(p.Choose("mnuFile_Close"), HandlerFailure);
    EXPECT_EQ(p.app.Exchange<ClosingSave>().ClosingTabSave, 0);
    EXPECT_EQ(p.Captions().size(), 3u);
}

TEST_F(Closing, CloseWithoutATabDoesNothing) {
    p.StartWith({});
    p.Choose("mnuFile_Close");
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(Closing, TheEndAsksForEveryTabInTheOrderOfTheStripAndWritesBothFiles) {
    Start();
    p.user.Answer(Question(PathOf(u'a')), Answer::Yes);
    p.user.Answer(Question(PathOf(u'b')), Answer::No);
    p.user.Answer(Question(PathOf(u'c')), Answer::Yes);
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_EQ(Saved(u'a'), With(u'a', "new"));
    EXPECT_EQ(Saved(u'b'), With(u'b', "old"));
    EXPECT_EQ(Saved(u'c'), With(u'c', "new"));
    EXPECT_EQ(p.FileBytes(kRec), "C:\\Data\\c.tbx | 0*2026.11.21   10:30\r\n"
                                 "C:\\Data\\b.tbx | 0*2026.11.21   10:30\r\n"
                                 "C:\\Data\\a.tbx | 0*2026.11.21   10:30\r\n");
}

// Kept for compatibility: cancelled-end-leaves-strip-off.
TEST_F(Closing, ACancelOnTheWayLeavesTheRestOpenTheAnsweredClosedAndTheStripOff) {
    Start();
    p.user.Answer(Question(PathOf(u'a')), Answer::No);
    p.user.Answer(Question(PathOf(u'b')), Answer::Cancel);
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(p.Main().Shown());
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"b.tbx", u"c.tbx"}));
    EXPECT_EQ(p.AllTabs().TabState[1].Deleted, -1);
    EXPECT_FALSE(p.files.FileExists(kRec));
    // The strip stays switched off until the next start.
    EXPECT_FALSE(p.Main().MDITabs1.On);
    p.OpenNewTab();
    EXPECT_FALSE(p.Main().MDITabs1.On);
}

TEST_F(Closing, AfterACancelThePlaceIsOnlyWrittenAtTheRealEnd) {
    Start();
    p.Main().Left = Twips{1111};
    p.user.Answer(Answer::Cancel);
    EXPECT_FALSE(p.Main().Close());
    EXPECT_EQ(p.FileBytes(kIni), SettingsBytes({}));
    p.Main().Left = Twips{2222};
    for (int i = 0; i < 3; ++i)
        p.user.Answer(Answer::No);
    EXPECT_TRUE(p.Main().Close());
    EXPECT_NE(p.FileBytes(kIni).find("C\r\nC:\\\r\n2222\r\n"), std::string::npos);
}

TEST_F(Closing, TheEndKeepsThePlaceAndTheStyleOfTheWindow) {
    p.StartWith({});
    p.Main().Top = Twips{10};
    p.Main().Left = Twips{20};
    p.Main().Height = Twips{7000};
    p.Main().Width = Twips{9000};
    p.Main().MDITabs1.Style = 25;
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(
        p.FileBytes(kIni).starts_with("C\r\nC:\\\r\n20\r\n10\r\n9000\r\n7000\r\n\r\n0\r\n0\r\n25\r\n"));
}

TEST_F(Closing, AWindowThatStandsAsAnIconIsStoredInItsFullSize) {
    class FullScreen : public View {
    public:
        void Follow(Observed& observed, Aspect aspect) override {
            auto& window = static_cast<Form&>(observed);
            if (aspect == Aspect::State && window.State == FormState::Maximised) window.Width = Twips{28800};
        }
    } screen;
    p.StartWith({});
    p.Main().SetView(&screen);
    p.Main().State = FormState::Minimised;
    p.Choose("mnuFile_Exit");
    p.Main().SetView(nullptr);
    EXPECT_EQ(p.app.Settings.MainWidth, 28800);
}

TEST_F(Closing, AnEndInWhichTheSettingsCannotBeWrittenGoesOn) {
    p.StartWith({});
    p.files.SetDiskReadOnly();
    p.user.Answer(Answer::Ok);
    p.user.Answer(Answer::Ok);
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_TRUE(p.user.Messages().at(0).text.starts_with(
        u"Cannot save this file :\r\n\r\nC:\\Korvane\\Korvane.ini\r\n\r\n"));
    EXPECT_TRUE(p.user.Messages().at(1).text.starts_with(
        u"Cannot save this file :\r\n\r\nC:\\Korvane\\Korvane.rec\r\n\r\n"));
}

// Kept for compatibility: late-windows-lose-settings.
TEST_F(Closing, WindowsThatStillStandCloseAfterTheSettingsAreWrittenAndCannotStopTheEnd) {
    class Standing : public Form {
    public:
        Standing(App& app, std::vector<Text>& log, TextView caption)
            : Form(app.Forms(), "Standing", caption), app_(app), log_(log) {}
        bool QueryUnload() override {
            log_.push_back(Caption);
            app_.Settings.RtfLeft = 4711;
            return false;
        }

    private:
        App& app_;
        std::vector<Text>& log_;
    };
    p.StartWith({});
    std::vector<Text> log;
    Standing first(p.app, log, u"first");
    Standing second(p.app, log, u"second");
    first.EnsureLoaded();
    second.EnsureLoaded();
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_EQ(log, (std::vector<Text>{u"second", u"first"}));
    // What a window stores then is lost.
    EXPECT_EQ(p.FileBytes(kIni).find("4711"), std::string::npos);
}

TEST_F(Closing, AWindowThatTakesAnotherWithItIsNoTrouble) {
    class Owner : public Form {
    public:
        explicit Owner(App& app) : Form(app.Forms(), "Owner", u"") {}
        void Unload() override { owned.reset(); }
        std::unique_ptr<Form> owned;
    };
    p.StartWith({});
    auto owned = std::make_unique<Form>(p.app.Forms(), "Owned", u"");
    owned->EnsureLoaded();
    Owner owner(p.app);
    owner.owned = std::move(owned);
    owner.EnsureLoaded();
    p.Choose("mnuFile_Exit");
    EXPECT_EQ(owner.owned, nullptr);
    EXPECT_TRUE(p.user.LoadedForms().empty());
}

TEST_F(Closing, AFileThatArrivesDuringTheQuestionIsLoadedInBetween) {
    Start();
    p.AddTable(PathOf(u'd'), {"x"});
    p.user.AnswerAfter([this] { p.instance.Arrive(PathOf(u'd')); }, Answer::No);
    p.Choose("mnuFile_Close");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx", u"d.tbx"}));
}

TEST_F(Closing, AFileThatArrivesWhileTheProgramEndsIsLoadedClosedAgainAndInTheRecord) {
    Start();
    p.AddTable(PathOf(u'd'), {"x"});
    p.user.AnswerAfter([this] { p.instance.Arrive(PathOf(u'd')); }, Answer::No);
    p.user.Answer(Question(PathOf(u'b')), Answer::No);
    p.user.Answer(Question(PathOf(u'c')), Answer::No);
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_TRUE(p.FileBytes(kRec).starts_with("C:\\Data\\d.tbx | 0*"));
}

TEST_F(Closing, TheEndIsNeverAskedAbout) {
    Start();
    for (int slot = 1; slot <= 3; ++slot)
        p.Tab(slot).Table().TableAltered = 0;
    p.Choose("mnuFile_Exit");
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(Closing, EveryWayOutEndsTheProgram) {
    const std::vector<std::function<void(TestProgram&)>> ways{
        [](TestProgram& program) { program.Choose("mnuFile_Exit"); },
        [](TestProgram& program) { program.Main().RunCommand("mnuFile_Exit"); },
        [](TestProgram& program) { program.Main().mnuPopupMenu.Choose("mnuFile_Exit"); },
        [](TestProgram& program) { dynamic_cast<CommandButton*>(program.Main().Find("cmdExit"))->Press(); },
        [](TestProgram& program) { program.Main().Close(); },
    };
    for (const auto& way : ways) {
        TestProgram program;
        program.StartWith({});
        way(program);
        EXPECT_FALSE(program.Main().Shown());
        EXPECT_EQ(program.FileBytes(kRec), "");
    }
}

TEST_F(Closing, EveryWayToCloseATabAsks) {
    const std::vector<std::function<void(TestProgram&)>> ways{
        [](TestProgram& program) { program.PressKey('Q', Mask::Ctrl); },
        [](TestProgram& program) { dynamic_cast<CommandButton*>(program.Main().Find("cmdClose"))->Press(); },
        [](TestProgram& program) { program.Main().iGridListBar.ClickCell(Row{7}, Col{1}); },
        [](TestProgram& program) { program.Main().MDITabs1.CloseWanted(program.Tab(3)); },
    };
    Start();
    for (const auto& way : ways) {
        p.user.Answer(Question(PathOf(u'c')), Answer::Cancel);
        way(p);
        EXPECT_EQ(p.Captions().size(), 3u);
    }
}

TEST_F(Closing, ASecondStartKeepsNothingOfItsWindow) {
    p.instance.running.runs = true;
    p.StartWith({});
    p.Main().Left = Twips{1111};
    p.Main().Close();
    EXPECT_EQ(p.app.Settings.MainLeft, 0);
    EXPECT_EQ(p.FileBytes(kIni), SettingsBytes({}));
    EXPECT_FALSE(p.files.FileExists(kRec));
}

} // namespace
} // namespace korvane
