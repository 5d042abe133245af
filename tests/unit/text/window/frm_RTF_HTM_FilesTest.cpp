#include "context/exchange/ListerRequest.h"
#include "dialogs/frmTxtInfo.h"
#include "unit/text/window/TextWindowStage.h"

#include <algorithm>

namespace korvane {
namespace {

using TextWindowFiles = TextWindowStage;

const Message kSaveError{u"Error saving file directly.\r\n\r\nPlease use \"Save as\" function.",
                         MessageIcon::Exclamation};
const Message kOtherError{u"Error executing command just now.\r\n\r\nTry again in a moment.",
                          MessageIcon::Exclamation};

TEST_F(TextWindowFiles, OpensEmptyUnderTheUntitledNameAndUnaltered) {
    Open();
    EXPECT_EQ(window->Caption.Get(), u"Untitled.rtf");
    EXPECT_EQ(Control().All(), u"");
    EXPECT_FALSE(window->Altered());
    EXPECT_EQ(State().TextWindowOpen, 1);
    EXPECT_EQ(window->TXRuler1.Target, &Control());
    EXPECT_EQ(window->TXButtonBar1.Target, &Control());
    EXPECT_EQ(window->TXStatusBar1.Target, &Control());
    window->Close();
    EXPECT_EQ(State().TextWindowOpen, 0);
}

TEST_F(TextWindowFiles, OpensWithTheFileOfItsCaller) {
    t.files.AddFile(u"C:\\a.txt", "one\r\ntwo");
    Open(u"C:\\a.txt");
    EXPECT_EQ(window->Caption.Get(), u"C:\\a.txt");
    EXPECT_EQ(Control().All(), u"one\r\ntwo");
    EXPECT_FALSE(window->Altered());
}

TEST_F(TextWindowFiles, AMissingFileGivesAnEmptyWindowUnderItsName) {
    Open(u"C:\\gone.rtf");
    EXPECT_EQ(window->Caption.Get(), u"C:\\gone.rtf");
    EXPECT_EQ(Control().All(), u"");
    EXPECT_TRUE(t.user.Messages().empty());
}

// Kept for compatibility: untitled-text-not-read.
TEST_F(TextWindowFiles, AnUntitledFileThatIsThereIsNotRead) {
    t.files.AddFile(t.files.FullPath(u"Untitled.rtf"), "{\\rtf1 text}");
    Open();
    EXPECT_EQ(Control().All(), u"");
    EXPECT_EQ(window->Caption.Get(), u"Untitled.rtf");
}

TEST_F(TextWindowFiles, AMinusOneMeansUntitledToo) {
    State().TextWindowUntitled = -1;
    State().TextWindowFile = u"C:\\a.txt";
    window = std::make_unique<frm_RTF_HTM>(t.app);
    window->EnsureLoaded();
    EXPECT_EQ(window->ThisFileName, u"Untitled.rtf");
    window->Close();
}

TEST_F(TextWindowFiles, ABareNameIsInTheCurrentDirectory) {
    t.files.AddFile(u"C:\\data\\a.txt", "one");
    t.files.ChangeDir(u"C:\\data");
    Open(u"a.txt");
    EXPECT_EQ(window->ThisFileName, u"C:\\data\\a.txt");
    EXPECT_EQ(window->Caption.Get(), u"C:\\data\\a.txt");
    EXPECT_EQ(Control().All(), u"one");
    t.files.AddFile(u"C:\\b.txt", "root");
    t.files.ChangeDir(u"C:\\");
    window->ThisFileName = u"b.txt";
    window->LoadThisFile();
    EXPECT_EQ(window->ThisFileName, u"C:\\b.txt");
}

TEST_F(TextWindowFiles, AFileGivesThePageItsSizesAndLeavesTheOthers) {
    t.files.AddFile(u"C:\\a.rtf", "{\\rtf1\\paperw9000\\margl700 text}");
    Open(u"C:\\a.rtf");
    EXPECT_EQ(Control().PageSize(doc::Page::Width), 9000);
    EXPECT_EQ(Control().PageSize(doc::Page::MarginLeft), 700);
    EXPECT_EQ(Control().PageSize(doc::Page::MarginTop), 240);
    EXPECT_EQ(Control().PageSize(doc::Page::MarginRight), 240);
    EXPECT_EQ(Control().PageSize(doc::Page::MarginBottom), 240);
}

TEST_F(TextWindowFiles, APlainFileHasPagesAsWideAsTheWindow) {
    t.files.AddFile(u"C:\\a.txt", "text");
    Open(u"C:\\a.txt");
    EXPECT_EQ(Control().PageSize(doc::Page::Width), window->Width.Get().Number());
    EXPECT_GT(Control().PageSize(doc::Page::Height), 240);
}

TEST_F(TextWindowFiles, AFileThatGoesWhileItIsOpenedIsReported) {
    t.files.AddFile(u"C:\\a.txt", "one");
    Open();
    window->ThisFileName = u"C:\\a.txt";
    State().TextWindowUntitled = 0;
    Control().Change = [this] { t.files.Remove(u"C:\\a.txt"); };
    t.user.Answer({u"Cannot locate the following program/file:\r\n\r\nC:\\a.txt\r\n\r\nCheck the path before "
                   u"the name and see whether\r\nthe program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    window->LoadThisFile();
    EXPECT_EQ(Control().All(), u"");
    EXPECT_EQ(window->Caption.Get(), u"C:\\a.txt");
    Control().Change = nullptr;
}

TEST_F(TextWindowFiles, AFileThatIsNotOfItsFormatIsReported) {
    t.files.AddFile(u"C:\\a.rtf", "\x89PNG");
    t.user.Answer(kOtherError, Answer::Ok);
    Open(u"C:\\a.rtf");
    EXPECT_EQ(Control().All(), u"");
    EXPECT_EQ(window->Caption.Get(), u"C:\\a.rtf");
}

TEST_F(TextWindowFiles, SavesUnderItsNameWithTheNameOverTheButtons) {
    Open();
    Control().SetSelText(u"text");
    t.files.ChangeDir(u"C:\\");
    bool covered = false;
    const auto isHidden = [](const class Control* control) {
        return dynamic_cast<const CommandButton*>(control) == nullptr || !control->Visible;
    };
    // The first messages run before the buttons go, the second ones while they are gone.
    t.screen.QueueMessage([] {});
    t.screen.QueueMessage([&] {
        covered = std::ranges::all_of(window->Controls(), isHidden) && window->lblFileName.Visible &&
                  window->lblFileName.Caption.Get() == u" Saving:  Untitled.rtf" &&
                  t.screen.CurrentPointer() == Pointer::Hourglass;
    });
    const auto before = t.clock.Uptime();
    window->cmdSave.Press();
    EXPECT_TRUE(covered);
    EXPECT_EQ(t.clock.Uptime() - before, std::chrono::milliseconds(500));
    EXPECT_TRUE(std::ranges::none_of(window->Controls(), [](const class Control* control) {
        return dynamic_cast<const CommandButton*>(control) != nullptr && !control->Visible;
    }));
    EXPECT_FALSE(window->lblFileName.Visible);
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
    EXPECT_TRUE(t.files.Contents(u"C:\\Untitled.rtf")->starts_with("{\\rtf1"));
    EXPECT_FALSE(window->Altered());
}

TEST_F(TextWindowFiles, ThePageGoesIntoTheFile) {
    Open();
    const auto sizeOf = [](int index) { return 4000 + 20 * index; };
    for (const TextView path : {u"C:\\a.rtf", u"C:\\a.html", u"C:\\a.docx"}) {
        for (int size = 0; size < static_cast<int>(doc::Page::kSizes); ++size)
            Control().SetPageSize(static_cast<doc::Page::Size>(size), sizeOf(size));
        window->ThisFileName = Text(path);
        window->SaveThisFile();
        Control().SetPageSize(doc::Page::Height, 15000);
        State().TextWindowUntitled = 0;
        window->LoadThisFile();
        for (int size = 0; size < static_cast<int>(doc::Page::kSizes); ++size)
            EXPECT_EQ(Control().PageSize(static_cast<doc::Page::Size>(size)), sizeOf(size)) << ToUtf8(path);
    }
}

// Kept for compatibility: save-types-differ.
TEST_F(TextWindowFiles, AnAspOpensAsPlainTextAndIsSavedAsHtml) {
    t.files.AddFile(u"C:\\a.asp", "<b>x</b>");
    Open(u"C:\\a.asp");
    EXPECT_EQ(Control().All(), u"<b>x</b>");
    window->SaveThisFile();
    EXPECT_NE(t.files.Contents(u"C:\\a.asp")->find("&lt;b"), std::string::npos);
}

// Kept for compatibility: save-types-differ.
TEST_F(TextWindowFiles, AnXmlIsWrittenBackAsPlainText) {
    t.files.AddFile(u"C:\\a.xml", "<a>x</a>");
    Open(u"C:\\a.xml");
    Control().SetSelText(u"!");
    window->SaveThisFile();
    EXPECT_EQ(t.files.Contents(u"C:\\a.xml"), "!<a>x</a>");
}

// Kept for compatibility: failed-text-save-counts.
TEST_F(TextWindowFiles, AFailedSaveIsToldAndCountsAsSaved) {
    t.files.AddFile(u"C:\\a.rtf", "{\\rtf1 old}");
    Open(u"C:\\a.rtf");
    Control().SetSelText(u"new");
    t.files.SetFileReadOnly(u"C:\\a.rtf");
    t.user.Answer(kSaveError, Answer::Ok);
    window->SaveThisFile();
    EXPECT_EQ(t.files.Contents(u"C:\\a.rtf"), "{\\rtf1 old}");
    EXPECT_FALSE(window->Altered());
}

TEST_F(TextWindowFiles, TheCodeOfAFailedSaveCountsInItsExactCase) {
    Open();
    t.user.Answer(kSaveError, Answer::Ok);
    window->ThisTextCtrl_Error(u"error 1d09 of the control");
    t.user.Answer(kOtherError, Answer::Ok);
    window->ThisTextCtrl_Error(u"error 1D09 of the control");
}

TEST_F(TextWindowFiles, ADocWithoutItsProgramIsToldInOtherWords) {
    Open();
    window->ThisFileName = u"C:\\a.doc";
    t.user.Answer(kOtherError, Answer::Ok);
    window->SaveThisFile();
    EXPECT_FALSE(t.files.FileExists(u"C:\\a.doc"));
}

class CutTextFiles : public TextWindowStage {
protected:
    /// Opens a file that is nested too deeply to be read to its end.
    void OpenCut() {
        t.files.AddFile(kPath, kWhole);
        t.user.Answer({u"The file is larger than a text can be. Only its beginning is shown.",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        Open(kPath);
    }

    const Text kPath = u"C:\\deep.rtf";
    const std::string kWhole = "{\\rtf1 part" + std::string(doc::Limits{}.depth, '{');
};

TEST_F(CutTextFiles, AFileLargerThanATextIsShownInPartAndNeverReplacedByIt) {
    OpenCut();
    EXPECT_EQ(Control().All(), u"part");
    EXPECT_FALSE(window->Altered());
    Control().SetSelText(u"a ");
    t.user.Answer(kSaveError, Answer::Ok);
    window->cmdSave.Press();
    EXPECT_EQ(t.files.Contents(kPath), kWhole);
    t.user.ChooseFile(u"C:\\part.txt");
    window->cmdSaveAs.Press();
    EXPECT_EQ(t.files.Contents(u"C:\\part.txt"), "a part");
    EXPECT_EQ(t.files.Contents(kPath), kWhole);
}

TEST_F(CutTextFiles, ClosingSavesAPartUnderAnotherName) {
    OpenCut();
    Control().SetSelText(u"a ");
    AnswerSaving(MsgAnswer::SaveDirectly);
    t.user.ChooseFile(u"C:\\part.txt");
    EXPECT_TRUE(window->Close());
    EXPECT_EQ(t.files.Contents(u"C:\\part.txt"), "a part");
    EXPECT_EQ(t.files.Contents(kPath), kWhole);
}

TEST_F(CutTextFiles, AnotherTextMayTakeThePlaceOfTheFile) {
    OpenCut();
    window->cmdNew.Press();
    Control().SetSelText(u"other");
    t.user.ChooseFile(kPath);
    window->cmdSaveAs.Press();
    EXPECT_NE(t.files.Contents(kPath)->find("other"), std::string::npos);
}

TEST_F(TextWindowFiles, ClosingAnUnalteredTextAsksNothing) {
    Open();
    EXPECT_TRUE(window->Close());
}

TEST_F(TextWindowFiles, ClosingAsksForAnAlteredTextAndSavesIt) {
    t.files.AddFile(u"C:\\a.txt", "old");
    Open(u"C:\\a.txt");
    Control().SetSelText(u"new ");
    t.user.On<frmMyMsgBox>([](frmMyMsgBox& box) {
        EXPECT_EQ(box.txtFileName.Text.Get(), u"a.txt");
        box.cmdAutoSave.Press();
    });
    EXPECT_TRUE(window->Close());
    EXPECT_EQ(t.files.Contents(u"C:\\a.txt"), "new old");
}

TEST_F(TextWindowFiles, EachOfTheTwoFlagsIsEnoughForTheQuestion) {
    Open();
    Control().SetSelText(u"x");
    window->TextAltered = 0;
    AnswerSaving(MsgAnswer::Cancel);
    EXPECT_FALSE(window->Close());
    Control().SetDataChanged(false);
    window->TextAltered = 1;
    AnswerSaving(MsgAnswer::DoNotSave);
    EXPECT_TRUE(window->Close());
}

TEST_F(TextWindowFiles, ACancelledClosingLeavesTheWindowOpenWithTheFocusInTheText) {
    Open();
    Control().SetSelText(u"x");
    window->cmdSave.SetFocus();
    AnswerSaving(MsgAnswer::Cancel);
    EXPECT_FALSE(window->Close());
    EXPECT_EQ(State().TextWindowOpen, 1);
    EXPECT_EQ(window->Focused(), &Control());
    CloseUnsaved();
}

TEST_F(TextWindowFiles, AnUntitledTextIsSavedUnderAName) {
    Open();
    Control().SetSelText(u"x");
    AnswerSaving(MsgAnswer::SaveDirectly);
    t.user.ChooseFile(u"C:\\b.txt");
    EXPECT_TRUE(window->Close());
    EXPECT_EQ(t.files.Contents(u"C:\\b.txt"), "x");
}

TEST_F(TextWindowFiles, TheWordUntitledCountsInItsExactCase) {
    Open();
    window->Caption = u"C:\\untitled.txt";
    window->ThisFileName = u"C:\\untitled.txt";
    AnswerSaving(MsgAnswer::SaveDirectly);
    EXPECT_EQ(window->AskSaveChanges(), MsgAnswer::SaveDirectly);
    window->Caption = u"C:\\Untitled letter.txt";
    AnswerSaving(MsgAnswer::SaveDirectly);
    EXPECT_EQ(window->AskSaveChanges(), MsgAnswer::SaveUnderAName);
    AnswerSaving(MsgAnswer::DoNotSave);
    window->cmdSave.SetFocus();
    EXPECT_EQ(window->AskSaveChanges(), MsgAnswer::DoNotSave);
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowFiles, AClosingWhoseSaveAsIsCancelledStops) {
    Open();
    Control().SetSelText(u"x");
    AnswerSaving(MsgAnswer::SaveUnderAName);
    t.user.CancelChooser();
    EXPECT_FALSE(window->Close());
    EXPECT_TRUE(window->Shown());
    CloseUnsaved();
}

// Kept for compatibility: new-text-saves-nothing.
TEST_F(TextWindowFiles, NewDropsTheTextAlsoAfterTheAnswerToSave) {
    t.files.AddFile(u"C:\\a.txt", "old");
    Open(u"C:\\a.txt");
    Control().SetSelText(u"new");
    AnswerSaving(MsgAnswer::SaveDirectly);
    window->OfficeMenu1.Choose("mnuFile_New");
    EXPECT_EQ(Control().All(), u"");
    EXPECT_EQ(window->Caption.Get(), u"Untitled.rtf");
    EXPECT_EQ(window->ThisFileName, u"Untitled.rtf");
    EXPECT_FALSE(window->Altered());
    EXPECT_EQ(t.files.Contents(u"C:\\a.txt"), "old");
}

// Kept for compatibility: new-text-saves-nothing.
TEST_F(TextWindowFiles, OpenDropsTheTextAlsoAfterTheAnswersToSave) {
    t.files.AddFile(u"C:\\a.txt", "old");
    t.files.AddFile(u"C:\\b.txt", "text of b");
    for (const MsgAnswer answer : {MsgAnswer::SaveDirectly, MsgAnswer::SaveUnderAName}) {
        Open(u"C:\\a.txt");
        Control().SetSelText(u"new");
        AnswerSaving(answer);
        t.user.ChooseFile(u"C:\\b.txt");
        window->cmdOpen.Press();
        EXPECT_EQ(Control().All(), u"text of b");
        EXPECT_EQ(t.files.Contents(u"C:\\a.txt"), "old");
        window->Close();
    }
}

TEST_F(TextWindowFiles, ACancelKeepsTheTextFromNewAndOpen) {
    Open();
    Control().SetSelText(u"x");
    AnswerSaving(MsgAnswer::Cancel);
    window->cmdNew.Press();
    AnswerSaving(MsgAnswer::Cancel);
    window->cmdOpen.Press();
    EXPECT_EQ(Control().All(), u"x");
    EXPECT_TRUE(window->Altered());
    CloseUnsaved();
}

TEST_F(TextWindowFiles, OpenLoadsTheChosenFileAndKeepsTheDirectory) {
    t.files.AddDir(u"C:\\data");
    t.files.AddFile(u"C:\\other\\b.txt", "text of b");
    t.files.ChangeDir(u"C:\\data");
    Open();
    t.user.OnChooser([this](ListerRequest& request) {
        EXPECT_EQ(request.ListerMode, 0);
        EXPECT_EQ(request.FileDialogFilter, u"*.*");
        EXPECT_EQ(request.FileDialogCaption, u"Load a file into text window");
        t.files.ChangeDir(u"C:\\other");
        request.ChosenFilePath = u"C:\\other\\b.txt";
    });
    window->OfficeMenu1.Choose("mnuFile_Open");
    EXPECT_EQ(Control().All(), u"text of b");
    EXPECT_EQ(window->Caption.Get(), u"C:\\other\\b.txt");
    EXPECT_FALSE(window->Altered());
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\data");
    t.user.CancelChooser();
    window->cmdOpen.Press();
    EXPECT_EQ(window->ThisFileName, u"C:\\other\\b.txt");
}

TEST_F(TextWindowFiles, OpeningAMissingFileLeavesTheCaption) {
    Open();
    t.user.ChooseFile(u"C:\\gone.txt");
    window->cmdOpen.Press();
    EXPECT_EQ(window->ThisFileName, u"C:\\gone.txt");
    EXPECT_EQ(window->Caption.Get(), u"Untitled.rtf");
}

TEST_F(TextWindowFiles, SaveAsTakesTheNameAndKeepsTheDirectory) {
    t.files.AddDir(u"C:\\data");
    t.files.AddDir(u"C:\\other");
    t.files.ChangeDir(u"C:\\data");
    Open();
    Control().SetSelText(u"x");
    t.user.OnChooser([this](ListerRequest& request) {
        EXPECT_EQ(request.ListerMode, 1);
        EXPECT_EQ(request.FileDialogFilter, u"*.*");
        EXPECT_EQ(request.FileDialogCaption, u"Save text to disk");
        EXPECT_EQ(request.FileDialogDefaultName, u"Untitled.rtf");
        t.files.ChangeDir(u"C:\\other");
        request.ChosenFilePath = u"C:\\other\\b.txt";
    });
    window->OfficeMenu1.Choose("mnuFile_SaveAs");
    EXPECT_EQ(t.files.Contents(u"C:\\other\\b.txt"), "x");
    EXPECT_EQ(window->Caption.Get(), u"C:\\other\\b.txt");
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\data");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ListerMode, 0);
}

// Kept for compatibility: cancelled-save-as-stays.
TEST_F(TextWindowFiles, ACancelledSaveAsLeavesTheModeAndTheDirectory) {
    t.files.AddDir(u"C:\\other");
    Open();
    t.user.OnChooser([this](ListerRequest&) { t.files.ChangeDir(u"C:\\other"); });
    window->cmdSaveAs.Press();
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ListerMode, 1);
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\other");
    EXPECT_EQ(window->ThisFileName, u"Untitled.rtf");
}

TEST_F(TextWindowFiles, TheInformationHasTheSizeInBytes) {
    t.files.AddFile(u"C:\\data\\a.txt", std::string(1234, 'x'));
    t.files.SetModified(u"C:\\data\\a.txt", DateTime{2026, 3, 4, 5, 6, 7});
    Open(u"C:\\data\\a.txt");
    t.user.On<frmTxtInfo>([this](frmTxtInfo& info) {
        EXPECT_EQ(info.lblFileName.Caption.Get(), u"a.txt");
        EXPECT_EQ(info.lblFilePath.Caption.Get(), u"C:\\data");
        EXPECT_EQ(info.lblFileSize.Caption.Get(), u"1,234 bytes");
        info.cmdClip.Press();
        // Kept for compatibility: bytes-twice.
        EXPECT_NE(t.clipboard.GetText().find(u"Size: 1,234 bytes bytes\r\n"), Text::npos);
        info.Close();
    });
    window->OfficeMenu1.Choose("mnuInfo");
}

TEST_F(TextWindowFiles, TheInformationOnAnUnsavedTextSaysSo) {
    Open();
    t.user.On<frmTxtInfo>([](frmTxtInfo& info) {
        EXPECT_EQ(info.lblFileSize.Caption.Get(), u"0");
        EXPECT_EQ(info.lblArchived.Caption.Get(), u"(not yet saved!)");
        info.Close();
    });
    window->cmdInfo.Press();
}

TEST_F(TextWindowFiles, ThePlaceAndTheZoomAreKept) {
    t.app.Settings.RtfZoom = 150;
    t.app.Settings.RtfLeft = 2000;
    t.app.Settings.RtfTop = 1000;
    t.app.Settings.RtfWidth = 7000;
    t.app.Settings.RtfHeight = 6000;
    Open();
    EXPECT_EQ(window->Width.Get(), Twips{7000});
    EXPECT_EQ(Control().ZoomFactor, 150);
    EXPECT_EQ(window->Height.Get(), Twips{6000});
    EXPECT_EQ(window->Left.Get(), Twips{2000});
    EXPECT_EQ(window->Top.Get(), Twips{1000});
    window->Left = Twips{2100};
    window->Top = Twips{1100};
    window->Height = Twips{6100};
    Control().ZoomFactor = 200;
    window->Close();
    EXPECT_EQ(t.app.Settings.RtfLeft, 2100);
    EXPECT_EQ(t.app.Settings.RtfTop, 1100);
    EXPECT_EQ(t.app.Settings.RtfHeight, 6100);
    EXPECT_EQ(t.app.Settings.RtfZoom, 200);
}

TEST_F(TextWindowFiles, TheRulerHasTheUnitsOfTheSettings) {
    t.app.Settings.TabUnitKind = 1;
    Open();
    EXPECT_EQ(Control().ScaleUnits, TextControl::kMillimetres);
    window->Close();
    t.app.Settings.TabUnitKind = 2;
    window->EnsureLoaded();
    EXPECT_EQ(Control().ScaleUnits, TextControl::kInches);
}

TEST_F(TextWindowFiles, AZoomOfZeroInTheSettingsIsNone) {
    Open();
    EXPECT_EQ(Control().ZoomFactor, 100);
}

TEST_F(TextWindowFiles, TheUserLearnsWhichProgramIsMissing) {
    converter.missing = "LibreOffice";
    const Message failed{u"Error executing command just now.\r\n\r\nTry again in a moment.",
                         MessageIcon::Exclamation, MessageButtons::Ok};
    const Message needed{u"Files of this kind need the program LibreOffice, which is not installed.",
                         MessageIcon::Exclamation, MessageButtons::Ok};
    t.files.AddFile(u"C:\\letter.doc", "old doc");
    t.user.Answer(failed, Answer::Ok);
    t.user.Answer(needed, Answer::Ok);
    Open(u"C:\\letter.doc");
    t.user.Answer(failed, Answer::Ok);
    t.user.Answer(needed, Answer::Ok);
    window->SaveThisFile();
    // Where the program is there and fails, there is nothing to install.
    converter.missing.clear();
    t.user.Answer(failed, Answer::Ok);
    window->SaveThisFile();
}

} // namespace
} // namespace korvane
