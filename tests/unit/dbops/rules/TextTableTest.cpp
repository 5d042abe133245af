#include "dbops/rules/TextTable.h"

#include "document/model/Reading.h"
#include "document/store/MemoryTextStore.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

class TextTableTest : public testing::Test {
protected:
    TextTableTest() {
        t.Fill({{u"a1", u"b1"}, {u"a2", u"b2"}, {u"a3", u"b3"}});
        t.grid.SetColWidth(Col{1}, 100);
        t.grid.SetColWidth(Col{2}, 0);
    }
    doc::Document Make(
        const std::function<bool(Row)>& takes = [](Row) { return true; },
        const std::vector<Text>& titles = {u"Name", u"Town"}) {
        return MakeTextTable(t.grid, titles, takes, look, {}).value_or(doc::Document{});
    }
    /// Whether all rows fit into these limits.
    bool Fits(const doc::Limits& limits) {
        return MakeTextTable(
                   t.grid, {}, [](Row) { return true; }, look, limits)
            .has_value();
    }
    /// The rows with a bar between cells.
    static std::string Cells(const doc::Document& document) {
        std::string cells;
        const doc::Paragraph* last = nullptr;
        for (const doc::Paragraph& paragraph : document.paragraphs) {
            if (paragraph.cell.table == 0) break;
            if (last != nullptr)
                cells += last->cell == paragraph.cell           ? "^"
                         : last->cell.row == paragraph.cell.row ? "|"
                                                                : "/";
            cells += ToUtf8(paragraph.text);
            last = &paragraph;
        }
        return cells;
    }
    static const doc::CellFormat& Cell(const doc::Document& document, std::size_t row, std::size_t column) {
        return document.tables.begin()->second.rows[row].cells[column];
    }
    std::vector<Colour> Backs() {
        const doc::Document document = Make();
        std::vector<Colour> backs;
        for (const doc::TableRow& row : document.tables.begin()->second.rows)
            backs.push_back(row.cells[0].back);
        return backs;
    }

    TestTab t;
    TextTableLook look;
};

TEST_F(TextTableTest, HasTheTakenRows) {
    EXPECT_EQ(Cells(Make()), "a1|b1/a2|b2/a3|b3");
    EXPECT_EQ(Cells(Make([](Row row) { return row == Row{2}; })), "a2|b2");
    EXPECT_TRUE(doc::IsSound(Make()));
}

TEST_F(TextTableTest, TitlesComeFirstAndTakeTheFirstRowWithThem) {
    look.titles = true;
    EXPECT_EQ(Cells(Make([](Row row) { return row == Row{3}; })), "Name|Town/a1|b1/a3|b3");
    EXPECT_EQ(Cells(Make([](Row) { return true; }, {})), "|/a1|b1/a2|b2/a3|b3");
}

TEST_F(TextTableTest, AWholeTableFitsOrNoneOfIt) {
    EXPECT_TRUE(Fits({.cells = 6}));
    EXPECT_FALSE(Fits({.cells = 5}));
    const std::size_t kLength = 6 * (2 + kCrLf.size());
    EXPECT_TRUE(Fits({.characters = kLength}));
    EXPECT_FALSE(Fits({.characters = kLength - 1}));
}

TEST_F(TextTableTest, EachLineOfACellIsAParagraphUntilThereAreVeryMany) {
    Text lines = u"line";
    for (int line = 1; line < 1002; ++line)
        lines += line % 2 == 0 ? u"\rline" : u"\r\nline";
    t.grid.SetCellValue(Row{1}, Col{1}, lines);
    const doc::Document document = Make([](Row row) { return row == Row{1}; });
    ASSERT_EQ(document.paragraphs.size(), 1002u) << "1000, the second cell, and the end of the text";
    EXPECT_EQ(document.paragraphs[998].text, u"line");
    EXPECT_EQ(document.paragraphs[999].text, u"line\vline\vline");
    EXPECT_EQ(document.paragraphs[1000].text, u"b1");
    EXPECT_TRUE(doc::IsSound(document));
}

TEST_F(TextTableTest, NothingIsLeftOutOfALargeTableWithinTheLimits) {
    const Text large(doc::Limits{}.characters + 1, u'x');
    t.grid.SetCellValue(Row{1}, Col{1}, large);
    const auto document =
        MakeTextTable(t.grid, {}, [](Row) { return true; }, look, {.characters = 2 * large.size()});
    ASSERT_TRUE(document);
    ASSERT_EQ(document->paragraphs.size(), 7u);
    EXPECT_EQ(document->paragraphs[0].text.size(), large.size());
    EXPECT_EQ(document->paragraphs[5].text, u"b3");
}

