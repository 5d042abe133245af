#include "context/FileChooser.h"

#include "context/exchange/ListerRequest.h"
#include "context/ports/FilePicker.h"
#include "support/HandlerFailure.h"
#include "support/TestApp.h"
#include "testing/MemoryPatientDisk.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(FileChooser, HandsOverTheRequestAndClearsAnEarlierChoice) {
    TestApp t;
    t.app.Exchange<ListerRequest>().ChosenFilePath = u"C:\\old.tbx";
    t.user.CancelChooser();
    ShowFileChooser(t.app, ChooserMode::Save, u"*.tbx", u"Save database to disk", u"C:\\a.tbx");
    const ListerRequest& request = t.user.Requests().at(0);
    EXPECT_EQ(request.ListerMode, 1);
    EXPECT_EQ(request.FileDialogFilter, u"*.tbx");
    EXPECT_EQ(request.FileDialogCaption, u"Save database to disk");
    EXPECT_EQ(request.FileDialogDefaultName, u"C:\\a.tbx");
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"");
}

// Kept for compatibility: chooser-filter-becomes-zero.
TEST(FileChooser, LeavesLoadModeAndAFilterOfZeroAlsoInTheSettings) {
    TestApp t;
    t.user.ChooseFile(u"C:\\b.tbx");
    ShowFileChooser(t.app, ChooserMode::Save, u"*.tbx", u"Save database to disk");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ListerMode, 0);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().FileDialogFilter, u"0");
    EXPECT_EQ(t.app.Settings.FileDialogFilter, u"0");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().FileDialogCaption, u"");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"C:\\b.tbx");
}

TEST(FileChooser, ChoosesNothingWhereNobodyAnswers) {
    TestApp t;
    t.app.SetPort<FilePicker>(nullptr);
    t.app.Exchange<ListerRequest>().ChosenFilePath = u"C:\\old.tbx";
    ShowFileChooser(t.app, ChooserMode::Load, u"*.tbx", u"Select");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"");
}

TEST(FileChooser, HandsOverSeveralFilesWithTheirNumber) {
    TestApp t;
    t.user.ChooseFiles({u"C:\\a.tbx", u"C:\\b.tbx"});
    ShowFileChooser(t.app, ChooserMode::Load, u"*.tbx", u"Select");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFileCount, 2);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFiles,
              (std::vector<Text>{u"", u"C:\\a.tbx", u"C:\\b.tbx"}));
}

TEST(FileChooser, ProposesNoNameOfASaveBefore) {
    TestApp t;
    t.app.Exchange<ListerRequest>().FileDialogDefaultName = u"C:\\saved.tbx";
    t.user.CancelChooser();
    ShowFileChooser(t.app, ChooserMode::Load, u"*.tbx", u"Select");
    EXPECT_EQ(t.user.Requests().at(0).FileDialogDefaultName, u"");
}

TEST(FileChooser, IsAtRestAlsoAfterAFailure) {
    TestApp t;
    t.user.OnChooser([](ListerRequest&) { FailInHandler(); });
    EXPECT_THROW(ShowFileChooser(t.app, ChooserMode::Save, u"*.tbx", u"Save database to disk"),
                 HandlerFailure);
    const auto& request = t.app.Exchange<ListerRequest>();
    EXPECT_EQ(request.ListerMode, 0);
    EXPECT_EQ(request.FileDialogFilter, u"0");
    EXPECT_EQ(request.FileDialogCaption, u"");
    EXPECT_EQ(t.app.Settings.FileDialogFilter, u"0");
}

TEST(DirectoryLister, IsTheChooserForAllFilesUnderItsOwnCaption) {
    TestApp t;
    t.app.Exchange<ListerRequest>().ChosenFilePath = u"C:\\old.tbx";
    t.user.CancelChooser();
    ShowDirectoryLister(t.app);
    const ListerRequest& request = t.user.Requests().at(0);
    EXPECT_EQ(request.FileDialogFilter, u"*.*");
    EXPECT_EQ(request.FileDialogCaption, u"Directory lister");
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().FileDialogFilter, u"0");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().FileDialogCaption, u"");
    EXPECT_EQ(t.app.Settings.FileDialogFilter, u"0");
}

// Kept for compatibility: save-mode-stays.
TEST(DirectoryLister, KeepsTheModeAndTheNameThatWereLeftLast) {
    TestApp t;
    t.app.Exchange<ListerRequest>().ListerMode = 1;
    t.app.Exchange<ListerRequest>().FileDialogDefaultName = u"C:\\saved.rtf";
    t.user.CancelChooser();
    ShowDirectoryLister(t.app);
    EXPECT_EQ(t.user.Requests().at(0).ListerMode, 1);
    EXPECT_EQ(t.user.Requests().at(0).FileDialogDefaultName, u"C:\\saved.rtf");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ListerMode, 1);
}

TEST(DirectoryLister, DoesNothingWhereNobodyAnswers) {
    TestApp t;
    t.app.SetPort<FilePicker>(nullptr);
    ShowDirectoryLister(t.app);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().ChosenFilePath, u"");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().FileDialogFilter, u"0");
}

TEST(KeepCurrentDir, StaysWhereItIsWhenTheDirectoryHasGone) {
    TestApp t;
    t.files.AddDir(u"C:\\Here");
    t.files.ChangeDir(u"C:\\Here");
    {
        const KeepCurrentDir keep(t.app);
        t.files.ChangeDir(u"C:\\");
        t.files.Erase(u"C:\\Here");
    }
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\");
}

TEST(KeepCurrentDir, LeavesADirectoryWhoseDiskDoesntAnswer) {
    TestApp t;
    MemoryPatientDisk disk(t.files, t.clock);
    t.app.SetPort<PatientDisk>(&disk);
    t.files.AddDir(u"C:\\Here");
    t.files.ChangeDir(u"C:\\Here");
    {
        const KeepCurrentDir keep(t.app);
        t.files.ChangeDir(u"C:\\");
        disk.Hold();
    }
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\");
    EXPECT_EQ(disk.Asked(), 1);
}

TEST(KeepCurrentDir, DoesntAskTheDiskWhereNothingHasChanged) {
    TestApp t;
    MemoryPatientDisk disk(t.files, t.clock);
    t.app.SetPort<PatientDisk>(&disk);
    { const KeepCurrentDir keep(t.app); }
    EXPECT_EQ(disk.Asked(), 0);
}

TEST(KeepCurrentDir, GoesBackToDriveAndDirectory) {
    TestApp t;
    t.files.AddDir(u"C:\\Here");
    t.files.AddDrive(u'D');
    t.files.ChangeDir(u"C:\\Here");
    {
        const KeepCurrentDir keep(t.app);
        t.files.ChangeDir(u"D:\\");
    }
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\Here");
}

} // namespace
} // namespace korvane
