#pragma once

#include "document/editing/TextEditing.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {

/// The tests of editing that must pass on every text store. A store has a default constructor.
template <class Store>
class TextEditingContract : public testing::Test {
protected:
    void Select(int start, int length) {
        control.SetSelStart(start);
        control.SetSelLength(length);
    }
    std::string All() const { return ToUtf8(control.All()); }

    class CountingEditing final : public TextEditing {
    public:
        using TextEditing::TextEditing;
        int edits = 0;
        int moves = 0;

    private:
        void Edited() override { ++edits; }
        void SelectionMoved() override { ++moves; }
    };

    CountingEditing control{std::make_unique<Store>()};
};

TYPED_TEST_SUITE_P(TextEditingContract);

// The text and the selection.

TYPED_TEST_P(TextEditingContract, ANewTextIsEmpty) {
    EXPECT_EQ(this->All(), "");
    EXPECT_EQ(this->control.SelStart(), 0);
    EXPECT_EQ(this->control.SelLength(), 0);
    EXPECT_FALSE(this->control.DataChanged());
}

TYPED_TEST_P(TextEditingContract, WhatIsWrittenIsReadWithCrLf) {
    this->control.SetAll(u"one\ntwo\r\nthree");
    EXPECT_EQ(this->All(), "one\r\ntwo\r\nthree");
    EXPECT_TRUE(this->control.DataChanged());
    this->control.SetAll(u"");
    EXPECT_EQ(this->All(), "");
}

TYPED_TEST_P(TextEditingContract, ASelectionStaysWithinTheText) {
    this->control.SetAll(u"12345");
    this->Select(2, -1);
    EXPECT_EQ(this->control.SelLength(), 3);
    this->Select(99, 99);
    EXPECT_EQ(this->control.SelStart(), 5);
    EXPECT_EQ(this->control.SelLength(), 0);
    this->Select(-5, 2);
    EXPECT_EQ(this->control.SelText(), u"12");
    this->control.SetSelStart(3);
    EXPECT_EQ(this->control.SelLength(), 0);
}

TYPED_TEST_P(TextEditingContract, WritingReplacesTheSelectionAndLeavesTheCursorBehind) {
    this->control.SetAll(u"abcd");
    this->Select(1, 2);
    this->control.SetSelText(u"1\r\n2");
    EXPECT_EQ(this->All(), "a1\r\n2d");
    EXPECT_EQ(this->control.SelStart(), 5);
    this->control.SetSelText(u"x");
    EXPECT_EQ(this->All(), "a1\r\n2xd");
}

TYPED_TEST_P(TextEditingContract, AnEdgeWithinALineEndMovesOutward) {
    this->control.SetAll(u"ab\r\ncd");
    this->Select(1, 2);
    this->control.SetSelText(u"-");
    EXPECT_EQ(this->All(), "a-cd");
    this->control.SetAll(u"ab\r\ncd");
    this->control.SetSelStart(3);
    this->control.SetSelText(u"x");
    EXPECT_EQ(this->All(), "abx\r\ncd");
}

TYPED_TEST_P(TextEditingContract, ManySmallChangesKeepTheText) {
    Text expected;
    for (int i = 0; i < 200; ++i) {
        const std::size_t at = static_cast<std::size_t>(i * 7) % (expected.size() + 1);
        this->control.SetSelStart(static_cast<int>(at));
        const Text part(static_cast<std::size_t>(i % 5), static_cast<char16_t>(u'a' + i % 26));
        this->control.SetSelText(part);
        expected.insert(at, part);
    }
    EXPECT_EQ(this->control.All(), expected);
}

TYPED_TEST_P(TextEditingContract, AChangeIsReported) {
    this->control.SetSelText(u"abc");
    EXPECT_EQ(this->control.edits, 1);
    this->control.SetFontBold(1);
    EXPECT_EQ(this->control.edits, 1);
    this->Select(0, 1);
    this->control.SetFontBold(1);
    EXPECT_EQ(this->control.edits, 2);
}

