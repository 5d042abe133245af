#include "platform/native/instance/HandOverProtocol.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

namespace korvane::hand_over {
namespace {

using Kind = Step::Kind;

/// Holds a conversation of a running copy whose slot is empty.
struct HandOver : testing::Test {
    std::optional<Step> After(std::string_view bytes) {
        EXPECT_EQ(conversation.Receive(bytes), bytes.size());
        return conversation.Next(true);
    }
    void ExpectDrop(std::string_view bytes) {
        const auto step = After(bytes);
        ASSERT_TRUE(step) << bytes;
        EXPECT_EQ(step->kind, Kind::Drop) << bytes;
        EXPECT_EQ(step->answer, "");
        EXPECT_FALSE(conversation.Next(true));
    }

    Conversation conversation;
};

TEST_F(HandOver, AsksHandsOverActivatesAndEnds) {
    auto step = After("SLOT\n");
    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, Kind::Answer);
    EXPECT_EQ(step->answer, "EMPTY\n");
    step = After("PATH /home/ann/a b.tbx\n");
    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, Kind::TakePath);
    EXPECT_EQ(step->answer, "TAKEN\n");
    EXPECT_EQ(step->path, u"/home/ann/a b.tbx");
    step = After("ACTIVATE\n");
    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, Kind::Activate);
    EXPECT_EQ(step->answer, "DONE\n");
    EXPECT_FALSE(After("SLOT\n"));
}

TEST_F(HandOver, CanAskForTheWindowAlone) {
    const auto step = After("ACTIVATE\n");
    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, Kind::Activate);
}

TEST_F(HandOver, WaitsForTheEndOfALine) {
    EXPECT_FALSE(After(""));
    EXPECT_FALSE(After("SL"));
    EXPECT_FALSE(After("OT"));
    EXPECT_FALSE(conversation.WaitsForSlot());
    EXPECT_TRUE(After("\n"));
}

TEST_F(HandOver, TakesLinesThatComeTogetherOneByOne) {
    EXPECT_EQ(After("SLOT\nPATH /a\nACTIVATE\n")->kind, Kind::Answer);
    EXPECT_EQ(conversation.Next(true)->kind, Kind::TakePath);
    EXPECT_EQ(conversation.Next(true)->kind, Kind::Activate);
    EXPECT_FALSE(conversation.Next(true));
}

TEST_F(HandOver, AnswersOnlyWhenTheSlotIsEmpty) {
    conversation.Receive("SLOT\n");
    EXPECT_FALSE(conversation.Next(false));
    EXPECT_TRUE(conversation.WaitsForSlot());
    EXPECT_FALSE(conversation.Next(false));
    EXPECT_EQ(conversation.Next(true)->answer, "EMPTY\n");
    EXPECT_FALSE(conversation.WaitsForSlot());
}

TEST_F(HandOver, HoldsAPathBackWhenAnotherStartWasFaster) {
    After("SLOT\n");
    conversation.Receive("PATH /a\n");
    EXPECT_FALSE(conversation.Next(false));
    EXPECT_TRUE(conversation.WaitsForSlot());
    EXPECT_EQ(conversation.Next(true)->path, u"/a");
}

TEST_F(HandOver, ActivatesWhateverTheSlotHolds) {
    conversation.Receive("ACTIVATE\n");
    EXPECT_EQ(conversation.Next(false)->kind, Kind::Activate);
}

TEST_F(HandOver, ASecondPathIsDropped) {
    After("PATH /a\n");
    ExpectDrop("PATH /b\n");
}

TEST_F(HandOver, NothingIsAskedTwiceSoThatAnswersCantPileUp) {
    After("SLOT\n");
    ExpectDrop("SLOT\n");
}

TEST_F(HandOver, TheSlotIsNotAskedForBehindThePath) {
    After("PATH /a\n");
    ExpectDrop("SLOT\n");
}

TEST(HandOverDrops, WhatIsNoRequest) {
    for (const std::string_view line :
         {"\n", "slot\n", "SLOT \n", "SLOT\r\n", "PATH\n", "PATH \n", "PATH a.tbx\n", "PATH  /a\n",
          "path /a\n", "ACTIVATE now\n", "GET / HTTP/1.1\n", "\x01\x02\xFF\n", "PATH /a%\n", "PATH /a%4\n",
          "PATH /a%4g\n", "PATH /a%0a\n", "PATH /a%00\n", "PATH /\xFF\n", "PATH /\xC3\n"}) {
        Conversation conversation;
        conversation.Receive(line);
        const auto step = conversation.Next(true);
        ASSERT_TRUE(step) << line;
        EXPECT_EQ(step->kind, Kind::Drop) << line;
    }
}

