#include "shell/main/UnsavedPage.h"

#include "grid/GridStore.h"
#include "kept/KeptTables.h"
#include "kept/KeptTexts.h"
#include "support/TestProgram.h"
#include "testing/MemoryBackground.h"
#include "unit/dbops/FakePorts.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using namespace std::chrono_literals;

struct UnsavedPageTest : testing::Test {
    struct Kept {
        explicit Kept(TestProgram& program)
            : background(program.files, program.clock),
              keeper(program.app, background, u"C:\\state\\kept"),
              texts(program.files, u"C:\\state\\kept") {
            program.app.SetPort<TableKeeper>(&keeper);
            program.app.SetPort<TextKeeper>(&texts);
        }
        MemoryBackground background;
        KeptTables keeper;
        KeptTexts texts;
    };

    UnsavedPageTest() {
        program.AddTable(kPath, {"Ann", "Bob"});
        Start();
    }
    ~UnsavedPageTest() override { Kill(); }

    void Start() {
        kept = std::make_unique<Kept>(program);
        program.StartWith({});
        kept->texts.LookForUnsaved();
        kept->keeper.LookForUnsaved();
        kept->background.DoAll();
    }
    void Kill() {
        program.EndProcess();
        kept.reset();
        program.app.SetPort<TableKeeper>(nullptr);
        program.app.SetPort<TextKeeper>(nullptr);
    }
    void TypeAndKill() {
        program.Open(kPath);
        program.Tab(1).iGrid1.CommitEdit(Row{1}, Col{1}, u"Zoe");
        kept->background.Pass(2s);
        Kill();
    }
    template <class ControlT>
    ControlT& Find(std::string_view name) {
        return dynamic_cast<ControlT&>(*program.Main().Find(name));
    }
    bool Shows() { return Find<Panel>("fraUnsaved").Visible; }
    CommandButton& Button(int number) { return Find<CommandButton>("cmdUnsaved" + std::to_string(number)); }

    const Text kPath = u"C:\\data\\people & co.tbx";
    TestProgram program;
    std::unique_ptr<Kept> kept;
};

TEST_F(UnsavedPageTest, ShowsNothingAfterARunThatEndedAsItShould) {
    program.Open(kPath);
    EXPECT_FALSE(Shows());
    program.Main().Close();
    Kill();
    Start();
    EXPECT_FALSE(Shows());
}

TEST_F(UnsavedPageTest, ListsWhatWasKeptOfAnotherRun) {
    TypeAndKill();
    Start();
    EXPECT_TRUE(Shows());
    EXPECT_TRUE(Button(1).Visible);
    EXPECT_EQ(Button(1).Caption.Get(), u"people && co.tbx, changed 10:30");
    EXPECT_EQ(Button(1).ToolTipText.Get(), kPath);
    EXPECT_FALSE(Button(2).Visible);
}

TEST_F(UnsavedPageTest, TellsTheDateOfAnotherDay) {
    TypeAndKill();
    program.clock.Set({2026, 11, 22, 8, 0, 0});
    Start();
    EXPECT_EQ(Button(1).Caption.Get(), u"people && co.tbx, changed 2026-11-21 10:30");
}

TEST_F(UnsavedPageTest, AClickOpensItAsAnAlteredTableOfItsName) {
    TypeAndKill();
    Start();
    Button(1).Press();
    EXPECT_FALSE(Shows());
    EXPECT_EQ(program.Tab(1).Table().TxtDbFile, kPath);
    EXPECT_EQ(program.Tab(1).Caption.Get(), u"people & co.tbx");
    EXPECT_EQ(program.AllTabs().TabState[1].Path, kPath);
    EXPECT_EQ(program.Tab(1).Table().TableAltered, 1);
    EXPECT_EQ(program.Tab(1).GridStore().CellText(Row{1}, Col{1}), u"Zoe");
    program.Choose("mnuFile_Save");
    kept->background.DoAll();
    EXPECT_NE(program.FileBytes(kPath).find("Zoe"), std::string::npos);
    EXPECT_TRUE(kept->keeper.Unsaved().empty());
}

TEST_F(UnsavedPageTest, GoesAwayWhileATableIsOpen) {
    TypeAndKill();
    Start();
    program.Open(kPath);
    EXPECT_FALSE(Shows());
    program.Choose("mnuFile_Close");
    EXPECT_TRUE(Shows());
}

TEST_F(UnsavedPageTest, IsGoneOnceTheChangesAreNotWanted) {
    TypeAndKill();
    Start();
    Button(1).Press();
    program.user.Answer(Answer::No);
    program.Choose("mnuFile_Close");
    kept->background.DoAll();
    EXPECT_FALSE(Shows());
    Kill();
    Start();
    EXPECT_FALSE(Shows());
}

TEST_F(UnsavedPageTest, ATableWhoseSaveIsNotWholeIsMarkedAsAlteredWithoutAMessage) {
    program.Open(kPath);
    frmMDIChild& tab = program.Tab(1);
    const std::string before = program.FileBytes(kPath);
    tab.iGrid1.CommitEdit(Row{1}, Col{1}, Text(4000, u'x'));
    program.files.SetFreeBytes(100);
    program.Choose("mnuFile_Save");
    EXPECT_TRUE(tab.Note().altered);
    EXPECT_TRUE(program.user.Messages().empty());
    EXPECT_NE(program.FileBytes(kPath), before);
    const KeptVersions versions(program.files, u"C:\\state\\kept");
    ASSERT_EQ(versions.Of(kPath).size(), 1u);
    EXPECT_EQ(program.FileBytes(versions.Of(kPath).front().path), before);
    // Undoing leads to a table that isn't in the file either.
    EXPECT_TRUE(tab.Context().history->Undo());
    EXPECT_TRUE(tab.Note().altered);
}

TEST_F(UnsavedPageTest, ListsTextsWithTheTablesTheNewestFirst) {
    TypeAndKill();
    program.clock.Set({2026, 11, 21, 11, 0, 0});
    KeptTexts(program.files, u"C:\\state\\kept").Keep({}, u"C:\\data\\letter.rtf", "{\\rtf1 words}");
    Start();
    EXPECT_EQ(Button(1).Caption.Get(), u"letter.rtf, changed 11:00");
    EXPECT_EQ(Button(1).ToolTipText.Get(), u"C:\\data\\letter.rtf");
    EXPECT_EQ(Button(2).Caption.Get(), u"people && co.tbx, changed 10:30");
}

TEST_F(UnsavedPageTest, AClickShowsATextInTheTextWindow) {
    FakeTextWindow window(program.app);
    KeptTexts(program.files, u"C:\\state\\kept").Keep({}, u"letter.rtf", "{\\rtf1 words}");
    Kill();
    Start();
    ASSERT_TRUE(Shows());
    Button(1).Press();
    EXPECT_EQ(window.unsaved, std::vector<Text>{u"letter.rtf"});
    EXPECT_TRUE(Shows()) << "the window hasn't taken the text";
    kept->texts.Adopt(Text(kept->texts.Unsaved().front().file));
    EXPECT_FALSE(Shows());
    program.app.SetPort<TextWindow>(nullptr);
}

} // namespace
} // namespace korvane