TYPED_TEST_P(TextEditingContract, AnotherSelectionIsReported) {
    this->control.SetAll(u"abc");
    const int before = this->control.moves;
    this->control.SetSelStart(2);
    EXPECT_EQ(this->control.moves, before + 1);
    this->control.SetSelStart(2);
    this->control.SetSelLength(0);
    EXPECT_EQ(this->control.moves, before + 1);
    this->control.SetSelLength(1);
    EXPECT_EQ(this->control.moves, before + 2);
    this->control.SetSelText(u"x");
    EXPECT_EQ(this->control.moves, before + 3);
}

TYPED_TEST_P(TextEditingContract, EveryCallIsUndoneByItself) {
    this->control.SetAll(u"abc");
    this->Select(0, 1);
    this->control.SetFontBold(1);
    this->control.SetSelText(u"x");
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->All(), "abc");
    this->Select(0, 1);
    EXPECT_EQ(this->control.FontBold(), 1);
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->control.FontBold(), 0);
    EXPECT_FALSE(this->control.Undo());
    EXPECT_TRUE(this->control.Redo());
    EXPECT_EQ(this->control.FontBold(), 1);
    EXPECT_TRUE(this->control.Redo());
    EXPECT_EQ(this->All(), "xbc");
    EXPECT_FALSE(this->control.Redo());
}

TYPED_TEST_P(TextEditingContract, AStepIsUndoneAsOne) {
    this->control.SetAll(u"abc");
    {
        const Step step(this->control.Store());
        this->Select(0, 1);
        this->control.SetSelText(u"1");
        this->control.SetSelText(u"2");
    }
    EXPECT_EQ(this->All(), "12bc");
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->All(), "abc");
}

// Characters.

TYPED_TEST_P(TextEditingContract, FormatsApplyToTheSelection) {
    this->control.SetAll(u"abcdef");
    this->Select(1, 3);
    this->control.SetFontName(u"Calibri");
    this->control.SetFontSize(14);
    this->control.SetFontBold(-1);
    this->control.SetFontItalic(1);
    this->control.SetFontUnderline(1);
    this->control.SetFontStrikethru(1);
    this->control.SetCharAttributes(TextEditing::kSmallCaps);
    this->control.SetBaseLine(-36);
    this->control.SetForeColor({255});
    this->control.SetTextBkColor({65535});
    this->Select(1, 3);
    EXPECT_EQ(this->control.FontName(), u"Calibri");
    EXPECT_EQ(this->control.FontSize(), 14);
    EXPECT_EQ(this->control.FontBold(), 1);
    EXPECT_EQ(this->control.FontItalic(), 1);
    EXPECT_EQ(this->control.FontUnderline(), 1);
    EXPECT_EQ(this->control.FontStrikethru(), 1);
    EXPECT_EQ(this->control.CharAttributes(), TextEditing::kSmallCaps);
    EXPECT_EQ(this->control.BaseLine(), -36);
    EXPECT_EQ(this->control.ForeColor(), Colour{255});
    EXPECT_EQ(this->control.TextBkColor(), Colour{65535});
    this->Select(0, 1);
    EXPECT_EQ(this->control.FontBold(), 0);
    EXPECT_EQ(this->control.FontName(), u"Arial");
}

TYPED_TEST_P(TextEditingContract, AMixedSelectionTellsTheFirstCharacter) {
    this->control.SetAll(u"ab");
    this->Select(0, 1);
    this->control.SetFontBold(1);
    this->control.SetFontSize(20);
    this->Select(0, 2);
    EXPECT_EQ(this->control.FontBold(), TextEditing::kMixed);
    EXPECT_EQ(this->control.FontSize(), 20);
}

