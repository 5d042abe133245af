#include "files/lists/frmOpenFileWith.h"

#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/OpenWithRequest.h"
#include "context/exchange/TextWindowState.h"
#include "support/DesignerFile.h"
#include "support/FakeSystemFileDialog.h"
#include "support/FakeViewers.h"
#include "support/MenuEntries.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <functional>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kList = u"C:\\Data\\programs.lst";
constexpr std::string_view kTwo = "a.exe\r\nC:\\A\\\r\nb.exe\r\nC:\\B\\\r\n";

Message CannotLocate(const Text& path) {
    return {u"Cannot locate the following program/file:\r\n\r\n" + path +
                u"\r\n\r\nCheck the path before the name and see whether\r\n"
                u"the program/file exists on your hard disk.",
            MessageIcon::Stop};
}

class OpenFileWithTest : public testing::Test {
protected:
    OpenFileWithTest() {
        t.files.AddFile(kList, kTwo);
        t.files.AddFile(u"C:\\A\\a.exe");
        t.app.Settings.OpenWithListFile = kList;
        t.app.Exchange<OpenWithRequest>().ViewWithFile = u"C:\\Data\\file.xyz";
    }

    /// Opens the window and lets `act` be done in it; what leaves it open is closed.
    void InWindow(const std::function<void(frmOpenFileWith&)>& act) {
        t.user.On<frmOpenFileWith>([&act](frmOpenFileWith& f) {
            act(f);
            if (f.Shown()) f.cmdExit.Press();
        });
        t.app.Exchange<OpenWithRequest>().ViewWithProgram.clear();
        frmOpenFileWith(t.app).ShowModal();
    }
    static bool Press(frmOpenFileWith& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.ListView1.KeyDown(key);
        return key.consumed;
    }
    static std::vector<Text> Names(const frmOpenFileWith& f) {
        std::vector<Text> names;
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            names.emplace_back(f.ListView1.TextAt(row, 1));
        return names;
    }
    std::string Written() const { return t.files.Contents(kList).value_or("(no such file)"); }

    TestApp t;
    FakeSystemFileDialog dialog{t.app};
    FakeTextFileViewer texts{t.app};
};

// ---- Opening -------------------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, ShowsTheProgramsWithTheirFolders) {
    InWindow([](frmOpenFileWith& f) {
        ASSERT_EQ(f.ListView1.Count(), 2);
        EXPECT_THAT(f.ListView1.RowAt(1).texts, ElementsAre(u"a.exe", u"C:\\A\\"));
        EXPECT_THAT(f.ListView1.RowAt(2).texts, ElementsAre(u"b.exe", u"C:\\B\\"));
        EXPECT_EQ(f.ListView1.KeyAt(2), u"K_ 2");
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
}

TEST_F(OpenFileWithTest, AnIconTellsWhetherAProgramIsInItsFolder) {
    t.files.AddFile(kList, "a.exe\nC:\\A\\\nb.exe\nC:\\B\\\nrundll32.exe\nshimgvw.dll");
    InWindow([](frmOpenFileWith& f) {
        EXPECT_EQ(f.ListView1.IconAt(1), frmOpenFileWith::kFoundIcon);
        EXPECT_EQ(f.ListView1.IconAt(2), frmOpenFileWith::kMissingIcon);
        EXPECT_EQ(f.ListView1.IconAt(3), frmOpenFileWith::kFoundIcon);
    });
}

TEST_F(OpenFileWithTest, ShowsTheFileInItsTwoHalves) {
    InWindow([](frmOpenFileWith& f) {
        EXPECT_EQ(f.Label1.Caption.Get(), u"File to load");
        EXPECT_EQ(f.lblFiletoLoad.Caption.Get(), u"file.xyz");
        EXPECT_EQ(f.Label3.Caption.Get(), u"Directory");
        EXPECT_EQ(f.lblDirectory.Caption.Get(), u"C:\\Data");
    });
    t.app.Exchange<OpenWithRequest>().ViewWithFile = u"C:\\file.xyz";
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.lblDirectory.Caption.Get(), u"C:\\"); });
}

