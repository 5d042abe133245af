#include "platform/xls/CellName.h"

#include <gtest/gtest.h>

namespace korvane::xls {
namespace {

TEST(CellName, ReadsLettersAndANumber) {
    EXPECT_EQ(ParseCellName(u"A1"), (CellPlace{0, 0}));
    EXPECT_EQ(ParseCellName(u"B3"), (CellPlace{2, 1}));
    EXPECT_EQ(ParseCellName(u"x32768"), (CellPlace{32767, 23}));
    EXPECT_EQ(ParseCellName(u"AA10"), (CellPlace{9, 26}));
}

TEST(CellName, KnowsTheLastCellOfASheet) {
    EXPECT_EQ(ParseCellName(u"IV65536"), (CellPlace{65535, 255}));
    EXPECT_EQ(ParseCellName(u"IW1"), std::nullopt);
    EXPECT_EQ(ParseCellName(u"A65537"), std::nullopt);
}

TEST(CellName, RefusesWhatIsNone) {
    for (const TextView name : {u"", u"A", u"1", u"A0", u"A01", u"1A", u"[1", u"A1B", u"A 1", u"A-1",
                                u"A1:B2", u"ZZZZZZZZZZZZZZZZZZ1", u"A99999999999999999999"})
        EXPECT_EQ(ParseCellName(name), std::nullopt) << ToUtf8(name);
}

TEST(CellName, ReadsAColumn) {
    EXPECT_EQ(ParseColumnName(u"A:A"), U16{0});
    EXPECT_EQ(ParseColumnName(u"X:x"), U16{23});
    EXPECT_EQ(ParseColumnName(u"IV:IV"), U16{255});
}

TEST(CellName, RefusesWhatIsNotExactlyOneColumn) {
    for (const TextView name : {u"", u"A", u":", u"A:", u":A", u"A:B", u"A:A1", u"IW:IW", u"[:["})
        EXPECT_EQ(ParseColumnName(name), std::nullopt) << ToUtf8(name);
}

} // namespace
} // namespace korvane::xls
