#include "unit/text/words/WordListStage.h"

namespace korvane {
namespace {

using testing::ElementsAre;

class WordListWindowTest : public WordListStage {};

TEST_F(WordListWindowTest, GivesWhatWasTaken) {
    Have({u"one", u"two"});
    EXPECT_EQ(Open([](frmHoldWordList& f) { f.cmdOk.Press(); }), u"one");
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(WordListWindowTest, GivesNothingOfAClosedOrEmptyList) {
    EXPECT_EQ(Open([](frmHoldWordList& f) { f.cmdOk.Press(); }), std::nullopt);
    Have({u"one"});
    EXPECT_EQ(Open(), std::nullopt);
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(WordListWindowTest, AResultOfBeforeIsForgotten) {
    Have({u"one"});
    Open([](frmHoldWordList& f) { f.cmdOk.Press(); });
    EXPECT_EQ(Open(), std::nullopt);
}

TEST_F(WordListWindowTest, CollectsSelectionsAsTheyPileUp) {
    for (const TextView selection : {u"one\r\n two", u"three", u"one"}) {
        t.user.On<frmHoldWordList>([](frmHoldWordList& f) { f.Close(); });
        list.Collect(selection);
    }
    EXPECT_THAT(Listed(), ElementsAre(u"one", u"two", u"three"));
}

/// Kept for compatibility: word-list-takes-1024.
TEST_F(WordListWindowTest, CollectsTheFirst1024Characters) {
    t.user.On<frmHoldWordList>([](frmHoldWordList& f) {
        EXPECT_THAT(WordsIn(f), ElementsAre(Text(600, u'a'), Text(423, u'b')));
        f.Close();
    });
    list.Collect(Text(600, u'a') + u"\n" + Text(1400, u'b'));
}

TEST_F(WordListWindowTest, TheFirstReadingTakesThePlaceOfWhatIsCollected) {
    HaveFile("one\r\n");
    const auto collected = [this] {
        std::vector<Text> words;
        t.user.On<frmHoldWordList>([&words](frmHoldWordList& f) {
            words = WordsIn(f);
            f.Close();
        });
        list.Collect(u"two");
        return words;
    };
    EXPECT_THAT(collected(), ElementsAre(u"one"));
    EXPECT_THAT(collected(), ElementsAre(u"one", u"two"));
}

TEST_F(WordListWindowTest, IsThePortAsLongAsItLives) {
    {
        const WordListWindow other(t.app);
        EXPECT_EQ(t.app.Port<WordList>(), &other);
    }
    EXPECT_EQ(t.app.Port<WordList>(), nullptr);
}

} // namespace
} // namespace korvane
