// Tests how texts are converted for the windows of other programs, and the mark of a running copy.

#include "platform/windows/AnsiText.h"
#include "platform/windows/Win32WindowList.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

TEST(AnsiText, ComesBackAsItWas) {
    EXPECT_EQ(ToAnsi(u"C:\\Data\\a b.tbx"), "C:\\Data\\a b.tbx");
    EXPECT_EQ(FromAnsi("C:\\Data\\a b.tbx"), u"C:\\Data\\a b.tbx");
    EXPECT_EQ(ToAnsi(u""), "");
    EXPECT_EQ(FromAnsi(""), u"");
}

TEST(AnsiText, NothingTurnsIntoALookalike) {
    // Some pages have this letter. The others must not turn it into an A.
    EXPECT_THAT(FromAnsi(ToAnsi(u"\u0100")), testing::AnyOf(u"\u0100", u"?"));
}

TEST(Win32WindowListTest, ACopyCountsFromItsFirstQuestionToItsEnd) {
    Win32WindowList later;
    {
        Win32WindowList first;
        EXPECT_FALSE(first.AnotherCopyRuns());
        EXPECT_FALSE(first.AnotherCopyRuns());
        Win32WindowList second;
        EXPECT_TRUE(second.AnotherCopyRuns());
    }
    EXPECT_FALSE(later.AnotherCopyRuns());
}

} // namespace
} // namespace korvane
