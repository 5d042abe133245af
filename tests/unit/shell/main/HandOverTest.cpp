#include "shell/main/HandOver.h"

#include "context/exchange/StartState.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Message kNoAccess{u"Error accessing Korvane", MessageIcon::Stop};
const Text kFile = u"C:\\Data\\a.tbx";

class HandOverTest : public testing::Test {
protected:
    HandOverTest() {
        p.AddTable(kFile, {"x"});
        p.AddSettings();
        p.instance.running.runs = true;
        p.files.ChangeDir(u"C:\\Data");
    }
    void ExpectNothingChangedOnDisk() {
        EXPECT_EQ(p.FileBytes(u"C:\\Korvane\\Korvane.ini"), SettingsBytes({}));
        EXPECT_FALSE(p.files.FileExists(u"C:\\Korvane\\Korvane.rec"));
    }

    TestProgram p;
};

TEST_F(HandOverTest, ASecondStartHandsItsFileOverWithItsFullPathAndEnds) {
    p.Start(u"a.tbx");
    EXPECT_EQ(p.instance.Delivered(), std::vector<Text>{kFile});
    EXPECT_EQ(p.instance.Waits(), 1);
    EXPECT_EQ(p.instance.Activations(), 1);
    EXPECT_EQ(p.app.Exchange<StartState>().SecondInstance, 1);
    EXPECT_FALSE(p.Main().Shown());
    EXPECT_TRUE(p.Captions().empty());
    ExpectNothingChangedOnDisk();
}

TEST_F(HandOverTest, QuotesAroundThePathGoFirst) {
    p.Start(u"\"C:\\Data\\a.tbx\"");
    EXPECT_EQ(p.instance.Delivered(), std::vector<Text>{kFile});
}

TEST_F(HandOverTest, WithoutACommandLineTheRunningCopyOnlyComesToTheFront) {
    p.Start();
    EXPECT_TRUE(p.instance.Delivered().empty());
    EXPECT_EQ(p.instance.Waits(), 0);
    EXPECT_EQ(p.instance.Activations(), 1);
    ExpectNothingChangedOnDisk();
}

TEST_F(HandOverTest, AFileThatIsntThereIsNotHandedOver) {
    p.Start(u"C:\\missing.tbx");
    EXPECT_TRUE(p.instance.Delivered().empty());
    EXPECT_EQ(p.instance.Activations(), 1);
}

TEST_F(HandOverTest, ARunningCopyWithoutASlotIsToldAndTheStartEndsAtOnce) {
    p.instance.running.offersSlot = false;
    p.user.Answer(kNoAccess, Answer::Ok);
    p.Start(kFile);
    EXPECT_TRUE(p.instance.Delivered().empty());
    EXPECT_EQ(p.instance.Activations(), 0);
    EXPECT_FALSE(p.Main().Shown());
    ExpectNothingChangedOnDisk();
}

TEST_F(HandOverTest, ARunningCopyThatDiesMeanwhileIsTold) {
    p.instance.running.diesBeforeSlotIsEmpty = true;
    p.user.Answer(kNoAccess, Answer::Ok);
    p.Start(kFile);
    EXPECT_EQ(p.instance.Activations(), 0);
}

TEST_F(HandOverTest, APathThatIsNotTakenIsToldAndTheStartEndsAsUsual) {
    p.instance.running.takesPath = false;
    p.user.Answer(kNoAccess, Answer::Ok);
    p.Start(kFile);
    EXPECT_EQ(p.instance.Activations(), 1);
    EXPECT_EQ(p.app.Exchange<StartState>().SecondInstance, 1);
}

TEST_F(HandOverTest, ASecondStartReadsTheSettingsToo) {
    p.files.Erase(u"C:\\Korvane\\Korvane.ini");
    p.user.Answer(Answer::Ok);
    p.Start();
    EXPECT_EQ(p.user.Messages().at(0).icon, MessageIcon::Exclamation);
    EXPECT_FALSE(p.files.FileExists(u"C:\\Korvane\\Korvane.ini"));
}

class UnseenHandOverTest : public HandOverTest {
protected:
    bool Start(TextView commandLine) { return HandOverUnseen(p.files, p.instance, commandLine); }
};

TEST_F(UnseenHandOverTest, HandsTheFileOverAndBringsTheRunningCopyToTheFront) {
    EXPECT_TRUE(Start(u"\"a.tbx\""));
    EXPECT_EQ(p.instance.Delivered(), std::vector<Text>{kFile});
    EXPECT_EQ(p.instance.Waits(), 1);
    EXPECT_EQ(p.instance.Activations(), 1);
    ExpectNothingChangedOnDisk();
}

TEST_F(UnseenHandOverTest, WithoutAFileOnlyBringsTheRunningCopyToTheFront) {
    EXPECT_TRUE(Start(u""));
    EXPECT_TRUE(Start(u"C:\\missing.tbx"));
    EXPECT_TRUE(p.instance.Delivered().empty());
    EXPECT_EQ(p.instance.Activations(), 2);
}

TEST_F(UnseenHandOverTest, IsLeftToAnOrdinaryStartWhenNoOtherCopyRuns) {
    p.instance.running.runs = false;
    EXPECT_FALSE(Start(kFile));
    EXPECT_EQ(p.instance.Activations(), 0);
}

TEST_F(UnseenHandOverTest, IsLeftToAnOrdinaryStartWhenTheSettingsAreMissing) {
    p.files.Erase(u"C:\\Korvane\\Korvane.ini");
    EXPECT_FALSE(Start(kFile));
    EXPECT_TRUE(p.instance.Delivered().empty());
}

TEST_F(UnseenHandOverTest, IsLeftToAnOrdinaryStartWhenTheRunningCopyDoesNotAnswer) {
    p.instance.running.offersSlot = false;
    EXPECT_FALSE(Start(kFile));
    p.instance.running = {true, true, true, true};
    EXPECT_FALSE(Start(kFile));
    p.instance.running = {true, true, false, false};
    EXPECT_FALSE(Start(kFile));
    EXPECT_EQ(p.instance.Activations(), 0);
}

class ReceptionTest : public testing::Test {
protected:
    ReceptionTest() {
        p.AddTable(kFile, {"x"});
        p.StartWith({});
    }
    TestProgram p;
};

TEST_F(ReceptionTest, APathFromASecondStartIsLoaded) {
    EXPECT_TRUE(p.instance.Arrive(kFile));
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(p.app.Exchange<StartState>().LoadedByCommand, -1);
}

TEST_F(ReceptionTest, TheSlotIsTakenWhileALoadRuns) {
    bool tookWhileLoading = true;
    p.screen.QueueMessage([&] { tookWhileLoading = p.instance.Arrive(u"C:\\other.tbx"); });
    p.instance.Arrive(kFile);
    EXPECT_FALSE(tookWhileLoading);
    EXPECT_TRUE(p.instance.Arrive(u"C:\\other.tbx"));
}

TEST_F(ReceptionTest, ASecondStartBringsTheWindowToTheFront) {
    p.instance.AskToActivate();
    EXPECT_EQ(p.user.Raised(), std::vector<std::string>{"frmMDIParent"});
}

} // namespace
} // namespace korvane