TEST(HandOverDrops, ALineWithANull) {
    Conversation conversation;
    conversation.Receive(std::string_view("PATH /a\0b\n", 10));
    EXPECT_EQ(conversation.Next(true)->kind, Kind::Drop);
}

TEST(HandOverDrops, ALineThatDoesNotEndAndHoldsNoMoreOfIt) {
    Conversation conversation;
    const std::string megabyte(1 << 20, 'x');
    EXPECT_EQ(conversation.Receive(megabyte), kLongestLine + 1);
    EXPECT_EQ(conversation.Receive(megabyte), 0u);
    EXPECT_EQ(conversation.Next(true)->kind, Kind::Drop);
    EXPECT_FALSE(conversation.Next(true));
}

TEST(HandOverDrops, NothingWhileALineMayStillEnd) {
    Conversation conversation;
    conversation.Receive("PATH /" + std::string(kLongestLine - 6, 'x'));
    EXPECT_FALSE(conversation.Next(true));
    conversation.Receive("\n");
    const auto step = conversation.Next(true);
    ASSERT_TRUE(step);
    EXPECT_EQ(step->kind, Kind::TakePath);
    EXPECT_EQ(step->path.size(), kLongestLine - 5);
}

TEST(HandOverHolds, NoMoreThanOneLineWhileItWaitsForTheSlot) {
    Conversation conversation;
    conversation.Receive("SLOT\n");
    EXPECT_FALSE(conversation.Next(false));
    EXPECT_EQ(conversation.Receive(std::string(1 << 20, 'x')), kLongestLine + 1 - 5);
    EXPECT_EQ(conversation.Receive("x"), 0u);
    EXPECT_FALSE(conversation.Next(false));
    EXPECT_TRUE(conversation.Next(true));
}

TEST(HandOverHolds, WhateverComesAndHoweverItIsCut) {
    // Joins fragments of requests in many orders. The generator is the same in every run.
    const std::string_view fragments[] = {"SLOT", "PATH ", "/a",       "%41",  "%", "ACTIVATE",
                                          "\n",   "\n",    "\xC3\xA4", "\xFF", "x"};
    std::minstd_rand random(1);
    int paths = 0;
    for (int round = 0; round < 20'000; ++round) {
        Conversation conversation;
        int steps = 0;
        for (int i = 0; i < 12; ++i) {
            conversation.Receive(fragments[random() % std::size(fragments)]);
            while (const auto step = conversation.Next(random() % 2 == 0)) {
                ++steps;
                if (step->kind != Kind::TakePath) continue;
                ++paths;
                EXPECT_TRUE(step->path.starts_with(u'/'));
                EXPECT_TRUE(PathRequest(step->path));
            }
        }
        ASSERT_LE(steps, 3);
    }
    EXPECT_GT(paths, 0);
}

TEST(PathRequestTest, IsUnderstoodWhateverTheName) {
    for (const Text& path : {Text(u"/a"), Text(u"/Käse §\U0001F9C0.tbx"), Text(u"/a\nb\r\tc\x7F.tbx"),
                             Text(u"/100%.tbx"), Text(u"/%0A"), Text(u"/ "), Text(u"/\\")}) {
        const auto line = PathRequest(path);
        ASSERT_TRUE(line);
        EXPECT_EQ(line->find('\n'), line->size() - 1);
        Conversation conversation;
        conversation.Receive(*line);
        const auto step = conversation.Next(true);
        ASSERT_TRUE(step);
        EXPECT_EQ(step->path, path);
    }
}

TEST(PathRequestTest, IsNotMadeForWhatWouldBeDropped) {
    EXPECT_FALSE(PathRequest(u""));
    EXPECT_FALSE(PathRequest(u"a.tbx"));
    EXPECT_FALSE(PathRequest(Text(u"/a") + Text(1, u'\0')));
    EXPECT_FALSE(PathRequest(u"/" + Text(kLongestLine, u'x')));
    EXPECT_TRUE(PathRequest(u"/" + Text(kLongestLine - 6, u'x')));
}

} // namespace
} // namespace korvane::hand_over
