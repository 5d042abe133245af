#include "controls/lists/ListView.h"

#include "common/number/Number.h"
#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

class ListViewTest : public testing::Test {
protected:
    ListViewTest() {
        for (const TextView name : {u"b", u"A", u"c"})
            list.Add(RowNamed(name));
        list.ItemClick = [this] { log += "click" + std::to_string(list.Current()) + " "; };
        list.DblClick = [this] { log += "double "; };
        list.ItemCheck = [this](int index) { log += "check" + std::to_string(index) + " "; };
        list.ColumnClick = [this](int column) { log += "column" + std::to_string(column) + " "; };
    }

    static ListRow RowNamed(TextView name) {
        ListRow row;
        row.key = u"K_" + Text(name);
        row.texts = {Text(name), u"12"};
        return row;
    }
    std::vector<Text> Names() const {
        std::vector<Text> names;
        for (int index = 1; index <= list.Count(); ++index)
            names.push_back(list.RowAt(index).texts.at(0));
        return names;
    }
    /// The positions of the rows that are picked.
    std::vector<int> Picks() const {
        std::vector<int> picks;
        for (int index = 1; index <= list.Count(); ++index)
            if (list.RowAt(index).selected) picks.push_back(index);
        return picks;
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    ListView list{window, "ListView1", {{u"Name", Twips{3000}}, {u"Size", Twips{1500}}}};
    std::string log;
};

TEST_F(ListViewTest, HasTheColumnsThatItIsMadeWith) {
    ASSERT_EQ(list.Columns.Get().size(), 2U);
    EXPECT_EQ(list.Columns.Get()[1].header, u"Size");
    EXPECT_EQ(list.Columns.Get()[1].width, Twips{1500});
    EXPECT_EQ(list.ColumnWidth(1), Twips{3000});
    EXPECT_EQ(list.ColumnWidth(0), Twips{});
    EXPECT_EQ(list.ColumnWidth(3), Twips{});
}

TEST_F(ListViewTest, HoldsItsRowsInOrder) {
    list.Insert(1, RowNamed(u"first"));
    list.Insert(5, RowNamed(u"last"));
    list.Insert(3, RowNamed(u"between"));
    EXPECT_EQ(Names(), (std::vector<Text>{u"first", u"b", u"between", u"A", u"c", u"last"}));
}

TEST_F(ListViewTest, KeepsAllThatARowHolds) {
    list.Add({.key = u"key",
              .texts = {u"one", u"two", u"three"},
              .checked = true,
              .selected = true,
              .tag = -7,
              .icon = u"fileFound"});
    const ListRow kept = list.RowAt(4);
    EXPECT_EQ(kept.key, u"key");
    EXPECT_EQ(kept.texts, (std::vector<Text>{u"one", u"two", u"three"}));
    EXPECT_TRUE(kept.checked);
    EXPECT_TRUE(kept.selected);
    EXPECT_EQ(kept.tag, -7);
    EXPECT_EQ(kept.icon, u"fileFound");
}

TEST_F(ListViewTest, TakesNoRowOutsideItself) {
    list.Insert(0, RowNamed(u"x"));
    list.Insert(5, RowNamed(u"x"));
    list.Set(4, RowNamed(u"x"));
    list.Set(0, RowNamed(u"x"));
    list.Remove(4);
    list.Remove(0);
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
    EXPECT_TRUE(list.RowAt(0).texts.empty());
    EXPECT_TRUE(list.RowAt(4).texts.empty());
}

TEST_F(ListViewTest, ARowCanBeWrittenAnew) {
    list.SetCurrent(2);
    list.Set(2, RowNamed(u"other"));
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"other", u"c"}));
    EXPECT_EQ(list.Current(), 2);
}

TEST_F(ListViewTest, FindsARowByItsKey) {
    EXPECT_EQ(list.IndexOf(u"K_A"), 2);
    EXPECT_EQ(list.IndexOf(u"K_a"), 0);
    EXPECT_EQ(list.IndexOf(u"A"), 0);
}

TEST_F(ListViewTest, NoRowIsTheCurrentOneAtFirst) {
    EXPECT_EQ(list.Current(), 0);
}

