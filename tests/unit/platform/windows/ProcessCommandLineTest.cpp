#include "platform/windows/ProcessCommandLine.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Text Line(const std::vector<Text>& arguments) {
    return ProcessCommandLine(u"C:\\My Tools\\a.exe", arguments).value_or(u"(none)");
}

TEST(ProcessCommandLine, TheProgramStandsInQuotesSoThatNoBlankEndsItsName) {
    EXPECT_EQ(Line({}), u"\"C:\\My Tools\\a.exe\"");
    EXPECT_EQ(ProcessCommandLine(u"calc.exe", {}), u"\"calc.exe\"");
}

TEST(ProcessCommandLine, PlainArgumentsStandAsTheyAre) {
    EXPECT_EQ(Line({u"/root,::{645FF040}", u"C:\\b\\", u"*.tbx"}),
              u"\"C:\\My Tools\\a.exe\" /root,::{645FF040} C:\\b\\ *.tbx");
}

TEST(ProcessCommandLine, QuotesHoldTogetherWhatIsOneArgument) {
    EXPECT_EQ(Line({u"a b", u"", u"a\tb"}), u"\"C:\\My Tools\\a.exe\" \"a b\" \"\" \"a\tb\"");
}

TEST(ProcessCommandLine, QuotesOfAnArgumentAreEscapedAndBackslashesInFrontOfThem) {
    EXPECT_EQ(Line({u"a\"b"}), u"\"C:\\My Tools\\a.exe\" \"a\\\"b\"");
    EXPECT_EQ(Line({u"a\\\"b"}), u"\"C:\\My Tools\\a.exe\" \"a\\\\\\\"b\"");
    EXPECT_EQ(Line({u"a b\\"}), u"\"C:\\My Tools\\a.exe\" \"a b\\\\\"");
    EXPECT_EQ(Line({u"a\\b c"}), u"\"C:\\My Tools\\a.exe\" \"a\\b c\"");
}

TEST(ProcessCommandLine, ThereIsNoneForWhatIsNoProgramsName) {
    EXPECT_FALSE(ProcessCommandLine(u"", {}));
    EXPECT_FALSE(ProcessCommandLine(u"a\" b.exe", {}));
    EXPECT_FALSE(ProcessCommandLine(Text(u"a.exe\0b", 7), {}));
    EXPECT_FALSE(ProcessCommandLine(u"a.exe", {Text(u"b\0c", 3)}));
}

TEST(ProcessCommandLine, ABatchFileGetsNoArgumentsSinceAnInterpreterWouldReadThem) {
    for (const TextView name : {u"C:\\a.bat", u"C:\\a.CMD", u"C:\\a.bat. ", u"C:\\a.cmd .."}) {
        EXPECT_FALSE(ProcessCommandLine(name, {u"b & calc.exe"})) << ToUtf8(name);
        EXPECT_TRUE(ProcessCommandLine(name, {})) << ToUtf8(name);
    }
    EXPECT_TRUE(ProcessCommandLine(u"C:\\bat", {u"b"}));
    EXPECT_TRUE(ProcessCommandLine(u"C:\\a.bat.exe", {u"b"}));
}

TEST(WithoutProgramName, LeavesWhatWasTypedBehindIt) {
    EXPECT_EQ(WithoutProgramName(u"korvane.exe C:\\a  b.tbx "), u"C:\\a  b.tbx ");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\korvane.exe\"  \"C:\\a b.tbx\""), u"\"C:\\a b.tbx\"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\\"korvane.exe\ta.tbx"), u"a.tbx");
}

TEST(WithoutProgramName, IsEmptyWhenNothingWasTyped) {
    EXPECT_EQ(WithoutProgramName(u"korvane.exe"), u"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools\\korvane.exe\" "), u"");
    EXPECT_EQ(WithoutProgramName(u"\"C:\\My Tools"), u"");
    EXPECT_EQ(WithoutProgramName(u""), u"");
}

} // namespace
} // namespace korvane
