#include "testing/MemoryBackground.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"
#include "testing/MemoryFileTypes.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(MemoryClockTest, DoesNotMoveUntilItIsSet) {
    MemoryClock clock({2026, 1, 2, 3, 4, 5});
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 2, 3, 4, 5}));
    clock.Set({2027, 1, 1, 0, 0, 0});
    EXPECT_EQ(clock.Now(), (DateTime{2027, 1, 1, 0, 0, 0}));
}

TEST(MemoryClockTest, WaitsMoveItOnAndAreRemembered) {
    MemoryClock clock({2026, 12, 31, 23, 59, 59});
    clock.Wait(500ms);
    clock.Wait(500ms);
    EXPECT_EQ(clock.Now(), (DateTime{2027, 1, 1, 0, 0, 0}));
    EXPECT_THAT(clock.Waits(), ElementsAre(500ms, 500ms));
}

TEST(MemoryClockTest, ItsUptimeOnlyGrows) {
    MemoryClock clock;
    clock.Pass(1500ms);
    EXPECT_EQ(clock.Uptime(), 1500ms);
    clock.Set({2020, 1, 1, 0, 0, 0});
    clock.Wait(500ms);
    EXPECT_EQ(clock.Uptime(), 2000ms);
    EXPECT_EQ(clock.Now(), (DateTime{2020, 1, 1, 0, 0, 0}));
}

struct MemoryBackgroundTest : testing::Test {
    Background::Work Note(const std::string& name) {
        return [this, name](FileSystem&) { order += name; };
    }
    Background::Action Then(const std::string& name) {
        return [this, name] { order += name; };
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    MemoryBackground background{files, clock};
    std::string order;
};

TEST_F(MemoryBackgroundTest, DoesOneWorkAtATimeInTheirOrder) {
    background.Do(Note("a"), AtEnd::Done, Then("A"));
    background.Do(Note("b"), AtEnd::LeftOut, {});
    EXPECT_EQ(order, "");
    EXPECT_TRUE(background.DoNext());
    EXPECT_EQ(order, "aA");
    background.DoAll();
    EXPECT_EQ(order, "aAb");
    EXPECT_FALSE(background.DoNext());
}

TEST_F(MemoryBackgroundTest, CallsWhatIsDueAtItsTime) {
    background.After(5s, [this] { order += std::to_string(clock.Uptime().count()); });
    background.After(2s, [this] { background.Do(Note("work "), AtEnd::Done, {}); });
    background.Pass(4999ms);
    EXPECT_EQ(order, "work ");
    background.Pass(1ms);
    EXPECT_EQ(order, "work 5000");
    background.Pass(1h);
    EXPECT_EQ(order, "work 5000");
}

TEST_F(MemoryBackgroundTest, AtTheEndDoesOnlyWhatMustNotBeLeftOut) {
    background.Do(Note("a"), AtEnd::Done, Then("A"));
    background.Do(Note("b"), AtEnd::LeftOut, Then("B"));
    background.After(1s, Then("C"));
    background.End();
    background.Pass(1h);
    EXPECT_EQ(order, "a");
}

TEST(MemoryClipboardTest, HoldsTextUntilItIsCleared) {
    MemoryClipboard clipboard;
    EXPECT_FALSE(clipboard.HasText());
    clipboard.SetText(u"Ann");
    EXPECT_TRUE(clipboard.HasText());
    EXPECT_EQ(clipboard.GetText(), u"Ann");
    clipboard.Clear();
    EXPECT_FALSE(clipboard.HasText());
    EXPECT_EQ(clipboard.GetText(), u"");
}

TEST(MemoryScreenTest, RemembersPointers) {
    MemoryScreen screen;
    EXPECT_EQ(screen.CurrentPointer(), Pointer::Default);
    screen.SetPointer(Pointer::Hourglass);
    EXPECT_EQ(screen.CurrentPointer(), Pointer::Hourglass);
    screen.SetPointer(Pointer::Default);
    EXPECT_THAT(screen.Pointers(), ElementsAre(Pointer::Hourglass, Pointer::Default));
}

TEST(MemoryScreenTest, RunsOneQueuedMessageEachTimeEvenFromWithinAMessage) {
    MemoryScreen screen;
    std::string order;
    screen.QueueMessage([&] {
        order += "a";
        screen.ProcessMessages();
        order += "c";
    });
    screen.QueueMessage([&] { order += "b"; });
    screen.ProcessMessages();
    screen.ProcessMessages();
    EXPECT_EQ(order, "abc");
    EXPECT_EQ(screen.ProcessMessagesCount(), 3);
}

TEST(MemoryScreenTest, TheWorkAreaCanBeSet) {
    MemoryScreen screen;
    const Rect area{Twips{0}, Twips{450}, Twips{15360}, Twips{11070}};
    screen.SetWorkArea(area);
    EXPECT_EQ(screen.WorkArea(), area);
}

TEST(MemoryShellTest, RemembersItsCalls) {
    MemoryShell shell;
    shell.Explore(u"/home");
    shell.ToggleDesktop();
    EXPECT_THAT(shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"/home"},
                                           ShellCall{ShellCall::Kind::ToggleDesktop, u""}));
}

