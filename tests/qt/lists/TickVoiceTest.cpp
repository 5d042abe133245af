#include "platform/qt/lists/TickVoice.h"

#include "../HeardEvents.h"
#include "../ListsFixture.h"

namespace korvane {
namespace {

/// A person who listens to a list with check boxes.
class TickVoiceTest : public test::ListsFixture {
protected:
    test::HeardEvents heard;

    QListView& View() { return Widget<QListView>("lstChecks"); }
    void SetUp() override {
        ListsFixture::SetUp();
        form.ListView1.CheckBoxes = true;
        form.ListView1.Add({.key = u"a", .texts = {u"a.txt", u"12"}});
        form.ListView1.Add({.key = u"b", .texts = {u"b.txt", u"7"}});
        for (const char* name : {"lstChecks", "ListView1"})
            Widget<QAbstractItemView>(name).findChild<TickVoice*>()->SetEars(heard);
        test::Settle();
    }

    QStringList Ticks() {
        test::Settle();
        const QStringList names = heard.Of(QAccessible::StateChanged);
        heard.Clear();
        return names;
    }
};

TEST_F(TickVoiceTest, TellsThatTheCurrentRowsBoxHasChanged) {
    Click(View(), View().model()->index(1, 0));
    Key(View(), Qt::Key_Space);
    EXPECT_EQ(Ticks(), QStringList{"two"});
    Key(View(), Qt::Key_Space);
    EXPECT_EQ(Ticks(), QStringList{"two"});
}

TEST_F(TickVoiceTest, IsSilentForOtherRowsAndOtherChanges) {
    Click(View(), View().model()->index(1, 0));
    form.lstChecks.SetSelected(0, true);
    form.lstChecks.SetList(1, u"second");
    EXPECT_EQ(Ticks(), QStringList());
    Key(View(), Qt::Key_Up);
    EXPECT_EQ(Ticks(), QStringList());
}

TEST_F(TickVoiceTest, KnowsTheRowsOfAListWithColumns) {
    form.ListView1.SetCurrent(2);
    EXPECT_EQ(Ticks(), QStringList());
    form.ListView1.SetChecked(2, true);
    EXPECT_EQ(Ticks(), QStringList{"b.txt"});
}

TEST_F(TickVoiceTest, DoesNothingWhileNobodyListens) {
    heard.listens = false;
    form.ListView1.SetCurrent(1);
    form.ListView1.SetChecked(1, true);
    EXPECT_EQ(Ticks(), QStringList());
}

} // namespace
} // namespace korvane