TYPED_TEST_P(TextEditingContract, ASelectionTellsWhetherItsCharactersDiffer) {
    this->control.SetAll(u"ab\r\ncd");
    const auto differs = [this] {
        return std::array{this->control.FontNameDiffers(), this->control.FontSizeDiffers(),
                          this->control.BaseLineDiffers()};
    };
    this->Select(0, 6);
    EXPECT_EQ(differs(), (std::array{false, false, false}));
    this->Select(4, 1);
    this->control.SetFontName(u"Calibri");
    this->Select(0, 6);
    EXPECT_EQ(differs(), (std::array{true, false, false}));
    this->control.SetFontName(u"Calibri");
    this->Select(5, 1);
    this->control.SetFontHalfPoints(21);
    this->Select(0, 6);
    EXPECT_EQ(differs(), (std::array{false, true, false}));
    this->control.SetFontSize(12);
    this->Select(0, 1);
    this->control.SetBaseLine(72);
    this->Select(0, 6);
    EXPECT_EQ(differs(), (std::array{false, false, true}));
    this->Select(3, 0);
    EXPECT_EQ(differs(), (std::array{false, false, false}));
}

TYPED_TEST_P(TextEditingContract, AFormatAtTheCursorIsForWhatIsWrittenNext) {
    this->control.SetSelText(u"a");
    this->control.SetFontBold(1);
    this->control.SetFontName(u"Calibri");
    EXPECT_EQ(this->control.FontBold(), 1);
    EXPECT_EQ(this->control.FontName(), u"Calibri");
    this->control.SetSelText(u"b");
    this->control.SetSelText(u"c");
    this->Select(1, 2);
    EXPECT_EQ(this->control.FontBold(), 1);
    this->Select(0, 1);
    EXPECT_EQ(this->control.FontBold(), 0);
}

TYPED_TEST_P(TextEditingContract, AFormatAtTheCursorGoesWhenTheCursorMoves) {
    this->control.SetAll(u"abc");
    this->control.SetFontBold(1);
    this->control.SetSelStart(2);
    EXPECT_EQ(this->control.FontBold(), 0);
}

TYPED_TEST_P(TextEditingContract, WrittenTextLooksLikeTheOneBeforeIt) {
    this->control.SetAll(u"ab");
    this->Select(0, 1);
    this->control.SetFontItalic(1);
    this->control.SetSelStart(1);
    this->control.SetSelText(u"x");
    this->Select(1, 1);
    EXPECT_EQ(this->control.FontItalic(), 1);
}

// Paragraphs and the page.

TYPED_TEST_P(TextEditingContract, FormatsOfParagraphsApplyToAllThatAreTouched) {
    this->control.SetAll(u"a\r\nb\r\nc");
    this->Select(0, 4);
    this->control.SetAlignment(2);
    this->control.SetIndentL(1701);
    this->control.SetIndentFL(-1701);
    this->control.SetIndentR(10);
    this->control.SetIndentT(20);
    this->control.SetIndentB(30);
    this->control.SetSelStart(4);
    EXPECT_EQ(this->control.Alignment(), 2);
    EXPECT_EQ(this->control.IndentL(), 1701);
    EXPECT_EQ(this->control.IndentFL(), -1701);
    EXPECT_EQ(this->control.IndentR(), 10);
    EXPECT_EQ(this->control.IndentT(), 20);
    EXPECT_EQ(this->control.IndentB(), 30);
    this->control.SetSelStart(6);
    EXPECT_EQ(this->control.Alignment(), 0);
    this->control.SetAlignment(9);
    EXPECT_EQ(this->control.Alignment(), 0);
}

TYPED_TEST_P(TextEditingContract, LinesAreApartByAPercentageOrExactly) {
    this->control.SetLineSpacing(150);
    EXPECT_EQ(this->control.LineSpacing(), 150);
    EXPECT_EQ(this->control.LineSpacingT(), 0);
    this->control.SetLineSpacingT(320);
    EXPECT_EQ(this->control.LineSpacingT(), 320);
    EXPECT_EQ(this->control.LineSpacing(), 0);
    this->control.SetLineSpacing(100);
    EXPECT_EQ(this->control.LineSpacing(), 100);
    EXPECT_EQ(this->control.LineSpacingT(), 0);
}

