#include "dbops/rules/TableStatus.h"

#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

constexpr DateTime kNow{2026, 11, 22, 23, 40, 0};

TEST(TableStatus, TellsTheRowTheTicksTheFilterAndTheSave) {
    TestTab t;
    t.Fill({{u"a"}, {u"b"}, {u"c"}});
    t.GoTo(2, 1);
    EXPECT_EQ(TableStatus(t.table, kNow), (Texts{u"Row 2 of 3"}));
    t.grid.SetCellCheckShown(Row{1}, true);
    t.Tick({1, 3});
    t.Hide({3});
    t.table.SavedAt = DateTime{2026, 11, 22, 23, 32, 59};
    EXPECT_EQ(TableStatus(t.table, kNow), (Texts{u"Row 2 of 3", u"2 ticked", u"filtered", u"saved 23:32"}));
}

TEST(TableStatus, ASaveOfAnotherDayIsToldWithItsDate) {
    TestTab t;
    t.Fill({{u"a"}});
    t.table.SavedAt = DateTime{2026, 3, 1, 23, 32, 59};
    EXPECT_EQ(TableStatus(t.table, kNow), (Texts{u"Row 1 of 1", u"saved 01.03.2026"}));
}

TEST(TableStatus, ATableWithoutRowsTellsNothing) {
    TestTab t;
    EXPECT_EQ(TableStatus(t.table, kNow), Texts());
}

} // namespace
} // namespace korvane