TEST_F(ListViewTest, TheCurrentRowIsPickedAlone) {
    list.SetSelected(1, true);
    list.SetSelected(3, true);
    list.SetCurrent(2);
    EXPECT_EQ(Picks(), std::vector<int>{2});
    list.SetCurrent(3);
    EXPECT_EQ(Picks(), std::vector<int>{3});
}

TEST_F(ListViewTest, ClicksEachTimeARowIsMadeTheCurrentOne) {
    list.SetCurrent(2);
    list.SetCurrent(2);
    EXPECT_EQ(log, "click2 click2 ");
}

TEST_F(ListViewTest, ARowOutsideTheListCannotBeTheCurrentOne) {
    list.SetCurrent(2);
    log.clear();
    list.SetCurrent(0);
    list.SetCurrent(4);
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(Picks(), std::vector<int>{2});
    EXPECT_EQ(log, "");
}

TEST_F(ListViewTest, SeveralRowsCanBePickedWithoutAClick) {
    list.SetSelected(1, true);
    list.SetSelected(3, true);
    list.SetSelected(0, true);
    list.SetSelected(4, true);
    EXPECT_EQ(Picks(), (std::vector<int>{1, 3}));
    list.SetSelected(1, false);
    EXPECT_EQ(Picks(), std::vector<int>{3});
    EXPECT_EQ(log, "");
    EXPECT_EQ(list.Current(), 0);
}

TEST_F(ListViewTest, TellsOfACheckMarkThatChanges) {
    list.SetChecked(3, true);
    list.SetChecked(3, true);
    EXPECT_TRUE(list.RowAt(3).checked);
    list.SetChecked(3, false);
    list.SetChecked(0, true);
    list.SetChecked(4, true);
    EXPECT_FALSE(list.RowAt(3).checked);
    EXPECT_EQ(log, "check3 check3 ");
}

TEST_F(ListViewTest, TheCurrentRowStaysTheCurrentOneWhenOneIsInserted) {
    list.SetCurrent(2);
    list.Insert(3, RowNamed(u"x"));
    EXPECT_EQ(list.Current(), 2);
    list.Insert(2, RowNamed(u"x"));
    EXPECT_EQ(list.Current(), 3);
    list.Insert(1, RowNamed(u"x"));
    EXPECT_EQ(list.Current(), 4);
    EXPECT_EQ(list.RowAt(4).texts.at(0), u"A");
    EXPECT_EQ(Picks(), std::vector<int>{4});
}

TEST_F(ListViewTest, TheCurrentRowStaysTheCurrentOneWhenAnotherIsRemoved) {
    list.SetCurrent(2);
    list.Remove(1);
    EXPECT_EQ(list.Current(), 1);
    list.Remove(2);
    EXPECT_EQ(list.Current(), 1);
    EXPECT_EQ(list.RowAt(1).texts.at(0), u"A");
    EXPECT_EQ(Picks(), std::vector<int>{1});
}

TEST_F(ListViewTest, TheNextRowTakesThePlaceOfARemovedCurrentOne) {
    list.SetCurrent(2);
    list.Remove(2);
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(Picks(), std::vector<int>());
    list.Remove(2);
    EXPECT_EQ(list.Current(), 1);
    list.Remove(1);
    EXPECT_EQ(list.Current(), 0);
}

TEST_F(ListViewTest, ClearedItHoldsNothing) {
    list.SetCurrent(2);
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Current(), 0);
}

TEST_F(ListViewTest, SortsWithCapitalsAndSmallLettersAlike) {
    list.SortBy(1, SortOrder::Ascending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"A", u"b", u"c"}));
    list.SortBy(1, SortOrder::Descending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"c", u"b", u"A"}));
}

TEST_F(ListViewTest, RowsThatCompareAlikeKeepTheirOrderBothWays) {
    list.SortBy(2, SortOrder::Ascending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
    list.SortBy(2, SortOrder::Descending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
}

TEST_F(ListViewTest, SortsRowsWithoutATextInTheColumnAsEmptyOnes) {
    list.Add({.key = u"short", .texts = {u"d"}});
    list.SortBy(2, SortOrder::Ascending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"d", u"b", u"A", u"c"}));
    list.SortBy(3, SortOrder::Descending);
    list.SortBy(0, SortOrder::Descending);
    EXPECT_EQ(Names(), (std::vector<Text>{u"d", u"b", u"A", u"c"}));
}