TYPED_TEST_P(TextEditingContract, FourteenTabsAreSetAndCleared) {
    for (int tab = 1; tab <= 14; ++tab) {
        this->control.SetTabCurrent(tab);
        this->control.SetTabPos(tab * 567);
        this->control.SetTabType(1 + tab % 4);
    }
    this->control.SetTabCurrent(14);
    EXPECT_EQ(this->control.TabPos(), 14 * 567);
    EXPECT_EQ(this->control.TabType(), 3);
    this->control.SetTabCurrent(15);
    EXPECT_EQ(this->control.TabPos(), 0);
    this->control.SetTabPos(99);
    for (int tab = 14; tab >= 1; --tab) {
        this->control.SetTabCurrent(tab);
        this->control.SetTabPos(0);
    }
    this->control.SetTabCurrent(1);
    EXPECT_EQ(this->control.TabPos(), 0);
    EXPECT_EQ(this->control.TabType(), 1);
}

TYPED_TEST_P(TextEditingContract, FramesKeepTheirBits) {
    this->control.SetFrameStyle(256 + 512 + 1024 + 2048 + 4096 + 32);
    this->control.SetFrameLineWidth(40);
    this->control.SetFrameDistance(80);
    EXPECT_EQ(this->control.FrameStyle(), 7968);
    EXPECT_EQ(this->control.FrameLineWidth(), 40);
    EXPECT_EQ(this->control.FrameDistance(), 80);
}

TYPED_TEST_P(TextEditingContract, ThePageHasItsSizes) {
    this->control.SetPageSize(Page::Width, 9000);
    this->control.SetPageSize(Page::MarginTop, 240);
    EXPECT_EQ(this->control.PageSize(Page::Width), 9000);
    EXPECT_EQ(this->control.PageSize(Page::MarginTop), 240);
}

// Formatted text and whole documents.

TYPED_TEST_P(TextEditingContract, FormattedTextGoesFromOneSelectionToAnother) {
    this->control.SetAll(u"plain bold");
    this->Select(6, 4);
    this->control.SetFontBold(1);
    this->Select(6, 4);
    const std::string rtf = this->control.SelTextRtf();
    this->control.SetSelStart(0);
    this->control.SetSelTextRtf(rtf);
    EXPECT_EQ(this->All(), "boldplain bold");
    EXPECT_EQ(this->control.SelStart(), 4);
    this->Select(0, 4);
    EXPECT_EQ(this->control.FontBold(), 1);
}

TYPED_TEST_P(TextEditingContract, AnEmptySelectionHasNoFormattedText) {
    this->control.SetAll(u"abc");
    EXPECT_EQ(this->control.SelTextRtf(), "");
    this->Select(0, 2);
    this->control.SetSelTextRtf("");
    EXPECT_EQ(this->All(), "c");
    this->control.SetSelTextRtf("no RTF");
    EXPECT_EQ(this->All(), "c");
}

TYPED_TEST_P(TextEditingContract, AWholeDocumentComesBack) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const Document document = RandomDocument(seed);
        this->control.SetWhole(document);
        ASSERT_EQ(FirstDifference(this->control.Whole(), document), "") << seed;
        ASSERT_EQ(this->control.All(), PlainText(document)) << seed;
    }
}

// Tables.

