#include "common/text/Names.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Text FileName(Text text, NameCase nameCase) {
    return MakeFileName(text, nameCase);
}

Text TitleName(TextView text) {
    return FileName(Text(text), NameCase::Title);
}

TEST(MakeFileName, TurnsATitleIntoAName) {
    EXPECT_EQ(FileName(u"  war and peace ", NameCase::Title), u"War_and_Peace");
    EXPECT_EQ(FileName(u"  war and peace ", NameCase::AsTyped), u"war_and_peace");
}

TEST(MakeFileName, ChangesTheTextButKeepsItsBlanks) {
    Text text = u"  war and peace ";
    MakeFileName(text, NameCase::Title);
    EXPECT_EQ(text, u"War and Peace");
    text = u" war and peace ";
    MakeFileName(text, NameCase::AsTyped);
    EXPECT_EQ(text, u"war and peace");
}

// Kept for compatibility: names-last-letter.
TEST(MakeFileName, LeavesALastWordOfOneLetterAlone) {
    EXPECT_EQ(TitleName(u"the end of a day"), u"The_End_of_a_Day");
    EXPECT_EQ(TitleName(u"plan b"), u"Plan_b");
    EXPECT_EQ(TitleName(u"plan bc"), u"Plan_Bc");
}

TEST(MakeFileName, KeepsEverySmallWordOfItsListSmall) {
    EXPECT_EQ(TitleName(u"x and or in an to by of on the a for over about with both through x"),
              u"X_and_or_in_an_to_by_of_on_the_a_for_over_about_with_both_through_x");
}

// Kept for compatibility: names-small-words.
TEST(MakeFileName, CapitalisesTheSmallWordsOfTexts) {
    EXPECT_EQ(TitleName(u"x as is at are how why from into xx"), u"X_As_Is_At_Are_How_Why_From_Into_Xx");
}

TEST(MakeFileName, KeepsASmallLastWordOfMoreLettersSmall) {
    EXPECT_EQ(TitleName(u"carry on"), u"Carry_on");
}

TEST(MakeFileName, ComparesSmallWordsExactly) {
    EXPECT_EQ(TitleName(u"war oF roses"), u"War_OF_Roses");
    EXPECT_EQ(TitleName(u"war The roses"), u"War_The_Roses");
    EXPECT_EQ(TitleName(u"war and, peace"), u"War_And,_Peace");
}

TEST(MakeFileName, TakesAnUnderscoreForABlank) {
    EXPECT_EQ(TitleName(u"war_and_peace of_mind"), u"War_and_Peace_of_Mind");
}

TEST(MakeFileName, CapitalisesTheFirstWordWhateverItIs) {
    EXPECT_EQ(TitleName(u"a"), u"A");
    EXPECT_EQ(TitleName(u"of mice"), u"Of_Mice");
    EXPECT_EQ(TitleName(u"élan"), u"Élan");
}

TEST(MakeFileName, CopesWithEmptyTextsAndEmptyWords) {
    EXPECT_EQ(TitleName(u""), u"");
    EXPECT_EQ(TitleName(u"    "), u"");
    EXPECT_EQ(TitleName(u"two  blanks"), u"Two__Blanks");
    EXPECT_EQ(TitleName(u"__x"), u"__x");
    EXPECT_EQ(TitleName(u"__xy"), u"__Xy");
}

TEST(SmartUpper, SetsTheCapitalsOfATitle) {
    EXPECT_EQ(SmartUpper(u"the cat, and the dog", u' '), u"The Cat, and the Dog");
}

// Kept for compatibility: names-small-words.
TEST(SmartUpper, CapitalisesASmallWordAtTheVeryEnd) {
    EXPECT_EQ(SmartUpper(u"for a", u' '), u"For A");
    EXPECT_EQ(SmartUpper(u"carry on", u' '), u"Carry On");
}

// Kept for compatibility: names-small-words.
TEST(SmartUpper, CapitalisesASmallWordWithoutABlankRightAfterIt) {
    EXPECT_EQ(SmartUpper(u"carry on, and on.", u' '), u"Carry On, and On.");
    EXPECT_EQ(SmartUpper(u"an on-off switch", u' '), u"An On-Off Switch");
}