TEST_F(TextTableTest, ALineEndIsOneWhereverALongTextIsCut) {
    for (const std::size_t before : {std::size_t{16383}, std::size_t{16384}, std::size_t{32767}}) {
        t.grid.SetCellValue(Row{1}, Col{1}, Text(before, u'a') + u"\r\nb\r\r\n");
        const doc::Document document = Make([](Row row) { return row == Row{1}; });
        ASSERT_EQ(document.paragraphs.size(), 5u) << before;
        EXPECT_EQ(document.paragraphs[0].text.size(), before);
        EXPECT_EQ(document.paragraphs[1].text, u"b");
        EXPECT_EQ(document.paragraphs[2].text, u"") << "one line end at the end doesn't count";
        EXPECT_EQ(document.paragraphs[3].text, u"b1");
    }
}

TEST_F(TextTableTest, CellsThatTheCodePageCannotHoldAreWholeToo) {
    t.grid.SetCellValue(Row{1}, Col{1}, u"\u4E2D\r\nb\r\n");
    EXPECT_EQ(Cells(Make([](Row row) { return row == Row{1}; })), "\u4E2D^b|b1");
}

TEST_F(TextTableTest, WithoutRowsThereIsNoTable) {
    const doc::Document document = Make([](Row) { return false; });
    EXPECT_TRUE(document.tables.empty());
    EXPECT_EQ(doc::PlainText(document), u"");
}

TEST_F(TextTableTest, AMarkedRowIsAnEmptyRow) {
    t.grid.SetCellValue(Row{2}, Col{1}, u"---");
    EXPECT_EQ(Cells(Make()), "a1|b1/|/a3|b3");
}

TEST_F(TextTableTest, ACellLosesOneLineEndAtItsEndAndKeepsOthers) {
    t.grid.SetCellValue(Row{1}, Col{1}, u"x\r\ny\r\n");
    t.grid.SetCellValue(Row{1}, Col{2}, u"z\r\n\r\n");
    t.grid.SetCellValue(Row{2}, Col{1}, u"u\r");
    EXPECT_EQ(Cells(Make()), "x^y|z^/u|b2/a3|b3");
}

TEST_F(TextTableTest, CellsHaveTheirWidthsPlacesBordersAndGaps) {
    look.leftMargin = 50;
    look.border = 15;
    look.gap = 70;
    const doc::Document document = Make();
    EXPECT_EQ(Cell(document, 0, 0).width, 600);
    EXPECT_EQ(Cell(document, 0, 1).width, 1800);
    EXPECT_EQ(Cell(document, 2, 0).left, 50);
    EXPECT_EQ(Cell(document, 2, 1).left, 150);
    EXPECT_EQ(Cell(document, 1, 1).border, (std::array<std::int32_t, 4>{15, 15, 15, 15}));
    EXPECT_EQ(Cell(document, 1, 1).gapLeft, 70);
    EXPECT_EQ(Cell(document, 1, 1).gapRight, 70);
}

TEST_F(TextTableTest, TheTextIsOfTenPoints) {
    doc::MemoryTextStore store;
    store.Reset(Make());
    EXPECT_EQ(store.LookAt(1).format.halfPoints, 20);
}

TEST_F(TextTableTest, EverySecondRowIsColoured) {
    const Colour grey{0xC0C0C0};
    look.alternateBack = grey;
    EXPECT_EQ(Backs(), (std::vector<Colour>{kNoColour, kNoColour, kNoColour}));
    look.alternateRowsColoured = true;
    EXPECT_EQ(Backs(), (std::vector<Colour>{kNoColour, grey, kNoColour}));
    look.firstRowColoured = true;
    look.firstRowBack = Colour{0x112233};
    EXPECT_EQ(Backs(), (std::vector<Colour>{Colour{0x112233}, kNoColour, grey}));
}

TEST_F(TextTableTest, TheFirstRowHasColoursOfItsOwn) {
    look.firstRowColoured = true;
    look.firstRowBack = Colour{0x112233};
    look.firstRowText = Colour{0x445566};
    doc::MemoryTextStore store;
    store.Reset(Make());
    EXPECT_EQ(store.LookAt(1).format.fore, Colour{0x445566});
    const auto second = store.CellRange({1, 1, 0});
    ASSERT_TRUE(second);
    EXPECT_NE(store.LookAt(second->second).format.fore, Colour{0x445566});
}

} // namespace
} // namespace korvane