TEST_F(OpenFileWithTest, AMissingListIsReported) {
    t.app.Settings.OpenWithListFile = u"C:\\Gone\\x.lst";
    t.user.Answer(CannotLocate(u"C:\\Gone\\x.lst"), Answer::Ok);
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.ListView1.Count(), 0); });
}

TEST_F(OpenFileWithTest, WithoutAListTheReportSaysSoAndTheSettingStaysEmpty) {
    t.app.Settings.OpenWithListFile.clear();
    t.user.Answer(CannotLocate(u"( Filename empty! )"), Answer::Ok);
    InWindow([](frmOpenFileWith&) {});
    EXPECT_EQ(t.app.Settings.OpenWithListFile, u"");
}

TEST_F(OpenFileWithTest, AListThatCannotBeOpenedIsReported) {
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    t.user.Answer({u"Can't open file: " + kList, MessageIcon::Exclamation}, Answer::Ok);
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.ListView1.Count(), 0); });
    EXPECT_EQ(Written(), kTwo);
}

TEST_F(OpenFileWithTest, ABinaryFileIsNoListAndStaysAsItIs) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.user.Answer({u"Can't open file: " + kList, MessageIcon::Exclamation}, Answer::Ok);
    InWindow([](frmOpenFileWith&) {});
    EXPECT_EQ(Written(), bytes);
}

TEST_F(OpenFileWithTest, AListThatCannotBeReadIsNotReplacedByWhatIsAddedToIt) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.user.Answer(Answer::Ok);
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.cmdAddProgram.Press();
        f.cmdExit.Press();
    });
    t.user.ChooseFile(u"C:\\A\\a.exe");
    t.user.Answer(Answer::Ok);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_TRUE(t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + kList));
    EXPECT_EQ(Written(), bytes);
}

TEST_F(OpenFileWithTest, AnEmptyListShowsNothingAndNoCommandFails) {
    t.files.AddFile(kList, "");
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        EXPECT_EQ(f.ListView1.Count(), 0);
        for (CommandButton* button : {&f.cmdLoadFile, &f.cmdToggle, &f.Image1, &f.Image2})
            button->Press();
        EXPECT_TRUE(f.Shown());
        f.cmdExit.Press();
    });
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(OpenFileWithTest, TheRowOfTheLastClosingIsCurrent) {
    InWindow([](frmOpenFileWith& f) { f.ListView1.Select(2); });
    EXPECT_EQ(t.app.Settings.OpenWithOption, 2);
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.ListView1.Current(), 2); });
    t.app.Settings.OpenWithOption = 3;
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.ListView1.Current(), 1); });
}

TEST_F(OpenFileWithTest, AProgramIsProposedByTheExtension) {
    t.files.AddFile(kList, "a.exe\nC:\\A\\\nFenlow.exe\nC:\\F\\\nFenlow.exe\nC:\\G\\\n");
    t.app.Exchange<OpenWithRequest>().ViewWithFile = u"C:\\Data\\picture.JPG";
    InWindow([](frmOpenFileWith& f) {
        EXPECT_EQ(f.ListView1.Current(), 2);
        EXPECT_TRUE(f.ListView1.Selected(2));
        EXPECT_FALSE(f.ListView1.Selected(1));
    });
}

TEST_F(OpenFileWithTest, WithoutAProposalTheRowOfTheLastClosingStays) {
    t.app.Settings.OpenWithOption = 2;
    t.app.Exchange<OpenWithRequest>().ViewWithFile = u"C:\\Data\\song.mp3";
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.ListView1.Current(), 2); });
}

TEST_F(OpenFileWithTest, TheHeightIsTakenUpAboveALimit) {
    t.app.Settings.OpenWithHeight = 7001;
    InWindow([](frmOpenFileWith& f) {
        EXPECT_EQ(f.Height.Get(), Twips{7001});
        f.Height = Twips{7000};
    });
    EXPECT_EQ(t.app.Settings.OpenWithHeight, 7000);
    InWindow([](frmOpenFileWith& f) { EXPECT_EQ(f.Height.Get(), Twips{0}); });
}

TEST_F(OpenFileWithTest, TheColumnsFollowTheWidth) {
    InWindow([](frmOpenFileWith& f) {
        f.Width = Twips{600 + 9000};
        f.Resize();
        EXPECT_EQ(f.ListView1.Columns.Get()[0], (ListColumn{u"Program", Twips{3000}}));
        EXPECT_EQ(f.ListView1.Columns.Get()[1], (ListColumn{u"Location", Twips{5100}}));
    });
}

