#include "files/lister/FindInFolder.h"

#include "ListerFixture.h"
#include "files/lists/frmFindStingInList.h"

namespace korvane {
namespace {

using testing::IsEmpty;

class FindInFolderTest : public ListerFixture {
protected:
    FindInFolderTest() {
        for (const TextView name : {u"Data/letter 1", u"Data/letter 2", u"Data/note"})
            t.files.AddFile(At(name));
    }
    void AwaitText(const Text& text) {
        t.user.On<frmFindStingInList>([text](frmFindStingInList& ask) {
            ask.txtFindString.Text = text;
            ask.cmdOK.Press();
        });
    }
    void AwaitQuestion(Answer answer) {
        t.user.Answer({u"Search again from top of list?", MessageIcon::Question, MessageButtons::YesNo},
                      answer);
    }
    Text Find(const Text& text) {
        AwaitText(text);
        find.Run(At(u"Data"), u"*.*");
        return find.Found();
    }

    FindInFolder find{app, [this](const DiskQuestion& question) {
                          question(t.files, [] { return true; });
                          return true;
                      }};
};
KORVANE_IN_BOTH_STYLES(FindInFolderTest);

TEST_P(FindInFolderTest, GoesToTheNextNameWithTheText) {
    EXPECT_EQ(Find(u"LETTER"), u"letter 1");
    EXPECT_EQ(Find(u"letter"), u"letter 2");
}

TEST_P(FindInFolderTest, AsksAtTheEndWhetherToBeginAgain) {
    EXPECT_EQ(Find(u"note"), u"note");
    AwaitText(u"letter");
    AwaitQuestion(Answer::Yes);
    find.Run(At(u"Data"), u"*.*");
    EXPECT_EQ(find.Found(), u"letter 1");
}

TEST_P(FindInFolderTest, AsksAgainAfterEachTurn) {
    AwaitText(u"nowhere");
    AwaitQuestion(Answer::Yes);
    AwaitQuestion(Answer::Yes);
    AwaitQuestion(Answer::No);
    find.Run(At(u"Data"), u"*.*");
    EXPECT_EQ(find.Found(), u"");
}

TEST_P(FindInFolderTest, ANewListIsSearchedFromItsTop) {
    EXPECT_EQ(Find(u"letter"), u"letter 1");
    find.Reset();
    EXPECT_EQ(Find(u"letter"), u"letter 1");
}

TEST_P(FindInFolderTest, AnEmptyTextOrACancelEndsIt) {
    EXPECT_EQ(Find(u""), u"");
    t.user.On<frmFindStingInList>([](frmFindStingInList& ask) { ask.cmdCancel.Press(); });
    find.Run(At(u"Data"), u"*.*");
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

// Kept for compatibility: search-goes-through-hidden-list.
TEST_P(FindInFolderTest, TheListThatIsSeenStaysAsItIs) {
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        AwaitText(u"note");
        EXPECT_TRUE(Press(f.ListView1, 'S', Mask::Alt));
        EXPECT_THAT(Marked(f), testing::ElementsAre("a.txt"));
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
}

} // namespace
} // namespace korvane
