#include "platform/qt/text/LineGlyphs.h"

#include "platform/qt/text/BlockSearch.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

/// How far apart two places may be that are the same one, in pixels.
constexpr double kSame = 0.5;
/// Letters that are raised or lowered are in their line at this part of their height too.
constexpr double kWithinLine = 1.0 / 3;

/// The number of the line of the block at this height of it.
int LineNumberAt(const QTextLayout& layout, double y) {
    int first = 0;
    int end = layout.lineCount();
    while (end - first > 1) {
        const int middle = (first + end) / 2;
        (layout.lineAt(middle).y() <= y ? first : end) = middle;
    }
    return first;
}

/// What Qt needs to find places in the text.
void PrepareBreaks(const QTextLayout& layout) {
    layout.isValidCursorPosition(0);
}

/// From the line above the area on, which Qt draws too.
void PrepareLines(const QTextLayout& layout, double top, double bottom) {
    for (int number = std::max(LineNumberAt(layout, top) - 1, 0); number < layout.lineCount(); ++number) {
        const QTextLine line = layout.lineAt(number);
        if (line.y() > bottom) return;
        // This needs the widths of all that is in the line.
        line.cursorToX(line.textStart());
    }
}

/// Where the piece begins in the text of the block, or -1 if it isn't in the line at this place of it.
int StartOf(const QTextBlock& block, const QTextLine& line, double x, const QTextItem& piece) {
    const bool fromRight = (piece.renderFlags() & QTextItem::RightToLeft) != 0;
    const double startX = fromRight ? x + piece.width() : x;
    const int start = line.xToCursor(startX);
    const int end = start + static_cast<int>(piece.text().size());
    const bool there = block.text().mid(start, end - start) == piece.text() &&
                       end <= line.textStart() + line.textLength() &&
                       std::abs(line.cursorToX(start) - startX) < kSame &&
                       std::abs(std::abs(line.cursorToX(end) - startX) - piece.width()) < kSame;
    return there ? start : -1;
}

} // namespace

void PrepareGlyphs(const QTextDocument& document, const QRectF& area) {
    // A point between two paragraphs may belong to either of them.
    const QTextBlock first = BlockAtHeight(document, area.top());
    bool within = true;
    for (QTextBlock block = first.previous().isValid() ? first.previous() : first; block.isValid() && within;
         block = block.next()) {
        within = TopOf(block) <= area.bottom();
        const double top = document.documentLayout()->blockBoundingRect(block).top();
        PrepareBreaks(*block.layout());
        PrepareLines(*block.layout(), area.top() - top, area.bottom() - top);
    }
}

QList<QGlyphRun> GlyphsOf(const QTextDocument& document, const QPointF& place, const QTextItem& piece) {
    const QAbstractTextDocumentLayout& layout = *document.documentLayout();
    const QPointF within = place - QPointF(-kSame, piece.ascent() * kWithinLine);
    const QTextBlock block = document.findBlock(layout.hitTest(within, Qt::FuzzyHit));
    if (!block.isValid() || block.layout()->lineCount() == 0) return {};
    const QPointF origin = layout.blockBoundingRect(block).topLeft();
    const QTextLine line = block.layout()->lineAt(LineNumberAt(*block.layout(), within.y() - origin.y()));
    const int start = StartOf(block, line, place.x() - origin.x(), piece);
    if (start < 0) return {};
    QList<QGlyphRun> runs = line.glyphRuns(start, static_cast<int>(piece.text().size()));
    const QPointF shift(origin.x(), place.y() - line.y() - line.ascent());
    for (QGlyphRun& run : runs) {
        QList<QPointF> places = run.positions();
        for (QPointF& letter : places)
            letter += shift;
        run.setPositions(places);
    }
    return runs;
}

} // namespace korvane