TEST(MemoryShellTest, RemembersTheAddressesThatWereBrowsed) {
    MemoryShell shell;
    shell.Browse(u"https://x.org");
    EXPECT_THAT(shell.Browsed(), ElementsAre(u"https://x.org"));
}

TEST(MemoryFileTypesTest, FindsTypesByTheExtensionAndRemembersTheFilesThatWereRead) {
    MemoryFileTypes types;
    types.SetType(u".exe", {u"Application", u"DOSExeIcon"});
    types.SetOwnImage(u"C:\\a.exe", u"own");
    EXPECT_EQ(types.TypeOf(u"C:\\a.exe"), (FileType{u"Application", u"DOSExeIcon"}));
    EXPECT_EQ(&types.TypeOf(u"C:\\a.exe"), &types.TypeOf(u"b.exe"));
    EXPECT_EQ(&types.TypeOf(u"exe"), &types.TypeOf(u"a.txt"));
    EXPECT_EQ(types.OwnImage(u"C:\\a.exe"), u"own");
    EXPECT_EQ(types.OwnImage(u"b.exe"), u"");
    EXPECT_THAT(types.FilesRead(), ElementsAre(u"C:\\a.exe", u"b.exe"));
}

TEST(MemoryFileTypesTest, CanHaveNoImages) {
    MemoryFileTypes types;
    EXPECT_TRUE(types.PrepareImages());
    types.SetHasImages(false);
    EXPECT_FALSE(types.PrepareImages());
    EXPECT_EQ(types.Preparations(), 2);
}

const Message kQuestion{u"Save?", MessageIcon::Question, MessageButtons::YesNoCancel, 2};

TEST(ScriptedMessageBoxesTest, AnswersInTheOrderOfTheScript) {
    ScriptedMessageBoxes boxes([](const std::string& what) { ADD_FAILURE() << what; });
    boxes.QueueAnswer(Answer::No);
    boxes.QueueAnswer(Answer::Yes);
    EXPECT_EQ(boxes.Show(kQuestion), Answer::No);
    EXPECT_EQ(boxes.PendingAnswers(), 1u);
    EXPECT_EQ(boxes.Show(kQuestion), Answer::Yes);
    EXPECT_THAT(boxes.Shown(), ElementsAre(kQuestion, kQuestion));
    boxes.ForgetShown();
    EXPECT_THAT(boxes.Shown(), IsEmpty());
}

TEST(ScriptedMessageBoxesTest, ComplainsByNameOfABoxThatIsNotScripted) {
    std::string complaint;
    ScriptedMessageBoxes boxes([&](const std::string& what) { complaint = what; });
    EXPECT_EQ(boxes.Show(kQuestion), Answer::Cancel);
    EXPECT_EQ(complaint, "nobody scripted an answer to the message box \"Save?\" (icon: Question, "
                         "buttons: YesNoCancel, default button: 2)");
}

TEST(ScriptedMessageBoxesTest, ComplainsOfAnAnswerThatTheBoxDoesNotOffer) {
    std::string complaint;
    ScriptedMessageBoxes boxes([&](const std::string& what) { complaint = what; });
    boxes.QueueAnswer(Answer::Yes);
    EXPECT_EQ(boxes.Show({u"Done", MessageIcon::None, MessageButtons::Ok, 1}), Answer::Ok);
    EXPECT_THAT(complaint, HasSubstr("the scripted answer has no button in the message box \"Done\""));
}

TEST(ScriptedMessageBoxesTest, WithoutAComplaintAnswersAsEscDoes) {
    ScriptedMessageBoxes boxes;
    EXPECT_EQ(boxes.Show({u"a", MessageIcon::Stop, MessageButtons::Ok, 1}), Answer::Ok);
    EXPECT_EQ(boxes.Show({u"b", MessageIcon::Stop, MessageButtons::YesNo, 1}), Answer::No);
    EXPECT_EQ(boxes.Show({u"c", MessageIcon::Stop, MessageButtons::YesNoCancel, 1}), Answer::Cancel);
    EXPECT_EQ(boxes.Show({u"d", MessageIcon::Stop, MessageButtons::OkCancel, 1}), Answer::Cancel);
}