// ---- Load ----------------------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, AProgramInItsFolderIsTaken) {
    InWindow([](frmOpenFileWith& f) { f.cmdLoadFile.Press(); });
    EXPECT_EQ(t.app.DialogResult, frmOpenFileWith::kProgramFound);
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"C:\\A\\a.exe");
}

TEST_F(OpenFileWithTest, ReturnAndADoubleClickLoad) {
    InWindow([](frmOpenFileWith& f) { EXPECT_TRUE(Press(f, Key::Return)); });
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"C:\\A\\a.exe");
    InWindow([](frmOpenFileWith& f) { f.ListView1.DoubleClick(1); });
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"C:\\A\\a.exe");
    EXPECT_EQ(t.app.DialogResult, frmOpenFileWith::kProgramFound);
}

TEST_F(OpenFileWithTest, AProgramInTheOtherFolderOfProgramsIsTaken) {
    t.files.AddFile(kList, "x.exe\nC:\\Program Files\\X\\\n");
    t.files.AddFile(u"C:\\Program Files (x86)\\X\\x.exe");
    InWindow([](frmOpenFileWith& f) { f.cmdLoadFile.Press(); });
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"C:\\Program Files (x86)\\X\\x.exe");
    EXPECT_EQ(t.app.DialogResult, frmOpenFileWith::kProgramFound);
}

TEST_F(OpenFileWithTest, AProgramThatIsNowhereIsReportedAndTheWindowStays) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.ListView1.Select(2);
        f.cmdLoadFile.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdExit.Press();
    });
    t.user.Answer(CannotLocate(u"C:\\B\\\\b.exe"), Answer::Ok);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"");
}

TEST_F(OpenFileWithTest, ACommandIsHandedOverWithItsArgumentsUntested) {
    t.files.AddFile(kList, "rundll32.exe\nshimgvw.dll,ImageView\n");
    InWindow([](frmOpenFileWith& f) { f.cmdLoadFile.Press(); });
    EXPECT_EQ(t.app.DialogResult, frmOpenFileWith::kCommandMade);
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"rundll32.exe shimgvw.dll,ImageView");
}

TEST_F(OpenFileWithTest, EscapeAndCloseTakeNothing) {
    InWindow([](frmOpenFileWith& f) { EXPECT_TRUE(Press(f, Key::Escape)); });
    EXPECT_EQ(t.app.DialogResult, 0);
    InWindow([](frmOpenFileWith& f) { f.OfficeMenu1.Choose("mnuClose"); });
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"");
}

TEST_F(OpenFileWithTest, TheOutcomeOfAChooserInBetweenIsNotTheWindows) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.cmdAddProgram.Press();
        f.cmdExit.Press();
    });
    t.user.OnChooser([this](ListerRequest& request) {
        request.ChosenFilePath = u"C:\\A\\a.exe";
        t.app.DialogResult = 1;
    });
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.app.DialogResult, 0);
}

// ---- Changes of the list -------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, AnUnchangedListIsNotWritten) {
    t.files.AddFile(kList, "; mine\na.exe\nC:\\A\\\n");
    InWindow([](frmOpenFileWith&) {});
    EXPECT_EQ(Written(), "; mine\na.exe\nC:\\A\\\n");
}

