#include "files/names/NameTyping.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Text FolderName(TextView phrase) {
    return UnderscoreCaps(phrase, SmallWordsOfNewFolders());
}

Text NewName(TextView phrase) {
    return UnderscoreCaps(phrase, SmallWordsOfNewNames());
}

TEST(UnderscoreCapsTest, APhraseOfFourWordsThatBeginsWithASmallWord) {
    EXPECT_EQ(FolderName(u"the letters of ann"), u"The_Letters_of_Ann");
    EXPECT_EQ(NewName(u"the letters of ann"), u"The_Letters_of_Ann");
}

TEST(UnderscoreCapsTest, OuterBlanksGoAndInnerOnesBecomeUnderscores) {
    EXPECT_EQ(NewName(u"  war  letters "), u"War__Letters");
    EXPECT_EQ(NewName(u""), u"");
    EXPECT_EQ(NewName(u"   "), u"");
}

// Kept for compatibility: two-lists-of-capital-words.
TEST(UnderscoreCapsTest, TheTwoListsDiffer) {
    for (const TextView word : {u"and", u"or", u"in", u"an", u"of", u"on", u"the", u"a"}) {
        const Text phrase = u"x " + Text(word) + u" y";
        EXPECT_EQ(FolderName(phrase), u"X_" + Text(word) + u"_Y");
        EXPECT_EQ(NewName(phrase), u"X_" + Text(word) + u"_Y");
    }
    for (const TextView word : {u"about", u"both", u"by", u"for", u"over", u"through", u"to", u"with"}) {
        const Text phrase = u"x " + Text(word) + u" y";
        EXPECT_EQ(NewName(phrase), u"X_" + Text(word) + u"_Y");
        EXPECT_NE(FolderName(phrase), NewName(phrase));
    }
    EXPECT_EQ(FolderName(u"letters for ann"), u"Letters_For_Ann");
}

TEST(UnderscoreCapsTest, AWordIsComparedExactlyAndBetweenBlanksOnly) {
    EXPECT_EQ(NewName(u"a The b"), u"A_The_B");
    EXPECT_EQ(NewName(u"a the, b"), u"A_The,_B");
    EXPECT_EQ(NewName(u"a x_the b"), u"A_X_the_B");
}

TEST(UnderscoreCapsTest, ASmallWordAtTheEndStaysSmall) {
    EXPECT_EQ(NewName(u"what it is for"), u"What_It_Is_for");
    EXPECT_EQ(NewName(u"letters to b"), u"Letters_to_B");
}

TEST(UnderscoreCapsTest, LettersWithAccentsHaveCapitalsToo) {
    EXPECT_EQ(NewName(u"ärger über öl"), u"Ärger_Über_Öl");
}

constexpr DateTime kToday{2026, 11, 5, 10, 30, 0};

Text Dated(TextView name) {
    return WithDate(name, kToday, EnglishDateNames());
}

TEST(WithDateTest, TheDateGoesInFrontOfTheLastPoint) {
    EXPECT_EQ(Dated(u"letter.txt"), u"letter_(05-Nov-2026).txt");
    EXPECT_EQ(Dated(u"a.b.txt"), u"a.b_(05-Nov-2026).txt");
    EXPECT_EQ(Dated(u".txt"), u"_(05-Nov-2026).txt");
}

TEST(WithDateTest, OrAtTheEndWhereThereIsNone) {
    EXPECT_EQ(Dated(u"letter"), u"letter_(05-Nov-2026)");
    EXPECT_EQ(Dated(u""), u"_(05-Nov-2026)");
}

TEST(WithDateTest, TheMonthIsInTheUsersLanguage) {
    DateNames names = EnglishDateNames();
    names.shortMonths[10] = u"nov.";
    EXPECT_EQ(WithDate(u"a.txt", kToday, names), u"a_(05-nov.-2026).txt");
}

TEST(WithNextExtensionTest, GoesRoundTheCycleWithCaseIgnored) {
    EXPECT_EQ(WithNextExtension(u"a.docx"), u"a.txt");
    EXPECT_EQ(WithNextExtension(u"a.txt"), u"a.rtf");
    EXPECT_EQ(WithNextExtension(u"a.rtf"), u"a.docx");
    EXPECT_EQ(WithNextExtension(u"a.DOCX"), u"a.txt");
}

TEST(WithNextExtensionTest, ANameWithoutAPointGetsOneAndAnotherExtensionStays) {
    EXPECT_EQ(WithNextExtension(u"a"), u"a.txt");
    EXPECT_EQ(WithNextExtension(u""), u".txt");
    EXPECT_EQ(WithNextExtension(u"a.tbx"), u"a.tbx");
    EXPECT_EQ(WithNextExtension(u"a."), u"a.");
}

TEST(PatternOfTest, FollowsTheExtension) {
    EXPECT_EQ(PatternOf(u"a.docx"), u"*.docx");
    EXPECT_EQ(PatternOf(u"a.TXT"), u"*.txt");
    EXPECT_EQ(PatternOf(u"a.rtf"), u"*.rtf");
    EXPECT_EQ(PatternOf(u"a.doc"), u"");
}

TEST(AsDocxTest, KeepsWhatStandsBeforeTheFirstPoint) {
    EXPECT_EQ(AsDocx(u"a.b.txt"), u"a.docx");
    EXPECT_EQ(AsDocx(u"a"), u"a.docx");
}

TEST(TidiedTest, KeepsTheLastOfThreePointsOnly) {
    EXPECT_EQ(Tidied(u"a.b.c.txt"), u"a_b_c.txt");
}

TEST(TidiedTest, BlanksAndMarksBecomeUnderscores) {
    EXPECT_EQ(Tidied(u" war, peace; and: more.txt"), u"_war__peace__and__more.txt");
    EXPECT_EQ(Tidied(u"no point"), u"no_point");
    EXPECT_EQ(Tidied(u""), u"");
}

} // namespace
} // namespace korvane