TEST(MemoryInstanceChannelTest, IsTheFirstStartUntilToldOtherwise) {
    MemoryInstanceChannel channel;
    EXPECT_FALSE(channel.PreviousInstanceRuns());
    channel.running.runs = true;
    EXPECT_TRUE(channel.PreviousInstanceRuns());
}

TEST(MemoryInstanceChannelTest, RemembersWhatTheSecondStartDid) {
    MemoryInstanceChannel channel;
    EXPECT_TRUE(channel.FindReceiver());
    EXPECT_TRUE(channel.WaitUntilSlotEmpty());
    EXPECT_TRUE(channel.Deliver(u"/a.tbx"));
    channel.ActivateRunning();
    EXPECT_EQ(channel.Waits(), 1);
    EXPECT_THAT(channel.Delivered(), ElementsAre(u"/a.tbx"));
    EXPECT_EQ(channel.Activations(), 1);
}

TEST(MemoryInstanceChannelTest, FailsAsTheRunningCopyIsSet) {
    MemoryInstanceChannel channel;
    channel.running = {true, false, true, false};
    EXPECT_FALSE(channel.FindReceiver());
    EXPECT_FALSE(channel.WaitUntilSlotEmpty());
    EXPECT_FALSE(channel.Deliver(u"/a.tbx"));
    EXPECT_THAT(channel.Delivered(), IsEmpty());
}

TEST(MemoryInstanceChannelTest, BringsPathsToTheCopyThatListens) {
    MemoryInstanceChannel channel;
    EXPECT_FALSE(channel.Arrive(u"/a.tbx"));
    EXPECT_FALSE(channel.AskToActivate());
    Text slot;
    int activations = 0;
    channel.Listen(
        {[&](TextView path) { slot = path; }, [&] { return slot.empty(); }, [&] { ++activations; }});
    EXPECT_TRUE(channel.Arrive(u"/a.tbx"));
    EXPECT_EQ(slot, u"/a.tbx");
    EXPECT_FALSE(channel.Arrive(u"/b.tbx"));
    EXPECT_TRUE(channel.AskToActivate());
    EXPECT_EQ(activations, 1);
}

TEST(MemoryShellTest, RemembersStartsAndCountsTheirTaskNumbers) {
    MemoryShell shell;
    EXPECT_EQ(shell.Run(u"C:\\a.exe", {u"one", u"two"}, WindowState::Normal), 1);
    EXPECT_EQ(shell.Run(u"C:\\b.exe", {}, WindowState::Minimised), 2);
    EXPECT_THAT(shell.Starts(), ElementsAre(ProgramStart{u"C:\\a.exe", {u"one", u"two"}, WindowState::Normal},
                                            ProgramStart{u"C:\\b.exe", {}, WindowState::Minimised}));
}

TEST(MemoryShellTest, StartsNeitherAnEmptyProgramNorOneThatCantBeStarted) {
    MemoryShell shell;
    shell.SetStartable([](TextView program) { return program == u"there"; });
    EXPECT_EQ(shell.Run(u"", {}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(u"lost", {}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(u"there", {}, WindowState::Normal), 3);
}

TEST(MemoryShellTest, RemembersWhatWasToBeRecycled) {
    MemoryShell shell;
    EXPECT_FALSE(shell.Recycle(u"/a", RecycleTalk::Silent));
    shell.SetRecycler([](TextView path) { return path == u"/b"; });
    EXPECT_TRUE(shell.Recycle(u"/b", RecycleTalk::AsksAndShows));
    EXPECT_FALSE(shell.Recycle(u"/c", RecycleTalk::Silent));
    EXPECT_THAT(shell.Recycled(), ElementsAre(Recycling{u"/a", RecycleTalk::Silent},
                                              Recycling{u"/b", RecycleTalk::AsksAndShows},
                                              Recycling{u"/c", RecycleTalk::Silent}));
}

TEST(MemoryShellTest, RemembersWhatWasOpenedAndTheBell) {
    MemoryShell shell;
    shell.Open({u"explore", u"C:\\Data", {}, u"C:\\Data"});
    shell.Beep();
    EXPECT_THAT(shell.Opened(), ElementsAre(OpenRequest{u"explore", u"C:\\Data", {}, u"C:\\Data"}));
    EXPECT_THAT(shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Beep, {}}));
}

} // namespace
} // namespace korvane
