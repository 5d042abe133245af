#include "text/words/WordBuffer.h"

#include "text/words/WordIndex.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Text BufferWith(TextView selection) {
    Text buffer;
    AddSelection(buffer, selection);
    return buffer;
}

TEST(WordBuffer, TakesEachLineOfASelectionWithoutItsOuterBlanks) {
    EXPECT_EQ(BufferWith(u"  one \n\ttwo"), u"one\r\ttwo\r");
    EXPECT_EQ(BufferWith(u""), u"\r");
}

TEST(WordBuffer, AReturnBeforeTheLineEndEndsTheWordEarly) {
    EXPECT_EQ(BufferWith(u" one \r\ntwo\r\n"), u"one \r\rtwo\r\r\r");
    EXPECT_THAT(WordsOf(BufferWith(u"one\r\ntwo")), ElementsAre(u"one", u"", u"two"));
}

TEST(WordBuffer, AddsToWhatIsThere) {
    Text buffer = u"old\r";
    AddSelection(buffer, u"new");
    EXPECT_EQ(buffer, u"old\rnew\r");
}

/// Kept for compatibility: word-list-takes-1024.
TEST(WordBuffer, ReadsASelectionUpToItsCharacter1024) {
    EXPECT_EQ(BufferWith(Text(2000, u'a')), Text(1024, u'a') + u"\r");
    EXPECT_EQ(BufferWith(Text(1000, u'a') + u"\n" + Text(1000, u'b')),
              Text(1000, u'a') + u"\r" + Text(23, u'b') + u"\r");
    EXPECT_EQ(BufferWith(Text(1023, u'a') + u"\nlost"), Text(1023, u'a') + u"\r\r");
    EXPECT_EQ(BufferWith(Text(1024, u'a') + u"\nlost"), Text(1024, u'a') + u"\r");
}

TEST(WordBuffer, HasTheWordsThatReturnsEnd) {
    EXPECT_THAT(WordsOf(u""), IsEmpty());
    EXPECT_THAT(WordsOf(u"one\rtwo\r\rnot ended"), ElementsAre(u"one", u"two", u""));
}

TEST(WordIndex, KnowsAWordAsOftenAsItWasAdded) {
    WordIndex index;
    EXPECT_FALSE(index.Holds(u"word"));
    index.Add(u"word");
    index.Add(u"word");
    EXPECT_TRUE(index.Holds(u"word"));
    EXPECT_FALSE(index.Holds(u"Word"));
    EXPECT_FALSE(index.Holds(u"word "));
    index.Remove(u"word");
    EXPECT_TRUE(index.Holds(u"word"));
    index.Remove(u"word");
    index.Remove(u"word");
    EXPECT_FALSE(index.Holds(u"word"));
    index.Add(u"other");
    index.Clear();
    EXPECT_FALSE(index.Holds(u"other"));
}

} // namespace
} // namespace korvane
