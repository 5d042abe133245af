#include "controls/lists/RowsControl.h"

#include "controls/Form.h"
#include "controls/UpdateScope.h"
#include "controls/lists/ListBox.h"
#include "controls/lists/ListView.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace korvane {
namespace {

class Recorder : public RowListener {
public:
    void RowsReset() override { log += "reset "; }
    void RowsInserted(int first, int last) override { Note("inserted", first, last); }
    void RowsRemoved(int first, int last) override { Note("removed", first, last); }
    void RowsChanged(int first, int last) override { Note("changed", first, last); }
    void PicksChanged() override { log += "picks "; }
    void CurrentChanged() override { log += "current "; }
    void RowWantedInView() override { log += "wanted "; }

    /// What was heard since it was asked last.
    std::string Heard() { return std::exchange(log, {}); }

private:
    void Note(const char* what, int first, int last) {
        log += what + std::to_string(first) + "-" + std::to_string(last) + " ";
    }

    std::string log;
};

class RowsControlTest : public testing::Test {
protected:
    RowsControlTest() {
        for (const TextView name : {u"a", u"b", u"c", u"d"}) {
            box.AddItem(name);
            list.Add({.key = Text(name), .texts = {Text(name)}});
        }
        box.SetRowListener(&heard);
        list.SetRowListener(&heard);
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    ListBox box{window, "List1"};
    ListView list{window, "ListView1", {{u"Name", Twips{3000}}}};
    Recorder heard;
};

TEST_F(RowsControlTest, AListTellsWhatBecomesOfItsItems) {
    box.InsertItem(1, u"x");
    EXPECT_EQ(heard.Heard(), "inserted1-1 ");
    box.AddItem(u"x");
    EXPECT_EQ(heard.Heard(), "inserted5-5 ");
    box.SetList(2, u"x");
    EXPECT_EQ(heard.Heard(), "changed2-2 ");
    box.RemoveItem(0);
    EXPECT_EQ(heard.Heard(), "removed0-0 ");
    box.SetSelected(3, true);
    EXPECT_EQ(heard.Heard(), "changed3-3 picks ");
    box.SetListIndex(2);
    EXPECT_EQ(heard.Heard(), "current wanted ");
    EXPECT_EQ(box.TakeWantedRow(), 2);
    box.SetListIndex(-1);
    EXPECT_EQ(heard.Heard(), "current ");
    box.Clear();
    EXPECT_EQ(heard.Heard(), "reset ");
}

TEST_F(RowsControlTest, AListWithColumnsTellsWhatBecomesOfItsRows) {
    list.Insert(2, {});
    EXPECT_EQ(heard.Heard(), "inserted1-1 ");
    list.Add({});
    EXPECT_EQ(heard.Heard(), "inserted5-5 ");
    list.Insert(1, {.selected = true});
    EXPECT_EQ(heard.Heard(), "inserted0-0 picks ");
    list.Remove(1);
    EXPECT_EQ(heard.Heard(), "removed0-0 ");
    list.Clear();
    EXPECT_EQ(heard.Heard(), "reset ");
}

TEST_F(RowsControlTest, AListWithColumnsTellsWhatChangesInARow) {
    list.Set(2, {.texts = {u"x"}});
    EXPECT_EQ(heard.Heard(), "changed1-1 ");
    list.Set(2, {.texts = {u"x"}, .selected = true});
    EXPECT_EQ(heard.Heard(), "changed1-1 picks ");
    list.SetText(4, 1, u"x");
    EXPECT_EQ(heard.Heard(), "changed3-3 ");
    list.SetText(4, 1, u"x");
    EXPECT_EQ(heard.Heard(), "");
    list.SetIcon(3, u"fileLost");
    EXPECT_EQ(heard.Heard(), "changed2-2 ");
    list.SetIcon(3, u"fileLost");
    EXPECT_EQ(heard.Heard(), "");
    list.SetChecked(1, true);
    EXPECT_EQ(heard.Heard(), "changed0-0 ");
    list.SetTag(1, 5);
    EXPECT_EQ(heard.Heard(), "");
}

TEST_F(RowsControlTest, AListWithColumnsTellsOfPicksAndTheCurrentRow) {
    list.SetSelected(3, true);
    EXPECT_EQ(heard.Heard(), "picks ");
    list.SetAllSelected(true);
    EXPECT_EQ(heard.Heard(), "picks ");
    list.SetCurrent(2);
    EXPECT_EQ(heard.Heard(), "picks current wanted ");
    EXPECT_EQ(list.TakeWantedRow(), 1);
    list.EnsureVisible(4);
    EXPECT_EQ(heard.Heard(), "wanted ");
    EXPECT_EQ(list.TakeWantedRow(), 3);
    list.EnsureVisible(5);
    list.EnsureVisible(0);
    EXPECT_EQ(heard.Heard(), "");
}

TEST_F(RowsControlTest, ASortBringsTheCurrentRowIntoView) {
    list.SetCurrent(2);
    heard.Heard();
    list.SortBy(1, SortOrder::Descending);
    EXPECT_EQ(heard.Heard(), "reset current wanted ");
    EXPECT_EQ(list.TakeWantedRow(), 2);
}

TEST_F(RowsControlTest, WhatChangesInAnUpdateIsToldOnceAtItsEnd) {
    {
        const UpdateScope update(list);
        list.Clear();
        list.Add({});
        list.Add({});
        list.SetSelected(1, true);
        list.SetCurrent(2);
        EXPECT_EQ(heard.Heard(), "");
    }
    EXPECT_EQ(heard.Heard(), "reset wanted ");
    EXPECT_EQ(list.TakeWantedRow(), 1);
}

TEST_F(RowsControlTest, AnUpdateWithoutAChangeTellsNothing) {
    { const UpdateScope update(list); }
    EXPECT_EQ(heard.Heard(), "");
}

TEST_F(RowsControlTest, UpdatesNest) {
    {
        const UpdateScope outer(list);
        {
            const UpdateScope inner(list);
            list.Add({});
        }
        EXPECT_EQ(heard.Heard(), "");
    }
    EXPECT_EQ(heard.Heard(), "reset ");
    list.Add({});
    EXPECT_EQ(heard.Heard(), "inserted5-5 ");
}

TEST_F(RowsControlTest, AnUpdateEndsWhenSomethingIsThrown) {
    const auto fail = [this] {
        const UpdateScope update(list);
        list.Add({});
        throw std::runtime_error("the folder has gone");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(heard.Heard(), "reset ");
}

TEST_F(RowsControlTest, AnEndWithoutABeginningIsNone) {
    list.EndUpdate();
    list.Add({});
    EXPECT_EQ(heard.Heard(), "inserted4-4 ");
}

TEST_F(RowsControlTest, TheWantedRowIsFoundWhereItIsByThen) {
    list.EnsureVisible(3);
    list.Insert(1, {});
    list.Insert(5, {});
    EXPECT_EQ(list.TakeWantedRow(), 3);
    EXPECT_EQ(list.TakeWantedRow(), std::nullopt);
    list.EnsureVisible(3);
    list.Remove(4);
    list.Remove(1);
    EXPECT_EQ(list.TakeWantedRow(), 1);
}

TEST_F(RowsControlTest, AWantedRowThatGoesIsWantedNoMore) {
    list.EnsureVisible(3);
    list.Remove(3);
    EXPECT_EQ(list.TakeWantedRow(), std::nullopt);
    list.EnsureVisible(3);
    list.Clear();
    EXPECT_EQ(list.TakeWantedRow(), std::nullopt);
}

TEST_F(RowsControlTest, WithoutAListenerItHoldsItsRowsAllTheSame) {
    list.SetRowListener(nullptr);
    {
        const UpdateScope update(list);
        list.Add({});
        list.SetCurrent(5);
    }
    EXPECT_EQ(list.Count(), 5);
    EXPECT_EQ(list.TakeWantedRow(), 4);
    EXPECT_EQ(heard.Heard(), "");
}

} // namespace
} // namespace korvane
