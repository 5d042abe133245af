#include "context/FileNames.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(CheckFileName, PassesAGoodNameWithoutABox) {
    TestApp t;
    EXPECT_TRUE(CheckFileName(t.app, u"War and Peace (1869).tbx"));
    EXPECT_TRUE(CheckFileName(t.app, u""));
    EXPECT_TRUE(t.user.Messages().empty());
}

class CheckFileNameInStyle : public testing::TestWithParam<PathStyle> {};

// Kept for compatibility: forbidden-character-order.
TEST_P(CheckFileNameInStyle, TellsTheFirstForbiddenCharacterOfItsOwnList) {
    TestApp t(GetParam());
    t.user.Answer(
        {u"File name contains this forbidden character:    :\t\r\n\r\nPending operation will not be "
         u"executed.",
         MessageIcon::Stop, MessageButtons::Ok, 1},
        Answer::Ok);
    EXPECT_FALSE(CheckFileName(t.app, u"a*b:c"));
}

TEST_P(CheckFileNameInStyle, ForbidsTheBackslashEverywhere) {
    TestApp t(GetParam());
    t.user.Answer(
        {u"File name contains this forbidden character:    \\\t\r\n\r\nPending operation will not be "
         u"executed.",
         MessageIcon::Stop, MessageButtons::Ok, 1},
        Answer::Ok);
    EXPECT_FALSE(CheckFileName(t.app, u"a\\b/c"));
}

INSTANTIATE_TEST_SUITE_P(Styles, CheckFileNameInStyle, testing::Values(PathStyle::Windows, PathStyle::Posix));

} // namespace
} // namespace korvane
