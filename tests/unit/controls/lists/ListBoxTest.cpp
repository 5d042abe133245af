#include "controls/lists/ListBox.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

class ListBoxTest : public testing::Test {
protected:
    ListBoxTest() {
        for (const TextView text : {u"a", u"b", u"c"})
            list.AddItem(text);
        list.Click = [this] { log += "click "; };
        list.DblClick = [this] { log += "double "; };
        list.ItemCheck = [this](int index) { log += "check" + std::to_string(index) + " "; };
    }

    std::vector<Text> Items() const {
        std::vector<Text> items;
        for (int index = 0; index < list.ListCount(); ++index)
            items.push_back(list.List(index));
        return items;
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    ListBox list{window, "List1"};
    std::string log;
};

TEST_F(ListBoxTest, HoldsItsItemsInOrder) {
    EXPECT_EQ(Items(), (std::vector<Text>{u"a", u"b", u"c"}));
    list.InsertItem(0, u"first");
    list.InsertItem(4, u"last");
    list.InsertItem(2, u"between");
    EXPECT_EQ(Items(), (std::vector<Text>{u"first", u"a", u"between", u"b", u"c", u"last"}));
}

TEST_F(ListBoxTest, TakesNoItemOutsideItself) {
    list.InsertItem(-1, u"x");
    list.InsertItem(4, u"x");
    list.SetList(3, u"x");
    list.SetList(-1, u"x");
    list.RemoveItem(3);
    list.RemoveItem(-1);
    EXPECT_EQ(Items(), (std::vector<Text>{u"a", u"b", u"c"}));
    EXPECT_EQ(list.List(3), u"");
    EXPECT_EQ(list.List(-1), u"");
}

TEST_F(ListBoxTest, AnItemCanBeWrittenAnew) {
    list.SetListIndex(1);
    list.SetSelected(1, true);
    list.SetList(1, u"other");
    EXPECT_EQ(Items(), (std::vector<Text>{u"a", u"other", u"c"}));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_TRUE(list.Selected(1));
}

TEST_F(ListBoxTest, NoItemIsTheCurrentOneAtFirst) {
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, ClicksWhenAnotherItemBecomesTheCurrentOne) {
    list.SetListIndex(1);
    list.SetListIndex(1);
    EXPECT_EQ(log, "click ");
    list.SetListIndex(-1);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(log, "click click ");
}

TEST_F(ListBoxTest, AnIndexOutsideTheListHasNoEffect) {
    list.SetListIndex(1);
    log.clear();
    list.SetListIndex(3);
    list.SetListIndex(-2);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(log, "");
}

TEST_F(ListBoxTest, TheCurrentItemStaysTheCurrentOneWhenOneIsInserted) {
    list.SetListIndex(1);
    list.InsertItem(2, u"x");
    EXPECT_EQ(list.ListIndex(), 1);
    list.InsertItem(1, u"x");
    EXPECT_EQ(list.ListIndex(), 2);
    list.InsertItem(0, u"x");
    EXPECT_EQ(list.ListIndex(), 3);
    EXPECT_EQ(list.List(list.ListIndex()), u"b");
}

TEST_F(ListBoxTest, TheCurrentItemStaysTheCurrentOneWhenAnotherIsRemoved) {
    list.SetListIndex(1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.List(list.ListIndex()), u"b");
}

TEST_F(ListBoxTest, TheNextItemTakesThePlaceOfARemovedCurrentOne) {
    list.SetListIndex(1);
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), 0);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, MarksGoWithTheirItems) {
    list.SetSelected(1, true);
    list.InsertItem(0, u"x");
    EXPECT_FALSE(list.Selected(1));
    EXPECT_TRUE(list.Selected(2));
    list.RemoveItem(0);
    EXPECT_TRUE(list.Selected(1));
}

TEST_F(ListBoxTest, TellsOfAMarkThatChanges) {
    list.SetSelected(2, true);
    list.SetSelected(2, true);
    list.SetSelected(2, false);
    EXPECT_EQ(log, "check2 check2 ");
    EXPECT_FALSE(list.Selected(2));
}

TEST_F(ListBoxTest, HasNoMarksOutsideItself) {
    list.SetSelected(3, true);
    list.SetSelected(-1, true);
    EXPECT_FALSE(list.Selected(3));
    EXPECT_FALSE(list.Selected(-1));
    EXPECT_EQ(log, "");
}

TEST_F(ListBoxTest, ClearedItHoldsNothing) {
    list.SetListIndex(1);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, ADoubleClickGoesToItsItemFirst) {
    list.DoubleClick(2);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(log, "click double ");
}

TEST_F(ListBoxTest, AComboBoxTellsTheChosenLine) {
    ComboBox combo(window, "cboOne");
    combo.AddItem(u"one");
    EXPECT_EQ(combo.Chosen(), u"");
    combo.SetListIndex(0);
    EXPECT_EQ(combo.Chosen(), u"one");
}

TEST(ListBoxSample, IsKeptWithItsLine) {
    ScriptedUser user;
    Form form(user, "frm", u"");
    ListBox list(form, "List1");
    list.AddItem(u"red");
    list.AddItem(u"plain");
    list.SetSample(0, Colour{0xFF}, kNoColour);
    list.InsertItem(0, u"first");
    ASSERT_TRUE(list.SampleAt(1));
    EXPECT_EQ(list.SampleAt(1)->back, Colour{0xFF});
    EXPECT_FALSE(list.SampleAt(0));
    EXPECT_FALSE(list.SampleAt(2));
    list.SetSample(7, Colour{1}, Colour{1});
    EXPECT_FALSE(list.SampleAt(7));
}

} // namespace
} // namespace korvane
