#include "platform/qt/text/BlockSearch.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <algorithm>

namespace korvane {

namespace {

QRectF RectOf(const QTextBlock& block) {
    return block.document()->documentLayout()->blockBoundingRect(block);
}

QTextBlock FirstOfRow(const QTextBlock& block) {
    const QTextTable* const table = TableOf(block);
    if (table == nullptr) return block;
    return table->cellAt(table->cellAt(block.position()).row(), 0).firstCursorPosition().block();
}

} // namespace

const QTextTable* TableOf(const QTextBlock& block) {
    return qobject_cast<const QTextTable*>(block.document()->frameAt(block.position()));
}

double TopOf(const QTextBlock& block) {
    const QTextBlock first = FirstOfRow(block);
    return RectOf(first).top() - first.blockFormat().topMargin();
}

QTextBlock BlockAtHeight(const QTextDocument& document, double height) {
    const int count = document.blockCount();
    const auto above = [&](int number) {
        return RectOf(FirstOfRow(document.findBlockByNumber(number))).top() <= height;
    };
    int end = 1;
    while (end < count && above(end))
        end *= 2;
    int first = end / 2;
    end = std::min(end, count);
    while (end - first > 1) {
        const int middle = (first + end) / 2;
        (above(middle) ? first : end) = middle;
    }
    return FirstOfRow(document.findBlockByNumber(first));
}

int PositionAtPoint(const QTextDocument& document, const QPointF& point) {
    const QTextBlock block = BlockAtHeight(document, point.y());
    const QRectF rect = RectOf(block);
    if (point.y() < rect.top() && block == document.firstBlock()) return 0;
    QPointF within = point;
    // Where no paragraph is, Qt would go through all of them, with wrong places of those that aren't laid
    // out.
    if (TableOf(block) == nullptr && block.next().isValid())
        within.setY(std::clamp(point.y(), rect.top(), std::max(rect.bottom() - 1, rect.top())));
    return std::max(document.documentLayout()->hitTest(within, Qt::FuzzyHit), 0);
}

} // namespace korvane