TEST_F(OpenFileWithTest, TogglesTheFolderOfTheCurrentRow) {
    t.files.AddFile(kList, "x.exe\nC:\\Program Files\\X\\\n");
    t.files.AddFile(u"C:\\Program Files (x86)\\X\\x.exe");
    InWindow([](frmOpenFileWith& f) {
        EXPECT_EQ(f.ListView1.IconAt(1), frmOpenFileWith::kMissingIcon);
        f.cmdToggle.Press();
        EXPECT_EQ(f.ListView1.TextAt(1, 2), u"C:\\Program Files (x86)\\X\\");
        EXPECT_EQ(f.ListView1.IconAt(1), frmOpenFileWith::kFoundIcon);
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
    EXPECT_EQ(Written(), "x.exe\r\nC:\\Program Files (x86)\\X\\\r\n");
    InWindow([](frmOpenFileWith& f) { f.OfficeMenu1.Choose("mnuToggle"); });
    EXPECT_EQ(Written(), "x.exe\r\nC:\\Program Files\\X\\\r\n");
}

TEST_F(OpenFileWithTest, AddsAProgramAtTheEnd) {
    t.files.AddFile(u"C:\\Tools\\new.exe");
    t.files.ChangeDir(u"C:\\A");
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        EXPECT_TRUE(Press(f, Key::Insert));
        EXPECT_EQ(Names(f), (std::vector<Text>{u"a.exe", u"b.exe", u"new.exe"}));
        EXPECT_EQ(f.ListView1.TextAt(3, 2), u"C:\\Tools\\");
        EXPECT_EQ(f.ListView1.IconAt(3), frmOpenFileWith::kFoundIcon);
        EXPECT_EQ(f.ListView1.Current(), 3);
        f.cmdExit.Press();
    });
    t.user.OnChooser([this](ListerRequest& request) {
        t.files.ChangeDir(u"C:\\Data");
        request.ChosenFilePath = u"C:\\Tools\\new.exe";
    });
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.user.Requests().back().FileDialogFilter, u"*.exe");
    EXPECT_EQ(t.user.Requests().back().FileDialogCaption, u"Add program to list");
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\A");
    EXPECT_EQ(Written(), std::string(kTwo) + "new.exe\r\nC:\\Tools\\\r\n");
}

TEST_F(OpenFileWithTest, WithoutAChoiceNoProgramIsAdded) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.cmdAddProgram.Press();
        EXPECT_EQ(f.ListView1.Count(), 2);
        f.cmdExit.Press();
    });
    t.user.CancelChooser();
    t.files.AddFile(kList, "a.exe\nC:\\A\\\nb.exe\nC:\\B\\\n");
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(Written(), "a.exe\nC:\\A\\\nb.exe\nC:\\B\\\n");
}

TEST_F(OpenFileWithTest, TheFirstProgramMakesAListBesideTheState) {
    t.app.Settings.OpenWithListFile.clear();
    t.files.SetStateDir(u"C:\\State");
    t.files.AddDir(u"C:\\State");
    t.user.Answer(Answer::Ok);
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.cmdAddProgram.Press();
        f.cmdExit.Press();
    });
    t.user.ChooseFile(u"C:\\A\\a.exe");
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.app.Settings.OpenWithListFile, u"C:\\State\\OpenWith.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\State\\OpenWith.lst"), "a.exe\r\nC:\\A\\\r\n");
}

TEST_F(OpenFileWithTest, DeletedRowsStayInViewUntilTheNextRead) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        EXPECT_TRUE(Press(f, Key::Delete));
        EXPECT_EQ(f.ListView1.Count(), 2);
        EXPECT_THAT(f.ListView1.RowAt(1).texts, ElementsAre(u"---", u"---"));
        f.cmdExit.Press();
    });
    t.user.Answer({u"Delete 1 items from list ? ", MessageIcon::Question, MessageButtons::YesNo},
                  Answer::Yes);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(Written(), "b.exe\r\nC:\\B\\\r\n");
}

TEST_F(OpenFileWithTest, DeletesAllSelectedRows) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.ListView1.SetSelected(2, true);
        f.cmdDelete.Press();
        f.cmdExit.Press();
    });
    t.user.Answer({u"Delete 2 items from list ? ", MessageIcon::Question, MessageButtons::YesNo},
                  Answer::Yes);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(Written(), "");
}

TEST_F(OpenFileWithTest, ANoDeletesNothing) {
    t.files.AddFile(kList, "a.exe\nC:\\A\\\n");
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.OfficeMenu1.Choose("mnuDelete");
        EXPECT_EQ(Names(f), std::vector<Text>{u"a.exe"});
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::No);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(Written(), "a.exe\nC:\\A\\\n");
}