TYPED_TEST_P(TextEditingContract, ATableIsFilledByItsCells) {
    this->control.SetSelText(u"\r\n\r\n");
    this->control.SetSelStart(2);
    const int table = this->control.InsertTable(2, 3);
    ASSERT_LT(table, 0);
    EXPECT_EQ(this->control.TableRows(table), 2);
    EXPECT_EQ(this->control.TableColumns(table), 3);
    this->control.SetCellText(table, 1, 2, u"two");
    this->control.SetCellText(table, 2, 3, u"a\r\nb");
    this->control.SetCellText(table, 3, 1, u"nowhere");
    EXPECT_EQ(this->control.CellText(table, 1, 2), u"two");
    EXPECT_EQ(this->control.CellText(table, 2, 3), u"a\r\nb");
    EXPECT_EQ(this->control.CellText(table, 3, 1), u"");
    EXPECT_EQ(this->control.CellStart(table, 1, 1), 3);
    EXPECT_EQ(this->control.CellStart(table, 9, 1), 0);
    EXPECT_EQ(this->All(), "\r\n\r\ntwo\r\n\r\n\r\n\r\na\r\nb\r\n\r\n");
}

TYPED_TEST_P(TextEditingContract, ATableIsRefusedWithinATable) {
    const int table = this->control.InsertTable(1, 1);
    EXPECT_LT(table, 0);
    this->control.SetSelStart(this->control.CellStart(table, 1, 1) - 1);
    EXPECT_GT(this->control.TableAtInputPos(), 0);
    EXPECT_EQ(this->control.InsertTable(1, 1), 0);
    EXPECT_EQ(this->control.InsertTable(0, 1), 0);
}

TYPED_TEST_P(TextEditingContract, ATableWithoutRowsOrColumnsIsTakenAndIsNothing) {
    this->control.SetAll(u"ab");
    this->control.SetDataChanged(false);
    for (const auto& [rows, columns] : {std::pair{0, 3}, {3, 0}, {-1, 1}}) {
        const int table = this->control.InsertTable(rows, columns);
        EXPECT_LT(table, 0);
        EXPECT_EQ(this->control.TableRows(table), 0);
        this->control.SetCellText(table, 1, 1, u"nowhere");
        this->control.SetCellAttribute(table, 1, 1, 1, 900);
        EXPECT_EQ(this->control.CellStart(table, 1, 1), 0);
    }
    EXPECT_EQ(this->All(), "ab");
    EXPECT_TRUE(this->control.Whole().tables.empty());
    EXPECT_FALSE(this->control.DataChanged());
}

TYPED_TEST_P(TextEditingContract, CellsHaveAttributes) {
    const int table = this->control.InsertTable(1, 2);
    for (const auto& [attribute, value] : {std::pair{0, 30}, {1, 900}, {2, 15}, {4, 255}, {9, 5}, {11, 6}})
        this->control.SetCellAttribute(table, 1, 2, attribute, value);
    this->control.SetCellAttribute(table, 5, 5, 1, 1);
    const CellFormat cell = this->control.Whole().tables.begin()->second.rows[0].cells[1];
    EXPECT_EQ(cell.left, 30);
    EXPECT_EQ(cell.width, 900);
    EXPECT_EQ(cell.border, (std::array<std::int32_t, 4>{15, 15, 15, 15}));
    EXPECT_EQ(cell.back, Colour{255});
    EXPECT_EQ(cell.gapLeft, 5);
    EXPECT_EQ(cell.gapRight, 6);
}

TYPED_TEST_P(TextEditingContract, ATableIsSelectedFromItsFirstCell) {
    this->control.SetSelText(u"\r\n\r\n");
    this->control.SetSelStart(2);
    const int table = this->control.InsertTable(1, 2);
    this->control.SetCellText(table, 1, 1, u"x");
    this->Select(this->control.CellStart(table, 1, 1) - 1, -1);
    const std::string rtf = this->control.SelTextRtf();
    this->control.SetAll(u"");
    this->control.SetSelTextRtf(rtf);
    EXPECT_EQ(this->control.Whole().tables.size(), 1u);
    EXPECT_EQ(this->All().substr(0, 3), "x\r\n");
}

// Fields.