TEST_F(ListViewTest, TheCurrentRowAndThePicksGoWithTheirRowsInASort) {
    list.SetCurrent(2);
    list.SetSelected(3, true);
    list.SetChecked(1, true);
    list.SortBy(1, SortOrder::Descending);
    EXPECT_EQ(list.Current(), 3);
    EXPECT_EQ(Picks(), (std::vector<int>{1, 3}));
    EXPECT_TRUE(list.RowAt(2).checked);
}

TEST_F(ListViewTest, ASortOfAListWithoutACurrentRowMakesNone) {
    list.SortBy(1, SortOrder::Ascending);
    EXPECT_EQ(list.Current(), 0);
}

TEST_F(ListViewTest, AsksARowForOneThingAlone) {
    list.Add({.key = u"key", .texts = {u"one", u"two"}, .checked = true, .tag = 5, .icon = u"fileLost"});
    EXPECT_EQ(list.KeyAt(4), u"key");
    EXPECT_EQ(list.TextAt(4, 2), u"two");
    EXPECT_EQ(list.TextAt(4, 3), u"");
    EXPECT_EQ(list.TextAt(4, 0), u"");
    EXPECT_EQ(list.IconAt(4), u"fileLost");
    EXPECT_EQ(list.TagAt(4), 5);
    EXPECT_TRUE(list.Checked(4));
    EXPECT_FALSE(list.Selected(4));
}

TEST_F(ListViewTest, ARowOutsideTheListIsAnEmptyOne) {
    for (const int index : {0, 4}) {
        EXPECT_EQ(list.KeyAt(index), u"");
        EXPECT_EQ(list.TextAt(index, 1), u"");
        EXPECT_EQ(list.IconAt(index), u"");
        EXPECT_EQ(list.TagAt(index), 0);
        EXPECT_FALSE(list.Checked(index));
        EXPECT_FALSE(list.Selected(index));
        list.SetText(index, 1, u"x");
        list.SetIcon(index, u"x");
        list.SetTag(index, 1);
    }
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
}

TEST_F(ListViewTest, OneTextOfARowCanBeWrittenAnew) {
    list.SetCurrent(2);
    list.SetTag(2, 7);
    list.SetText(2, 1, u"a longer text than the one before");
    list.SetText(2, 4, u"four");
    list.SetText(2, 0, u"x");
    const ListRow row = list.RowAt(2);
    EXPECT_EQ(row.key, u"K_A");
    EXPECT_EQ(row.texts, (std::vector<Text>{u"a longer text than the one before", u"12", u"", u"four"}));
    EXPECT_EQ(row.tag, 7);
    EXPECT_TRUE(row.selected);
}

TEST_F(ListViewTest, IconsGoWithTheirRows) {
    list.SetIcon(2, u"fileLost");
    list.SetIcon(3, u"fileFound");
    list.Remove(1);
    list.Insert(1, RowNamed(u"x"));
    list.SortBy(1, SortOrder::Descending);
    EXPECT_EQ(list.IconAt(1), u"");
    EXPECT_EQ(list.IconAt(2), u"fileFound");
    EXPECT_EQ(list.IconAt(3), u"fileLost");
}

TEST_F(ListViewTest, CountsAndNamesThePickedRows) {
    list.SetSelected(3, true);
    list.SetSelected(1, true);
    EXPECT_EQ(list.SelectedCount(), 2);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 3}));
    list.Remove(1);
    EXPECT_EQ(list.SelectedCount(), 1);
    EXPECT_EQ(list.SelectedRows(), std::vector<int>{2});
    list.Set(2, {.texts = {u"x"}});
    EXPECT_EQ(list.SelectedCount(), 0);
    list.Insert(1, {.selected = true});
    EXPECT_EQ(list.SelectedCount(), 1);
    list.Clear();
    EXPECT_EQ(list.SelectedCount(), 0);
}

