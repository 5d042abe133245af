#include "app/Unattended.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Answer AnswerTo(MessageButtons buttons) {
    return PrintedMessages().Show({u"Größe?", MessageIcon::Question, buttons});
}

TEST(PrintedMessages, AreAnsweredAsEscWould) {
    EXPECT_EQ(AnswerTo(MessageButtons::Ok), Answer::Ok);
    EXPECT_EQ(AnswerTo(MessageButtons::YesNo), Answer::No);
    EXPECT_EQ(AnswerTo(MessageButtons::YesNoCancel), Answer::Cancel);
    EXPECT_EQ(AnswerTo(MessageButtons::OkCancel), Answer::Cancel);
}

TEST(PrintedMessages, StandOnTheErrorStream) {
    testing::internal::CaptureStderr();
    AnswerTo(MessageButtons::Ok);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Größe?\n");
}

TEST(NoOtherCopy, IsNeverFoundAndTakesNoPath) {
    NoOtherCopy channel;
    EXPECT_FALSE(channel.PreviousInstanceRuns());
    EXPECT_FALSE(channel.FindReceiver());
    EXPECT_FALSE(channel.Deliver(u"/tables/people.tbx"));
}

} // namespace
} // namespace korvane