TYPED_TEST_P(TextEditingContract, AFieldGetsItsTextLater) {
    this->control.SetAll(u"ab");
    this->control.SetSelStart(1);
    this->control.SetFontBold(1);
    this->control.FieldInsert(u"");
    const int field = this->control.FieldAtInputPos();
    ASSERT_GT(field, 0);
    this->control.SetFieldCurrent(field);
    EXPECT_EQ(this->control.FieldStart(), 2);
    this->control.SetFieldText(u"link");
    EXPECT_EQ(this->All(), "alinkb");
    EXPECT_EQ(this->control.FieldText(), u"link");
    EXPECT_EQ(this->control.FieldStart(), 2);
    this->Select(1, 4);
    EXPECT_EQ(this->control.FontBold(), 1);
    this->control.SetFieldType(field, 1);
    this->control.SetFieldTypeData(field, u"http://a.b");
    this->control.SetFieldData(field, u"path");
    EXPECT_EQ(this->control.FieldType(field), 1);
    EXPECT_EQ(this->control.FieldTypeData(field), u"http://a.b");
    EXPECT_EQ(this->control.FieldData(field), u"path");
}

TYPED_TEST_P(TextEditingContract, AFieldWithoutTextGoesWhenTheCursorMoves) {
    this->control.SetAll(u"ab");
    this->control.FieldInsert(u"");
    this->control.SetSelStart(1);
    EXPECT_EQ(this->control.FieldAtInputPos(), 0);
    EXPECT_EQ(this->control.FieldNext(0), 0);
}

TYPED_TEST_P(TextEditingContract, FieldsFollowEachOtherInTheText) {
    this->control.SetAll(u"xy");
    this->control.SetSelStart(2);
    this->control.FieldInsert(u"second");
    this->control.SetSelStart(0);
    this->control.FieldInsert(u"first");
    const int first = this->control.FieldNext(0);
    const int second = this->control.FieldNext(first);
    this->control.SetFieldCurrent(first);
    EXPECT_EQ(this->control.FieldText(), u"first");
    this->control.SetFieldCurrent(second);
    EXPECT_EQ(this->control.FieldText(), u"second");
    EXPECT_EQ(this->control.FieldNext(second), 0);
    EXPECT_EQ(this->control.FieldNext(99), 0);
}

TYPED_TEST_P(TextEditingContract, TheCursorIsInAFieldFromItsStartToItsEnd) {
    this->control.FieldInsert(u"ab");
    this->control.FieldInsert(u"cd");
    this->control.SetSelText(u"e");
    const int first = this->control.FieldNext(0);
    const int second = this->control.FieldNext(first);
    const int expected[] = {first, first, second, second, second, 0};
    for (int at = 0; at <= 5; ++at) {
        this->control.SetSelStart(at);
        EXPECT_EQ(this->control.FieldAtInputPos(), expected[at]) << at;
    }
}

TYPED_TEST_P(TextEditingContract, TextBelongsToAFieldOnlyWithinIt) {
    const auto written = [this](int start, int length) {
        this->control.SetAll(u"");
        this->control.FieldInsert(u"abcd");
        this->control.SetSelStart(4);
        this->control.SetSelText(u"efg");
        this->Select(start, length);
        this->control.SetSelText(u"X");
        this->control.SetFieldCurrent(this->control.FieldNext(0));
        return ToUtf8(this->control.FieldText());
    };
    EXPECT_EQ(written(0, 0), "abcd");
    EXPECT_EQ(written(2, 0), "abXcd");
    EXPECT_EQ(written(4, 0), "abcd");
    EXPECT_EQ(written(1, 2), "aXd");
    EXPECT_EQ(written(2, 4), "ab");
    EXPECT_EQ(written(0, 4), "");
}

