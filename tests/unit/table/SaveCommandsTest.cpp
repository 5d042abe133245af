#include "table/SaveCommands.h"

#include "context/exchange/ClosingSave.h"
#include "context/exchange/ListerRequest.h"
#include "support/TableBytes.h"
#include "support/TestTable.h"
#include "table/TableFile.h"
#include "table/frmTxtDbInfo.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kFile = u"C:\\Data\\people.tbx";
const Text kNew = u"C:\\Other\\new";

/// A table that was loaded from `kFile` and altered since.
class SaveCommands : public testing::Test {
protected:
    SaveCommands() {
        t.files.AddFile(kFile, NameTable(kFile, {"Anna"}));
        t.files.AddDir(u"C:\\Other");
        table.TxtDbFile = kFile;
        ReadTableData(tab);
        on.grid.SetCellValue(Row{1}, Col{1}, u"Berta");
        table.TableAltered = 1;
    }
    std::string BytesOf(const Text& path) { return t.files.Contents(path).value_or("(none)"); }
    void CloseInfo() {
        t.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) { info.cmdClose.Press(); });
    }

    TestTable on;
    TestApp& t = on.program;
    TableModel& table = on.model;
    const TabContext& tab = on.tab;
    const std::vector<Text>& captions = on.host.captions;
    const Message trySaving{
        u"Cannot save this file: \r\n\r\nC:\\Data\\people.tbx\r\n\r\nTry saving it explicitly.",
        MessageIcon::Stop};
};

TEST_F(SaveCommands, SaveWritesUnderThePresentName) {
    mnuFile_Save_Clack(tab);
    EXPECT_EQ(BytesOf(kFile), NameTable(kFile, {"Berta"}));
    EXPECT_EQ(table.TableAltered, 0);
    EXPECT_TRUE(captions.empty());
}

TEST_F(SaveCommands, SaveShowsTheInfoWhereTheSettingsSaySo) {
    t.app.Settings.ShowFileInfoAfterSave = 1;
    t.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.Caption.Get(), u"Database saved to disk!");
        EXPECT_FALSE(info.cmdCancel.Visible);
        info.cmdClose.Press();
    });
    mnuFile_Save_Clack(tab);
}

TEST_F(SaveCommands, SaveOfAFileDeletedBehindTheProgramsBackGoesOnAsSaveAs) {
    t.files.Erase(kFile);
    t.user.Answer(trySaving, Answer::Ok);
    t.user.ChooseFile(kNew);
    mnuFile_Save_Clack(tab);
    EXPECT_EQ(BytesOf(kNew), NameTable(kNew, {"Berta"}));
    EXPECT_EQ(BytesOf(kFile), "(none)");
}

TEST_F(SaveCommands, SaveOfATableThatWasNeverOnDiskGoesOnAsSaveAs) {
    table.TxtDbFile.clear();
    t.user.Answer({u"Cannot save this file: \r\n\r\n\r\n\r\nTry saving it explicitly.", MessageIcon::Stop},
                  Answer::Ok);
    t.user.CancelChooser();
    mnuFile_Save_Clack(tab);
    EXPECT_EQ(table.TxtDbFile, u"");
    EXPECT_EQ(table.TableAltered, 1);
}

TEST_F(SaveCommands, SaveAsAsksByTheRequestOfASave) {
    t.app.DialogResult = 7;
    t.user.CancelChooser();
    mnuFile_SaveAs_Clack(tab);
    const ListerRequest& request = t.user.Requests().at(0);
    EXPECT_EQ(request.ListerMode, 1);
    EXPECT_EQ(request.FileDialogFilter, u"*.tbx");
    EXPECT_EQ(request.FileDialogCaption, u"Save database to disk");
    EXPECT_EQ(request.FileDialogDefaultName, kFile);
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(table.TxtDbFile, kFile);
    EXPECT_EQ(table.TableAltered, 1);
    EXPECT_EQ(t.app.DialogResult, 7);
    EXPECT_TRUE(captions.empty());
}

