#include "tbx/base/ParsedArguments.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

ParsedArguments Parse(std::vector<std::string> arguments) {
    return ParseArguments(arguments);
}

TEST(ParsedArguments, OptionsComeBeforeBetweenAndAfterTheWords) {
    const ParsedArguments parsed = Parse({"-p", "1250", "find", "--help", "a.tbx", "text", "-d;"});
    EXPECT_THAT(parsed.words, ElementsAre("find", "a.tbx", "text"));
    EXPECT_THAT(parsed.options, ElementsAre(Pair('d', ";"), Pair('h', ""), Pair('p', "1250")));
    EXPECT_EQ(parsed.fault, "");
}

TEST(ParsedArguments, AValueFollowsTheNameALetterOrAnEqualsSign) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"-p", "1250"}, {"-p1250"}, {"--code-page", "1250"}, {"--code-page=1250"}}) {
        EXPECT_THAT(Parse(arguments).options, ElementsAre(Pair('p', "1250")));
    }
}

TEST(ParsedArguments, AValueMayBeginWithADash) {
    EXPECT_THAT(Parse({"-d", "-"}).options, ElementsAre(Pair('d', "-")));
}

TEST(ParsedArguments, LettersWithoutValuesCanBeJoined) {
    EXPECT_THAT(Parse({"-hV"}).options, ElementsAre(Pair('V', ""), Pair('h', "")));
    EXPECT_THAT(Parse({"-hp1250"}).options, ElementsAre(Pair('h', ""), Pair('p', "1250")));
}

TEST(ParsedArguments, OfAnOptionGivenTwiceTheLastCounts) {
    EXPECT_THAT(Parse({"-p", "1250", "-p", "1251"}).options, ElementsAre(Pair('p', "1251")));
}

TEST(ParsedArguments, AfterTwoDashesAllAreWords) {
    const ParsedArguments parsed = Parse({"find", "--", "-h", "--", "--help"});
    EXPECT_THAT(parsed.words, ElementsAre("find", "-h", "--", "--help"));
    EXPECT_THAT(parsed.options, IsEmpty());
}

TEST(ParsedArguments, ALoneDashAndAnEmptyArgumentAreWords) {
    EXPECT_THAT(Parse({"dump", "-", ""}).words, ElementsAre("dump", "-", ""));
}

TEST(ParsedArguments, SaysWhichOptionIsWrong) {
    EXPECT_EQ(Parse({"--foo=1"}).fault, "there is no option --foo");
    EXPECT_EQ(Parse({"-hx"}).fault, "there is no option -x");
    EXPECT_EQ(Parse({"dump", "-p"}).fault, "the option --code-page needs a value");
    EXPECT_EQ(Parse({"--code-page"}).fault, "the option --code-page needs a value");
    EXPECT_EQ(Parse({"--help=yes"}).fault, "the option --help takes no value");
}

} // namespace
} // namespace korvane