TYPED_TEST_P(TextEditingContract, AFieldComesBackWhenItsDeletionIsUndone) {
    this->control.FieldInsert(u"ab");
    const int field = this->control.FieldNext(0);
    this->control.SetFieldData(field, u"note");
    this->Select(0, -1);
    this->control.DeleteSelection();
    EXPECT_EQ(this->control.FieldNext(0), 0);
    this->control.Undo();
    EXPECT_EQ(this->control.FieldNext(0), field);
    EXPECT_EQ(this->control.FieldData(field), u"note");
}

TYPED_TEST_P(TextEditingContract, ACopyOfAFieldIsAnotherField) {
    this->control.FieldInsert(u"ab");
    const int field = this->control.FieldNext(0);
    this->control.SetFieldType(field, 1);
    this->control.SetFieldTypeData(field, u"x");
    this->Select(0, -1);
    const std::string rtf = this->control.SelTextRtf();
    this->control.SetSelStart(2);
    this->control.SetSelTextRtf(rtf);
    const int copy = this->control.FieldNext(field);
    EXPECT_NE(copy, 0);
    EXPECT_NE(copy, field);
    EXPECT_EQ(this->control.FieldTypeData(copy), u"x");
    this->control.SetFieldTypeData(copy, u"y");
    EXPECT_EQ(this->control.FieldTypeData(field), u"x");
}

TYPED_TEST_P(TextEditingContract, AFieldMayHaveSeveralLines) {
    this->control.SetAll(u"<>");
    this->control.SetSelStart(1);
    this->control.FieldInsert(u"a\r\nb");
    this->control.SetFieldCurrent(this->control.FieldNext(0));
    EXPECT_EQ(this->control.FieldText(), u"a\r\nb");
    this->control.SetFieldText(u"c");
    EXPECT_EQ(this->All(), "<c>");
    EXPECT_EQ(this->control.FieldText(), u"c");
}

TYPED_TEST_P(TextEditingContract, AStepCanJoinTheOneBeforeIt) {
    TextStore& store = this->control.Store();
    store.JoinNext();
    this->control.SetSelText(u"a");
    this->control.SetSelText(u"b");
    store.JoinNext();
    this->control.SetSelText(u"c");
    this->control.SetSelText(u"d");
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->All(), "abc");
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->All(), "a");
    EXPECT_TRUE(this->control.Redo());
    EXPECT_EQ(this->All(), "abc");
    // What was undone or done again isn't gone on with.
    this->control.SetSelStart(3);
    this->control.SetSelText(u"e");
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->All(), "abc");
}

TYPED_TEST_P(TextEditingContract, UndoingLeavesTheCursorAtTheChange) {
    this->control.SetAll(u"one\r\ntwo\r\nthree");
    this->Select(3, 2);
    this->control.SetSelText(u"");
    this->control.SetSelStart(0);
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->control.SelStart(), 5);
    EXPECT_TRUE(this->control.Redo());
    EXPECT_EQ(this->control.SelStart(), 3);
    // A change of the look alone has no place.
    this->Select(0, 3);
    this->control.SetFontBold(1);
    this->control.SetSelStart(8);
    EXPECT_TRUE(this->control.Undo());
    EXPECT_EQ(this->control.SelStart(), 8);
}

TYPED_TEST_P(TextEditingContract, ACellTellsItsFormat) {
    EXPECT_EQ(this->control.CellAtInputPos(), CellPlace{});
    const int table = this->control.InsertTable(2, 2);
    this->control.SetCellAttribute(table, 2, 1, TextEditing::kCellWidth, 700);
    EXPECT_EQ(this->control.FormatOfCell(table, 2, 1)->width, 700);
    EXPECT_EQ(this->control.FormatOfCell(table, 1, 1)->width, CellFormat{}.width);
    EXPECT_FALSE(this->control.FormatOfCell(table, 3, 1));
    EXPECT_FALSE(this->control.FormatOfCell(table, 1, 3));
    EXPECT_FALSE(this->control.FormatOfCell(table - 1, 1, 1));
    this->control.SetSelStart(this->control.CellStart(table, 2, 1) - 1);
    EXPECT_EQ(this->control.CellAtInputPos(), (CellPlace{static_cast<Index>(-table), 2, 1}));
}