TEST(SmartUpper, CapitalisesTheFirstCharacterAfterABreakOnly) {
    EXPECT_EQ(SmartUpper(u"cat", u'\n'), u"Cat");
    EXPECT_EQ(SmartUpper(u"cat", u'\t'), u"Cat");
    EXPECT_EQ(SmartUpper(u"cat", u' '), u"Cat");
    EXPECT_EQ(SmartUpper(u"cat", u'\r'), u"cat");
    EXPECT_EQ(SmartUpper(u"cat", u'-'), u"cat");
    EXPECT_EQ(SmartUpper(u"cat", u'\0'), u"cat");
    EXPECT_EQ(SmartUpper(u"the cat", u'('), u"the Cat");
}

TEST(SmartUpper, CapitalisesAfterEachBreakInTheText) {
    EXPECT_EQ(SmartUpper(u"x a1\tb,c;d.e:f-g(h\ni", u'x'), u"x A1\tB,C;D.E:F-G(h\ni");
}

TEST(SmartUpper, KeepsEverySmallWordOfItsListAsItIs) {
    const Text small = u"x a an or on of in to by as is at and are how why the for with from into over about "
                       u"through x";
    EXPECT_EQ(SmartUpper(small, u'x'), small.substr(0, small.size() - 1) + u"X");
    EXPECT_EQ(SmartUpper(u"x both y", u'x'), u"x Both Y");
}

TEST(SmartUpper, KnowsSmallWordsInAnyCaseAndDoesNotLowerThem) {
    EXPECT_EQ(SmartUpper(u"one oF two AND three", u'x'), u"one oF Two AND Three");
}

TEST(SmartUpper, OfNothingIsNothing) {
    EXPECT_EQ(SmartUpper(u"", u' '), u"");
}

// Kept for compatibility: forbidden-character-order.
TEST(ForbiddenCharacter, IsFoundInTheOrderOfItsOwnList) {
    EXPECT_EQ(ForbiddenCharacter(u"a:b*c"), u':');
    EXPECT_EQ(ForbiddenCharacter(u"a*b:c"), u':');
    EXPECT_EQ(ForbiddenCharacter(u"|<>\"*:?/\\"), u'\\');
    EXPECT_EQ(ForbiddenCharacter(u"|<>\"*:?/"), u'/');
    EXPECT_EQ(ForbiddenCharacter(u"|<>\"*:?"), u'?');
    EXPECT_EQ(ForbiddenCharacter(u"|<>\"*"), u'*');
    EXPECT_EQ(ForbiddenCharacter(u"|<>\""), u'"');
    EXPECT_EQ(ForbiddenCharacter(u"|<>"), u'>');
    EXPECT_EQ(ForbiddenCharacter(u"|<"), u'<');
    EXPECT_EQ(ForbiddenCharacter(u"|"), u'|');
}

TEST(ForbiddenCharacter, IsNotInAGoodName) {
    EXPECT_EQ(ForbiddenCharacter(u"War and Peace (1869).tbx"), std::nullopt);
    EXPECT_EQ(ForbiddenCharacter(u""), std::nullopt);
}

TEST(IsWordBreak, HoldsForBlanksLineEndsAndPunctuation) {
    for (const char16_t character : TextView(u" \t\n\f\r\"'`´!?.:,;-_"))
        EXPECT_TRUE(IsWordBreak(character)) << static_cast<int>(character);
    for (const char16_t character : TextView(u"aZé0()[]/\\\v\u00A0"))
        EXPECT_FALSE(IsWordBreak(character)) << static_cast<int>(character);
    EXPECT_FALSE(IsWordBreak(u'\0'));
}

TEST(CutAtNul, KeepsWhatComesBeforeTheFirstNul) {
    EXPECT_EQ(CutAtNul(TextView(u"ab\0cd\0", 6)), u"ab");
    EXPECT_EQ(CutAtNul(TextView(u"\0ab", 3)), u"");
    EXPECT_EQ(CutAtNul(u"ab"), u"ab");
}

} // namespace
} // namespace korvane