TEST_F(ListViewTest, AllRowsCanBePickedAtOnce) {
    list.SetAllSelected(true);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(log, "");
    list.SetAllSelected(false);
    EXPECT_EQ(list.SelectedRows(), std::vector<int>());
}

TEST_F(ListViewTest, TheWindowCanSortAsItWants) {
    list.SetCurrent(1);
    list.Reorder({3, 1, 2});
    EXPECT_EQ(Names(), (std::vector<Text>{u"c", u"b", u"A"}));
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(Picks(), std::vector<int>{2});
}

TEST_F(ListViewTest, AnOrderThatDoesNotNameEachRowOnceIsNone) {
    for (const auto& order : {std::vector<int>{1, 2}, {1, 2, 2}, {0, 1, 2}, {2, 3, 4}, {1, 2, 3, 3}, {}}) {
        list.Reorder(order);
        EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
    }
}

TEST_F(ListViewTest, ManyRowsComeAndGo) {
    for (int round = 0; round < 3; ++round) {
        for (int number = 1; number <= 100; ++number)
            list.Insert(2, RowNamed(NumberText(number)));
        EXPECT_EQ(list.TextAt(2, 1), u"100");
        EXPECT_EQ(list.TextAt(101, 1), u"1");
        for (int number = 1; number <= 100; ++number)
            list.Remove(2);
    }
    EXPECT_EQ(Names(), (std::vector<Text>{u"b", u"A", u"c"}));
}

TEST_F(ListViewTest, AColumnCanBeDraggedToAnotherWidth) {
    list.DragColumn(2, Twips{999});
    list.DragColumn(0, Twips{1});
    list.DragColumn(3, Twips{1});
    EXPECT_EQ(list.Columns.Get()[0].width, Twips{3000});
    EXPECT_EQ(list.Columns.Get()[1].width, Twips{999});
    EXPECT_EQ(list.Columns.Get()[1].header, u"Size");
}

TEST_F(ListViewTest, ADoubleClickGoesToItsRowFirst) {
    list.DoubleClick(3);
    EXPECT_EQ(log, "click3 double ");
}

TEST_F(ListViewTest, TellsWhichHeaderWasClicked) {
    list.ClickColumn(2);
    EXPECT_EQ(log, "column2 ");
}

TEST_F(ListViewTest, ATypedTextGoesToTheWindowAndThenAnotherRowIsCurrent) {
    std::vector<Text> typed;
    list.TextTyped = [&](int index, TextView text) {
        typed.push_back(NumberText(index) + u":" + Text(text));
        EXPECT_NE(list.Current(), index + 1) << "the row is left afterwards";
    };
    list.SetCurrent(1);
    list.TypeText(1, u"x", 1);
    EXPECT_TRUE(typed.empty()) << "no column can be edited";
    list.EditColumn = 2;
    list.TypeText(1, u"y", 1);
    EXPECT_EQ(list.Current(), 2);
    list.TypeText(2, u"z");
    EXPECT_EQ(list.Current(), 2);
    list.TypeText(3, u"end", 1);
    EXPECT_EQ(list.Current(), 2) << "there is no row after the last";
    list.TypeText(4, u"none", -1);
    EXPECT_EQ(typed, (std::vector<Text>{u"1:y", u"2:z", u"3:end"}));
    list.TextTyped = nullptr;
    list.TypeText(1, u"unheard", 1);
    EXPECT_EQ(list.Current(), 2);
}

TEST_F(ListViewTest, AllRowsArePickedAtOnceAndLetGo) {
    list.SetAllSelected(true);
    EXPECT_EQ(Picks(), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 2, 3}));
    list.SetSelected(2, false);
    list.SetSelected(4, true);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{1, 3}));
    list.SetAllSelected(false);
    EXPECT_EQ(Picks(), std::vector<int>{});
    EXPECT_EQ(list.SelectedCount(), 0);
}

TEST_F(ListViewTest, AWindowThatListensToNothingIsNotTold) {
    list.ItemClick = nullptr;
    list.DblClick = nullptr;
    list.ColumnClick = nullptr;
    list.DoubleClick(2);
    list.ClickColumn(1);
    EXPECT_EQ(list.Current(), 2);
    EXPECT_EQ(log, "");
}

} // namespace
} // namespace korvane
