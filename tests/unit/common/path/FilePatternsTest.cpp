#include "common/path/FilePatterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace korvane {
namespace {

TEST(MatchesPatternsTest, AStarStandsForAnyCharacters) {
    EXPECT_TRUE(MatchesPatterns(u"Books.tbx", u"*.tbx"));
    EXPECT_TRUE(MatchesPatterns(u".tbx", u"*.tbx"));
    EXPECT_TRUE(MatchesPatterns(u"a.tbx.tbx", u"*.tbx"));
    EXPECT_FALSE(MatchesPatterns(u"Books.tbx.bak", u"*.tbx"));
    EXPECT_FALSE(MatchesPatterns(u"Bookstbx", u"*.tbx"));
    EXPECT_TRUE(MatchesPatterns(u"aXbXc", u"a*b*c"));
    EXPECT_FALSE(MatchesPatterns(u"aXbX", u"a*b*c"));
}

TEST(MatchesPatternsTest, AQuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(MatchesPatterns(u"a1.txt", u"a?.txt"));
    EXPECT_FALSE(MatchesPatterns(u"a.txt", u"a?.txt"));
    EXPECT_FALSE(MatchesPatterns(u"a12.txt", u"a?.txt"));
}

TEST(MatchesPatternsTest, CaseIsIgnored) {
    EXPECT_TRUE(MatchesPatterns(u"BOOKS.TBX", u"*.tbx"));
    EXPECT_TRUE(MatchesPatterns(u"ärger.txt", u"Ä*.TXT"));
}

TEST(MatchesPatternsTest, SemicolonsSeparatePatterns) {
    EXPECT_TRUE(MatchesPatterns(u"a.rtf", u"*.rtf;*.doc;*.docx"));
    EXPECT_TRUE(MatchesPatterns(u"a.docx", u"*.rtf; *.doc ;*.docx"));
    EXPECT_FALSE(MatchesPatterns(u"a.txt", u"*.rtf;*.doc;*.docx"));
    EXPECT_TRUE(MatchesPatterns(u"a.doc", u";*.doc;"));
}

TEST(MatchesPatternsTest, StarPointStarMatchesNamesWithoutAPointToo) {
    EXPECT_TRUE(MatchesPatterns(u"Makefile", u"*.*"));
    EXPECT_TRUE(MatchesPatterns(u"Makefile", u"*.txt;*.*"));
    EXPECT_TRUE(MatchesPatterns(u"Makefile", u"*"));
    EXPECT_FALSE(MatchesPatterns(u"Makefile", u"*.*x"));
}

TEST(MatchesPatternsTest, AnEmptyPatternMatchesNothing) {
    EXPECT_FALSE(MatchesPatterns(u"a", u""));
    EXPECT_FALSE(MatchesPatterns(u"a", u" ; "));
}

TEST(SortNamesTest, OrdersByCharacterWithCaseIgnored) {
    std::vector<Text> names{u"b", u"B1", u"a_", u"A", u"a", u"ab", u"10", u"9", u"a"};
    SortNames(names);
    EXPECT_EQ(names, (std::vector<Text>{u"10", u"9", u"A", u"a", u"a", u"ab", u"a_", u"b", u"B1"}));
}

TEST(SortNamesTest, NamesThatDifferByCaseAloneAreOrderedByIt) {
    std::vector<Text> names{u"letter to all", u"Letter To All", u"LETTER TO ALL", u"letter"};
    SortNames(names);
    EXPECT_EQ(names, (std::vector<Text>{u"letter", u"LETTER TO ALL", u"Letter To All", u"letter to all"}));
}

TEST(SortNamesTest, ThereMayBeNone) {
    std::vector<Text> names;
    SortNames(names);
    EXPECT_TRUE(names.empty());
}

TEST(FilePatterns, ProgramsAreAskedForByTheirPattern) {
    EXPECT_TRUE(AskForPrograms(u"*.exe"));
    EXPECT_TRUE(AskForPrograms(u"*.txt; *.EXE"));
    EXPECT_FALSE(AskForPrograms(u"*.*"));
    EXPECT_FALSE(AskForPrograms(u"my.exe"));
}

} // namespace
} // namespace korvane
