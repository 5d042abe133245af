// Letters that the user types go to the row whose name begins with them.

#include "ListsFixture.h"

namespace korvane {
namespace {

class TypedNameTest : public test::ListsFixture {
protected:
    void SetUp() override {
        ListsFixture::SetUp();
        for (const TextView name : {u"alpha", u"beta", u"gamma", u"Gamut", u"ma"})
            list.Add({.texts = {Text(name), u"z" + Text(name)}});
    }
    void Type(const QString& letters) {
        View().setFocus();
        QTest::keyClicks(&View(), letters);
        test::Settle();
    }

    ListView& list = form.ListView1;
    QTreeView& View() { return Widget<QTreeView>("ListView1"); }
};

TEST_F(TypedNameTest, SeveralLettersAreTheBeginningOfAName) {
    Type("gamu");
    EXPECT_EQ(list.Current(), 4);
}

TEST_F(TypedNameTest, ItIsTheNameWhicheverColumnWasClicked) {
    Click(View(), View().model()->index(1, 1));
    EXPECT_EQ(list.Current(), 2);
    Type("m");
    EXPECT_EQ(list.Current(), 5);
}

TEST_F(TypedNameTest, LettersThatBeginNoNameLeaveTheRow) {
    list.SetCurrent(2);
    Type("q");
    EXPECT_EQ(list.Current(), 2);
}

TEST_F(TypedNameTest, LettersThatTheWindowTakesGoNowhere) {
    list.SetCurrent(1);
    list.KeyDown = [](KeyEvent& key) { key.consumed = key.code == 'G'; };
    Type("g");
    EXPECT_EQ(list.Current(), 1);
    Type("m");
    EXPECT_EQ(list.Current(), 5);
}

} // namespace
} // namespace korvane