TEST_F(OpenFileWithTest, MovesTheCurrentRowWithItsIcon) {
    InWindow([](frmOpenFileWith& f) {
        EXPECT_TRUE(Press(f, 'D', Mask::Ctrl));
        EXPECT_EQ(Names(f), (std::vector<Text>{u"b.exe", u"a.exe"}));
        EXPECT_EQ(f.ListView1.TextAt(2, 2), u"C:\\A\\");
        EXPECT_EQ(f.ListView1.IconAt(2), frmOpenFileWith::kFoundIcon);
        EXPECT_EQ(f.ListView1.KeyAt(2), u"K_ 2");
        EXPECT_EQ(f.ListView1.Current(), 2);
        EXPECT_FALSE(f.ListView1.Selected(1));
    });
    EXPECT_EQ(Written(), "b.exe\r\nC:\\B\\\r\na.exe\r\nC:\\A\\\r\n");
    InWindow([](frmOpenFileWith& f) {
        EXPECT_TRUE(Press(f, 'U', Mask::Ctrl));
        EXPECT_EQ(Names(f), (std::vector<Text>{u"a.exe", u"b.exe"}));
    });
}

TEST_F(OpenFileWithTest, AtTheEndsNothingMoves) {
    t.files.AddFile(kList, "a.exe\nC:\\A\\\nb.exe\nC:\\B\\\n");
    InWindow([](frmOpenFileWith& f) {
        f.Image2.Press();
        f.ListView1.Select(2);
        f.Image1.Press();
        EXPECT_EQ(Names(f), (std::vector<Text>{u"a.exe", u"b.exe"}));
    });
    EXPECT_EQ(Written(), "a.exe\nC:\\A\\\nb.exe\nC:\\B\\\n");
}

TEST_F(OpenFileWithTest, AListThatCannotBeWrittenIsReported) {
    t.files.SetFileReadOnly(kList);
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.Image1.Press();
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_TRUE(t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + kList));
    EXPECT_EQ(Written(), kTwo);
}

// ---- Other lists ---------------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, GetsAnotherList) {
    t.files.AddFile(u"C:\\Data\\other.lst", "c.exe\nC:\\C\\\n");
    dialog.answer = u"C:\\Data\\other.lst";
    InWindow([](frmOpenFileWith& f) {
        f.Image1.Press();
        f.cmdGetList.Press();
        EXPECT_EQ(Names(f), std::vector<Text>{u"c.exe"});
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
    EXPECT_THAT(dialog.requests, ElementsAre(SystemFileDialog::Request{
                                     SystemFileDialog::Purpose::Open, u"List files (*.lst)|*.lst",
                                     u"Get list of programs", u"", u"lst"}));
    EXPECT_EQ(t.app.Settings.OpenWithListFile, u"C:\\Data\\other.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\other.lst"), "c.exe\nC:\\C\\\n");
    EXPECT_EQ(Written(), kTwo);
}

TEST_F(OpenFileWithTest, ACancelledDialogGetsNoList) {
    InWindow([](frmOpenFileWith& f) {
        f.OfficeMenu1.Choose("mnuGetList");
        EXPECT_EQ(f.ListView1.Count(), 2);
    });
    EXPECT_EQ(t.app.Settings.OpenWithListFile, kList);
}

TEST_F(OpenFileWithTest, TheListIsEditedInTheTextToolAndReadAgain) {
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe");
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.cmdEditList.Press();
        EXPECT_EQ(Names(f), std::vector<Text>{u"c.exe"});
        f.cmdExit.Press();
    });
    t.user.AnswerAfter([this] { t.files.AddFile(kList, "c.exe\nC:\\C\\\n"); }, Answer::Yes);
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe", {kList}}));
    EXPECT_EQ(t.user.Messages().back(),
              (Message{u"Reload list of programs from file?", MessageIcon::Question, MessageButtons::YesNo}));
}

TEST_F(OpenFileWithTest, ANoKeepsTheRowsAsTheyAre) {
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        f.OfficeMenu1.Choose("mnuEditList");
        EXPECT_EQ(f.ListView1.Count(), 2);
        f.cmdExit.Press();
    });
    t.user.AnswerAfter([this] { t.files.AddFile(kList, ""); }, Answer::No);
    frmOpenFileWith(t.app).ShowModal();
}