TEST_F(SaveCommands, SaveAsTakesTheNameAsItIsGivenAndPutsItInTheCaption) {
    t.user.ChooseFile(kNew);
    mnuFile_SaveAs_Clack(tab);
    EXPECT_EQ(table.TxtDbFile, kNew);
    EXPECT_EQ(BytesOf(kNew), NameTable(kNew, {"Berta"}));
    EXPECT_EQ(BytesOf(kFile), NameTable(kFile, {"Anna"}));
    EXPECT_EQ(captions, std::vector<Text>{kNew});
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(SaveCommands, SaveAsShowsTheInfoBeforeTheCaptionChanges) {
    t.app.Settings.ShowFileInfoAfterSave = 1;
    t.user.ChooseFile(kNew);
    t.user.On<frmTxtDbInfo>([this](frmTxtDbInfo& info) {
        EXPECT_EQ(info.lblFileName.Caption.Get(), u"new");
        EXPECT_TRUE(captions.empty());
        info.cmdClose.Press();
    });
    mnuFile_SaveAs_Clack(tab);
    EXPECT_EQ(captions, std::vector<Text>{kNew});
}

TEST_F(SaveCommands, SaveAsGoesBackToDriveAndDirectory) {
    t.files.AddDrive(u'D');
    t.files.ChangeDir(u"C:\\Data");
    t.user.OnChooser([this](ListerRequest& request) {
        t.files.ChangeDir(u"D:\\");
        request.ChosenFilePath = u"x.tbx";
    });
    mnuFile_SaveAs_Clack(tab);
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Data");
    // The save itself still ran in the directory to which the chooser had gone.
    EXPECT_EQ(BytesOf(u"D:\\x.tbx"), NameTable(u"x.tbx", {"Berta"}));
}

TEST_F(SaveCommands, ASaveAsThatFailsCountsAsDoneAllTheSame) {
    t.files.SetFileReadOnly(kFile);
    t.user.ChooseFile(kFile);
    t.user.Answer(Answer::Ok);
    mnuFile_SaveAs_Clack(tab);
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(table.TableAltered, 1);
    EXPECT_EQ(captions, std::vector<Text>{kFile});
}

TEST_F(SaveCommands, InfoIsShownWithoutTheCaptionOfASave) {
    t.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.Caption.Get(), u"File information");
        info.cmdClose.Press();
    });
    mnuFile_FileInfo_Clack(tab);
}

// Asking before the table gives way to another one.

class AskToSaveTest : public SaveCommands {
protected:
    const Message question{u"The text database has been changed.\r\n\r\nC:\\Data\\people.tbx\r\n\r\n"
                           u"Do you want to save the changes?\r\n",
                           MessageIcon::None, MessageButtons::YesNoCancel, 1};
};

TEST_F(AskToSaveTest, ATableWithoutChangesGoesWithoutAQuestion) {
    table.TableAltered = 0;
    EXPECT_TRUE(AskToSave(tab));
}

TEST_F(AskToSaveTest, NoLetsItGoAndCancelDoesNot) {
    t.user.Answer(question, Answer::No);
    EXPECT_TRUE(AskToSave(tab));
    t.user.Answer(question, Answer::Cancel);
    EXPECT_FALSE(AskToSave(tab));
    EXPECT_EQ(table.TableAltered, 1);
}

TEST_F(AskToSaveTest, YesIsSaveAsThoughThereIsAFile) {
    t.user.Answer(question, Answer::Yes);
    t.user.ChooseFile(kNew);
    EXPECT_TRUE(AskToSave(tab));
    EXPECT_EQ(BytesOf(kNew), NameTable(kNew, {"Berta"}));
}

TEST_F(AskToSaveTest, YesWithoutANameDoesNotLetItGo) {
    t.user.Answer(question, Answer::Yes);
    t.user.CancelChooser();
    EXPECT_FALSE(AskToSave(tab));
}

// Asking before the tab closes.

class ClosingQuestion : public SaveCommands {
protected:
    const Message question{u"The text database has been changed.\r\n\r\nC:\\Data\\people.tbx\r\n\r\n"
                           u"Do you want to save the changes?\r\n",
                           MessageIcon::Question, MessageButtons::YesNoCancel, 1};
};

TEST_F(ClosingQuestion, YesSavesUnderThePresentName) {
    t.user.Answer(question, Answer::Yes);
    EXPECT_TRUE(AskToSaveAtClosing(tab));
    EXPECT_EQ(BytesOf(kFile), NameTable(kFile, {"Berta"}));
}

TEST_F(ClosingQuestion, AnOldAnswerOfAnotherWindowDoesNotRefuse) {
    t.app.DialogResult = kKeepTabOpen;
    t.user.Answer(question, Answer::Yes);
    EXPECT_TRUE(AskToSaveAtClosing(tab));
}

TEST_F(ClosingQuestion, CancelOfTheInfoCountsOnlyWhereThePlainSaveWasTaken) {
    t.app.Settings.ShowFileInfoAfterSave = 1;
    const auto cancel = [](frmTxtDbInfo& info) { info.cmdCancel.Press(); };
    t.user.Answer(question, Answer::Yes);
    t.user.On<frmTxtDbInfo>(cancel);
    EXPECT_FALSE(AskToSaveAtClosing(tab));

    table.TableAltered = 1;
    t.files.Erase(kFile);
    t.user.Answer(question, Answer::Yes);
    t.user.Answer(trySaving, Answer::Ok);
    t.user.ChooseFile(kNew);
    t.user.On<frmTxtDbInfo>(cancel);
    EXPECT_TRUE(AskToSaveAtClosing(tab));
}

