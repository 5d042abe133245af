#include "platform/qt/text/TextMirror.h"

#include "MirrorCheck.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QTextBlock>
#include <algorithm>
#include <random>

namespace korvane {
namespace {

using test::FaultOf;

doc::Document Plain(TextView text) {
    return doc::FromPlainText(text);
}

TEST(TextMirror, ParagraphsAreBlocks) {
    doc::MemoryTextStore store;
    store.Reset(Plain(u"one\r\ntwo\vlines\r\n"));
    TextMirror mirror(store);
    EXPECT_EQ(mirror.Shown().blockCount(), 3);
    EXPECT_EQ(mirror.Shown().toRawText(), QStringLiteral(u"one\u2029two\u2028lines\u2029"));
    EXPECT_EQ(FaultOf(mirror), "");
}

TEST(TextMirror, CharactersOfQtKeepTheirPlaces) {
    doc::MemoryTextStore store;
    doc::Document document;
    document.paragraphs[0].text = Text(u"a\u2029\xFDD0\xFDD1\n\r") + char16_t{0} + u"\xFFFCz";
    document.paragraphs[0].runs = {{9}};
    store.Reset(document);
    TextMirror mirror(store);
    EXPECT_EQ(mirror.Shown().blockCount(), 1);
    EXPECT_EQ(mirror.Shown().characterCount(), 10);
}

TEST(TextMirror, CharactersOfAMissingFontOfPicturesShowTheirMeaning) {
    if (QFontDatabase::hasFamily("Wingdings")) GTEST_SKIP() << "this system has the font";
    doc::MemoryTextStore store;
    doc::Document document = Plain(u"J\u00E0a");
    document.fonts[0] = u"Wingdings";
    store.Reset(document);
    TextMirror mirror(store);
    EXPECT_EQ(mirror.Shown().toRawText(), QStringLiteral(u"\u263A\u2192a"));
    EXPECT_EQ(store.All(), u"J\u00E0a");
    document.fonts[0] = u"Arial";
    store.Reset(document);
    EXPECT_EQ(mirror.Shown().toRawText(), QStringLiteral(u"J\u00E0a"));
}

TEST(TextMirror, AParagraphFollowsTheDirectionOfItsText) {
    doc::MemoryTextStore store;
    store.Reset(Plain(u"12 \u0645a\r\na\u0645\r\n12"));
    TextMirror mirror(store);
    const auto direction = [&mirror](std::size_t paragraph) {
        mirror.Shown();
        return mirror.BlockOf(paragraph).blockFormat().layoutDirection();
    };
    EXPECT_EQ(direction(0), Qt::RightToLeft);
    EXPECT_EQ(direction(1), Qt::LeftToRight);
    EXPECT_EQ(direction(2), Qt::LeftToRight);
    store.Replace(0, 4, Plain(u"1"));
    EXPECT_EQ(direction(0), Qt::LeftToRight);
    store.Undo();
    EXPECT_EQ(direction(0), Qt::RightToLeft);
    EXPECT_EQ(FaultOf(mirror), "");
}

TEST(TextMirror, AChangeIsShownWhenTheDocumentIsNeeded) {
    doc::MemoryTextStore store;
    store.Reset(Plain(u"a\r\nb\r\nc"));
    TextMirror mirror(store);
    int stale = 0;
    mirror.Stale = [&stale] { ++stale; };
    const QTextDocument* const before = &mirror.Shown();
    store.Replace(3, 4, Plain(u"x\r\ny"));
    store.Replace(0, 0, Plain(u"z"));
    EXPECT_EQ(stale, 1);
    EXPECT_EQ(mirror.Shown().toRawText(), QStringLiteral(u"za\u2029x\u2029y\u2029c"));
    EXPECT_EQ(&mirror.Shown(), before);
    store.Undo();
    EXPECT_EQ(stale, 2);
    EXPECT_EQ(mirror.Shown().toRawText(), QStringLiteral(u"a\u2029x\u2029y\u2029c"));
    EXPECT_EQ(FaultOf(mirror), "");
}

TEST(TextMirror, TypingInACellKeepsTheDocument) {
    doc::MemoryTextStore store;
    store.Reset(Plain(u"before\r\nafter"));
    const auto table = store.InsertTable(8, 3, 2);
    TextMirror mirror(store);
    const QTextDocument* const before = &mirror.Shown();
    const auto cell = store.CellRange({*table, 1, 1});
    store.Replace(cell->first, cell->second, Plain(u"one\r\ntwo"));
    EXPECT_EQ(&mirror.Shown(), before);
    EXPECT_EQ(FaultOf(mirror), "");
    store.Undo();
    EXPECT_EQ(FaultOf(mirror), "");
    EXPECT_EQ(&mirror.Shown(), before);
}

TEST(TextMirror, ALargeTableIsCutWhereNobodySeesIt) {
    doc::MemoryTextStore store;
    const auto table = store.InsertTable(0, 120, 24);
    TextMirror mirror(store);
    const auto tables = [&mirror] {
        int parts = 0;
        for (QTextFrame* frame : mirror.Shown().rootFrame()->childFrames())
            parts += qobject_cast<QTextTable*>(frame) != nullptr ? 1 : 0;
        return parts;
    };
    EXPECT_EQ(tables(), 24);
    EXPECT_EQ(FaultOf(mirror), "");
    const auto cell = store.CellRange({*table, 100, 23});
    store.Replace(cell->first, cell->second, Plain(u"1\r\n2"));
    EXPECT_EQ(FaultOf(mirror), "");
    store.FormatCells(*table, [](const doc::CellPlace& place, doc::CellFormat& format) {
        if (place.row == 5) format.width = 900;
    });
    EXPECT_EQ(tables(), 25);
    EXPECT_EQ(FaultOf(mirror), "");
}

TEST(TextMirror, NothingIsLaidOutBeforeThePageHasASize) {
    doc::MemoryTextStore store;
    store.Reset(Plain(u"one\r\ntwo"));
    TextMirror mirror(store);
    QTextDocument& document = mirror.Shown();
    EXPECT_EQ(document.size(), QSizeF(0, 0));
    EXPECT_EQ(document.firstBlock().layout()->lineCount(), 0);
    document.setPageSize(QSizeF(600, -1));
    EXPECT_EQ(document.firstBlock().layout()->lineCount(), 1);
}

TEST(TextMirror, ThePartsOfATableFollowEachOtherWithoutAGap) {
    doc::MemoryTextStore store;
    store.InsertTable(0, 120, 24);
    TextMirror mirror(store);
    QTextDocument& document = mirror.Shown();
    document.setPageSize(QSizeF(600, -1));
    const QList<QTextFrame*> parts = document.rootFrame()->childFrames();
    ASSERT_GT(parts.size(), 2);
    const auto rect = [&document](QTextFrame* part) {
        return document.documentLayout()->frameBoundingRect(part);
    };
    for (qsizetype part = 1; part < parts.size(); ++part) {
        const QTextBlock between = parts[part - 1]->lastCursorPosition().block().next();
        EXPECT_EQ(mirror.ParagraphOf(between), std::nullopt);
        EXPECT_EQ(document.documentLayout()->blockBoundingRect(between).top(),
                  rect(parts[part - 1]).bottom());
        EXPECT_EQ(rect(parts[part]).top(), rect(parts[part - 1]).bottom());
    }
}

TEST(TextMirror, TextInAColouredCellCanBeRead) {
    doc::MemoryTextStore store;
    store.InsertTable(0, 1, 2);
    store.Replace(0, 0, doc::FromPlainText(u"a"));
    store.Replace(3, 3, doc::FromPlainText(u"b"));
    store.FormatCells(1, [](const doc::CellPlace& place, doc::CellFormat& cell) {
        if (place.column == 0) cell.back = Colour{0x800000};
    });
    TextMirror mirror(store);
    mirror.Shown();
    EXPECT_EQ(mirror.BlockOf(0).begin().fragment().charFormat().foreground().color(), Qt::white);
    EXPECT_FALSE(mirror.BlockOf(1).begin().fragment().charFormat().hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_EQ(FaultOf(mirror), "");
}

TEST(TextMirror, TablesThatTouchAreApart) {
    doc::MemoryTextStore store;
    store.InsertTable(0, 1, 1);
    store.InsertTable(2, 2, 1);
    TextMirror mirror(store);
    EXPECT_EQ(mirror.Text().tables.size(), 2u);
    EXPECT_EQ(FaultOf(mirror), "");
}

/// Calls of a store at random, as a program and a user might make them.
class RandomCalls {
public:
    explicit RandomCalls(unsigned seed) : random_(seed) { store_.Reset(doc::RandomDocument(seed)); }

    doc::MemoryTextStore& Store() { return store_; }

    void Call() {
        const auto [from, to] = AnyStretch();
        switch (random_() % 12) {
        case 0:
        case 1:
        case 2:
            store_.Replace(from, from + random_() % 3, Plain(kTexts[random_() % std::size(kTexts)]));
            break;
        case 3:
            store_.Replace(from, to, Plain(kTexts[random_() % std::size(kTexts)]));
            break;
        case 4:
            store_.Replace(from, random_() % 2 == 0 ? from : to, AnyDocument());
            break;
        case 5:
            store_.Format(from, to, AnyDelta());
            break;
        case 6:
            store_.FormatParas(from, to, [this](doc::ParaFormat& format) { Change(format); });
            break;
        case 7:
            store_.InsertTable(from, random_() % 4, random_() % 4);
            break;
        case 8:
            ChangeCells();
            break;
        case 9:
        case 10:
            store_.Undo();
            break;
        default:
            store_.Redo();
        }
        // A text that grew is taken up again, so that a call doesn't take longer and longer.
        if (store_.All().size() > 5000) store_.Reset(AnyDocument());
    }

private:
    doc::Document AnyDocument() { return doc::RandomDocument(static_cast<unsigned>(random_() % 500)); }

    static constexpr TextView kTexts[] = {u"", u"x", u"words", u"\r\n", u"a\r\nb", u"1\v2\t3\r\n\r\n"};

    std::pair<doc::Pos, doc::Pos> AnyStretch() {
        const doc::Pos a = random_() % (store_.All().size() + 1);
        const doc::Pos b = std::min<doc::Pos>(a + random_() % 200, store_.All().size());
        return {a, b};
    }

    doc::CharDelta AnyDelta() {
        doc::CharDelta delta;
        if (random_() % 2 == 0) delta.bold = random_() % 2 == 0;
        if (random_() % 3 == 0) delta.font = u"Courier New";
        if (random_() % 3 == 0) delta.baseLine = 60;
        if (random_() % 3 == 0) delta.back = Colour{static_cast<int>(random_() % 0xFFFFFF)};
        if (random_() % 4 == 0) delta.field = static_cast<doc::Index>(random_() % 3);
        return delta;
    }

    void Change(doc::ParaFormat& format) {
        format.left = static_cast<int>(random_() % 1000);
        format.first = static_cast<int>(random_() % 1000) - 500;
        format.alignment = static_cast<doc::Alignment>(random_() % 4);
        format.tabs = {{static_cast<int>(random_() % 5000), doc::TabType::Decimal}};
    }

    void ChangeCells() {
        const auto& tables = store_.Whole().tables;
        if (tables.empty()) return;
        const doc::Index table =
            std::next(tables.begin(), static_cast<long>(random_() % tables.size()))->first;
        store_.FormatCells(table, [this](const doc::CellPlace&, doc::CellFormat& format) {
            if (random_() % 3 == 0) format.width = 500 + 300 * static_cast<int>(random_() % 3);
            if (random_() % 3 == 0) format.gapLeft = 75;
            if (random_() % 5 == 0) format.left = 100;
        });
    }

    std::mt19937 random_;
    doc::MemoryTextStore store_;
};

/// Makes calls, shows the text after some of them, and tells what is wrong with it.
std::string FaultAfter(unsigned seed, int calls) {
    RandomCalls random(seed);
    TextMirror mirror(random.Store());
    for (int call = 0; call < calls; ++call) {
        random.Call();
        if ((call * 7 + static_cast<int>(seed)) % 3 == 0) continue;
        if (const std::string fault = FaultOf(mirror); !fault.empty())
            return "seed " + std::to_string(seed) + ", call " + std::to_string(call) + ": " + fault;
    }
    return {};
}

/// The environment can ask for more rounds than the usual ones.
TEST(TextMirror, RandomCallsAreShownAsTheyAre) {
    const int rounds = std::max(12, qEnvironmentVariableIntValue("KORVANE_MIRROR_ROUNDS"));
    for (int round = 1; round <= rounds; ++round)
        ASSERT_EQ(FaultAfter(static_cast<unsigned>(round), 20), "");
}

} // namespace
} // namespace korvane