// ---- The internal viewer -------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, TheInternalViewerShowsTheFileAndClosesTheWindow) {
    InWindow([](frmOpenFileWith& f) {
        EXPECT_TRUE(Press(f, Key::Space));
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\file.xyz"));
    EXPECT_EQ(t.app.Exchange<FileOperation>().FileOpName, u"C:\\Data\\file.xyz");
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(OpenFileWithTest, NoBackslashIsDoubledForTheInternalViewer) {
    t.app.Exchange<OpenWithRequest>().ViewWithFile = u"C:\\file.xyz";
    InWindow([](frmOpenFileWith& f) { f.cmdInternalViewer.Press(); });
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\file.xyz"));
}

TEST_F(OpenFileWithTest, WhileATextWindowStandsOpenTheInternalViewerDoesNothing) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    InWindow([](frmOpenFileWith& f) {
        f.OfficeMenu1.Choose("mnuInternalViewer");
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_THAT(texts.viewed, IsEmpty());
}

// ---- Texts and keys ------------------------------------------------------------------------------------

TEST_F(OpenFileWithTest, TheMenuInItsOrder) {
    frmOpenFileWith f(t.app);
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuClose", u"&Close"},
                                                 {"mnuGetList", u"&Get list"},
                                                 {"mnuEditList", u"&Edit list"},
                                                 {"mnuToggle", u"&Toggle \"x86\""},
                                                 {"mnuDelete", u"&Delete item"},
                                                 {"mnuAddProgram", u"&Add program"},
                                                 {"mnuInternalViewer", u"&Internal viewer"},
                                                 {"mnuLoadFile", u"&Load file"}}));
}

TEST_F(OpenFileWithTest, TheTips) {
    frmOpenFileWith f(t.app);
    EXPECT_EQ(f.cmdInternalViewer.ToolTipText.Get(), u"Use internal viewer for file");
    EXPECT_EQ(f.cmdToggle.ToolTipText.Get(),
              u"Toggle \"Program Files\" and \"Program Files (x86)\" as source");
    EXPECT_EQ(f.cmdEditList.ToolTipText.Get(), u"Edit list as text file");
    EXPECT_EQ(f.cmdLoadFile.ToolTipText.Get(), u"Load current file with selected program");
    EXPECT_EQ(f.cmdGetList.ToolTipText.Get(), u"Get list on disk");
    EXPECT_EQ(f.cmdExit.ToolTipText.Get(), u"Close this window");
    EXPECT_EQ(f.cmdDelete.ToolTipText.Get(), u"Delete item from list");
    EXPECT_EQ(f.cmdAddProgram.ToolTipText.Get(), u"Add program to list");
    EXPECT_EQ(f.Image1.ToolTipText.Get(), u"Move current item down in list");
    EXPECT_EQ(f.Image2.ToolTipText.Get(), u"Move current item up in list");
    EXPECT_EQ(f.Label4.Caption.Get(), u"Ctrl-U; Ctrl-D");
}

TEST_F(OpenFileWithTest, OtherKeysPass) {
    InWindow([](frmOpenFileWith& f) {
        EXPECT_FALSE(Press(f, 'D'));
        EXPECT_FALSE(Press(f, 'U', Mask::Ctrl | Mask::Shift));
        EXPECT_FALSE(Press(f, Key::Return, Mask::Ctrl));
        EXPECT_FALSE(Press(f, Key::Down));
    });
}

TEST_F(OpenFileWithTest, EveryControlStandsInTheLook) {
    ExpectLook(frmOpenFileWith(t.app), "files/lists", {});
}

TEST(OpenFileWithOnPosix, FindsAProgramByItsFolder) {
    TestApp t(PathStyle::Posix);
    t.files.AddFile(u"/data/p.lst", "edit\n/usr/bin/\n");
    t.files.AddFile(u"/usr/bin/edit");
    t.app.Settings.OpenWithListFile = u"/data/p.lst";
    t.app.Exchange<OpenWithRequest>().ViewWithFile = u"/file.txt";
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) {
        EXPECT_EQ(f.lblDirectory.Caption.Get(), u"/");
        EXPECT_EQ(f.ListView1.IconAt(1), frmOpenFileWith::kFoundIcon);
        f.cmdLoadFile.Press();
    });
    frmOpenFileWith(t.app).ShowModal();
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithProgram, u"/usr/bin/edit");
}

} // namespace
} // namespace korvane