TEST_F(ClosingQuestion, TheCancelButtonIsThereOnlyDuringTheSave) {
    t.app.Settings.ShowFileInfoAfterSave = 1;
    t.user.Answer(question, Answer::Yes);
    t.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        EXPECT_TRUE(info.cmdCancel.Visible);
        info.cmdClose.Press();
    });
    EXPECT_TRUE(AskToSaveAtClosing(tab));
    EXPECT_EQ(t.app.Exchange<ClosingSave>().ClosingTabSave, 0);
    t.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        info.cmdCancel.Press();
        EXPECT_TRUE(info.Shown());
        info.cmdClose.Press();
    });
    mnuFile_FileInfo_Clack(tab);
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(ClosingQuestion, NoAndCancel) {
    t.user.Answer(question, Answer::No);
    EXPECT_TRUE(AskToSaveAtClosing(tab));
    t.user.Answer(question, Answer::Cancel);
    EXPECT_FALSE(AskToSaveAtClosing(tab));
    EXPECT_EQ(BytesOf(kFile), NameTable(kFile, {"Anna"}));
}

// The window itself.

class FileInfo : public SaveCommands {
protected:
    template <class Script>
    void Look(Script script) {
        t.user.On<frmTxtDbInfo>([&](frmTxtDbInfo& info) {
            script(info);
            info.cmdClose.Press();
        });
        mnuFile_FileInfo_Clack(tab);
    }
};

TEST_F(FileInfo, ShowsFileRowsColumnsSizeAndDate) {
    t.files.AddFile(kFile, std::string(1234567, ' '));
    t.files.SetModified(kFile, {2026, 3, 1, 14, 5, 9});
    Look([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.lblFileName.Caption.Get(), u"people.tbx");
        EXPECT_EQ(info.lblFilePath.Caption.Get(), u"C:\\Data");
        EXPECT_EQ(info.lblRows.Caption.Get(), u"1");
        EXPECT_EQ(info.lblCols.Caption.Get(), u"1");
        EXPECT_EQ(info.lblFileSize.Caption.Get(), u"1,234,567 bytes");
        EXPECT_EQ(info.lblArchived.Caption.Get(), u"2026-03-01 14:05:09");
    });
}

TEST_F(FileInfo, AnEmptyFileHasAnEmptySize) {
    t.files.AddFile(kFile, "");
    Look([](frmTxtDbInfo& info) { EXPECT_EQ(info.lblFileSize.Caption.Get(), u" bytes"); });
}

TEST_F(FileInfo, WithoutAFileSizeAndDateStayEmpty) {
    table.TxtDbFile.clear();
    Look([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.lblFileName.Caption.Get(), u"");
        EXPECT_EQ(info.lblFilePath.Caption.Get(), u"");
        EXPECT_EQ(info.lblFileSize.Caption.Get(), u"");
        EXPECT_EQ(info.lblArchived.Caption.Get(), u"");
    });
}

TEST_F(FileInfo, TheClipboardGetsSixLinesAndAnEmptyOneWithTheWordBytesTwice) {
    t.files.AddFile(kFile, std::string(1234, ' '));
    t.files.SetModified(kFile, {2026, 3, 1, 14, 5, 9});
    Look([](frmTxtDbInfo& info) { info.cmdClip.Press(); });
    EXPECT_EQ(t.clipboard.GetText(), u"File: people.tbx\r\nPath: C:\\Data\r\nRows: 1\r\nCols.: 1\r\n"
                                     u"Size: 1,234 bytes bytes\r\nArchived: 2026-03-01 14:05:09\r\n\r\n");
}

TEST_F(FileInfo, CaptionsStandAsTheyAre) {
    Look([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.lblFileNameCaption.Caption.Get(), u"File name");
        EXPECT_EQ(info.lblFilePathCaption.Caption.Get(), u"File path");
        EXPECT_EQ(info.lblRowsCaption.Caption.Get(), u"No. of rows");
        EXPECT_EQ(info.lblColsCaption.Caption.Get(), u"No. of cols.");
        EXPECT_EQ(info.lblFileSizeCaption.Caption.Get(), u"File size");
        EXPECT_EQ(info.lblArchivedCaption.Caption.Get(), u"Archived");
        EXPECT_EQ(info.cmdClip.Caption.Get(), u"&Put in clipboard");
        EXPECT_EQ(info.cmdClose.Caption.Get(), u"&Close");
        EXPECT_EQ(info.cmdCancel.Caption.Get(), u"Ca&ncel");
    });
}

TEST(FileInfoOnPosix, PathsAreCutAtTheSlash) {
    TestTable on(PathStyle::Posix);
    on.program.files.AddFile(u"/home/me/a\\b.tbx", "x");
    on.model.TxtDbFile = u"/home/me/a\\b.tbx";
    on.program.user.On<frmTxtDbInfo>([](frmTxtDbInfo& info) {
        EXPECT_EQ(info.lblFileName.Caption.Get(), u"a\\b.tbx");
        EXPECT_EQ(info.lblFilePath.Caption.Get(), u"/home/me");
        info.cmdClose.Press();
    });
    mnuFile_FileInfo_Clack(on.tab);
}

} // namespace
} // namespace korvane