TYPED_TEST_P(TextEditingContract, ParagraphsBecomeALevelOfAList) {
    this->control.SetAll(u"a\r\nb\r\nc");
    this->Select(0, 4);
    this->control.SetListMark({.kind = ListKind::Decimal, .level = 1});
    const ParaFormat format = this->control.ParagraphFormat();
    EXPECT_EQ(format.list.kind, ListKind::Decimal);
    EXPECT_EQ(format.left, 720);
    EXPECT_EQ(format.first, -360);
    this->control.SetSelStart(3);
    EXPECT_EQ(this->control.ParagraphFormat(), format);
    this->control.SetSelStart(6);
    EXPECT_EQ(this->control.ParagraphFormat(), ParaFormat{});
    this->control.SetListMark({.kind = ListKind::Bullet});
    EXPECT_NE(this->control.ParagraphFormat().list.list, format.list.list);
    this->control.SetListMark({});
    EXPECT_EQ(this->control.ParagraphFormat(), ParaFormat{});
}

TYPED_TEST_P(TextEditingContract, AListIsFoundBeforeTheCursor) {
    this->control.SetAll(u"a\r\nb\r\n\r\nc");
    EXPECT_EQ(this->control.ListBefore(), ListMark{});
    this->control.SetListMark({.kind = ListKind::Bullet});
    EXPECT_EQ(this->control.ListBefore(), ListMark{});
    const ListMark mark = this->control.ParagraphFormat().list;
    this->control.SetSelStart(8);
    EXPECT_EQ(this->control.ListBefore(), mark);
}

REGISTER_TYPED_TEST_SUITE_P(
    TextEditingContract, ANewTextIsEmpty, WhatIsWrittenIsReadWithCrLf, ASelectionStaysWithinTheText,
    WritingReplacesTheSelectionAndLeavesTheCursorBehind, AnEdgeWithinALineEndMovesOutward,
    ManySmallChangesKeepTheText, AChangeIsReported, AnotherSelectionIsReported, EveryCallIsUndoneByItself,
    AStepIsUndoneAsOne, FormatsApplyToTheSelection, AMixedSelectionTellsTheFirstCharacter,
    ASelectionTellsWhetherItsCharactersDiffer, AFormatAtTheCursorIsForWhatIsWrittenNext,
    AFormatAtTheCursorGoesWhenTheCursorMoves, WrittenTextLooksLikeTheOneBeforeIt,
    FormatsOfParagraphsApplyToAllThatAreTouched, LinesAreApartByAPercentageOrExactly,
    FourteenTabsAreSetAndCleared, FramesKeepTheirBits, ThePageHasItsSizes,
    FormattedTextGoesFromOneSelectionToAnother, AnEmptySelectionHasNoFormattedText, AWholeDocumentComesBack,
    ATableIsFilledByItsCells, ATableIsRefusedWithinATable, ATableWithoutRowsOrColumnsIsTakenAndIsNothing,
    CellsHaveAttributes, ATableIsSelectedFromItsFirstCell, AFieldGetsItsTextLater,
    AFieldWithoutTextGoesWhenTheCursorMoves, FieldsFollowEachOtherInTheText,
    TheCursorIsInAFieldFromItsStartToItsEnd, TextBelongsToAFieldOnlyWithinIt,
    AFieldComesBackWhenItsDeletionIsUndone, ACopyOfAFieldIsAnotherField, AFieldMayHaveSeveralLines,
    AStepCanJoinTheOneBeforeIt, UndoingLeavesTheCursorAtTheChange, ACellTellsItsFormat,
    ParagraphsBecomeALevelOfAList, AListIsFoundBeforeTheCursor);

} // namespace korvane::doc
