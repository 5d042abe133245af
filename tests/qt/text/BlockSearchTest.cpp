#include "platform/qt/text/BlockSearch.h"

#include "platform/qt/text/PageMath.h"
#include "platform/qt/text/TextMirror.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>

namespace korvane {
namespace {

constexpr double kWidth = 400;

/// A document at random as it is shown, laid out in one stretch or on pages.
struct Laid {
    explicit Laid(unsigned seed) {
        store.Reset(doc::RandomDocument(seed));
        mirror.emplace(store);
        document = &mirror->Shown();
        document->setPageSize(seed % 2 == 0 ? QSizeF(kWidth, -1) : PageMath(doc::Page{}).Step());
    }

    doc::MemoryTextStore store;
    std::optional<TextMirror> mirror;
    QTextDocument* document = nullptr;
};

double TextTop(const QTextDocument& document, const QTextBlock& block) {
    return document.documentLayout()->blockBoundingRect(block).top();
}

QTextBlock FirstOfItsRow(const QTextBlock& block) {
    const QTextTable* const table = TableOf(block);
    if (table == nullptr) return block;
    return table->cellAt(table->cellAt(block.position()).row(), 0).firstCursorPosition().block();
}

double TopOfTheLastAbove(const QTextDocument& document, double height) {
    double found = TextTop(document, document.firstBlock());
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const double top = TextTop(document, FirstOfItsRow(block));
        if (top <= height) found = std::max(found, top);
    }
    return found;
}

TEST(BlockSearch, FindsTheBlockAtAHeight) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const Laid laid(seed);
        const double end = laid.document->size().height();
        for (double height = 0; height < end + 50; height += 37) {
            // Blocks without a height begin where the next one does, so only the places are compared.
            const QTextBlock found = BlockAtHeight(*laid.document, height);
            ASSERT_EQ(TextTop(*laid.document, found), TopOfTheLastAbove(*laid.document, height))
                << "seed " << seed << ", height " << height;
        }
    }
}

TEST(BlockSearch, APointBetweenParagraphsBelongsToTheUpperOne) {
    doc::MemoryTextStore store;
    store.Reset(doc::FromPlainText(u"one\r\ntwo\r\nthree"));
    store.FormatParas(0, 15, [](doc::ParaFormat& format) { format.after = 600; });
    TextMirror mirror(store);
    QTextDocument& document = mirror.Shown();
    document.setPageSize({kWidth, -1});
    const QRectF two = document.documentLayout()->blockBoundingRect(document.findBlockByNumber(1));
    EXPECT_EQ(PositionAtPoint(document, {two.right(), two.bottom() + 20}), 7);
    EXPECT_EQ(PositionAtPoint(document, {two.left(), two.bottom() + 20}), 4);
    EXPECT_EQ(PositionAtPoint(document, {two.right(), -5}), 0);
    EXPECT_EQ(PositionAtPoint(document, {two.right(), 5000}), 13);
}

} // namespace
} // namespace korvane
