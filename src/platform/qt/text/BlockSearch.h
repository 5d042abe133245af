#pragma once

#include <QTextBlock>
#include <QTextTable>

namespace korvane {

// Qt lays a long text out little by little, and the rest at once when it is asked for anything below. What is
// here asks for no more than is needed.

/// The table in which the block is, or null.
const QTextTable* TableOf(const QTextBlock& block);

/// Where the room of the block begins, which is above its text by the upper margin. The blocks of a row of a
/// table all begin where the row does.
double TopOf(const QTextBlock& block);

/// The last block that begins at this height or above it, or the first block. For a row of a table it is the
/// first one of the row. The text is laid out at most twice as far as the block.
QTextBlock BlockAtHeight(const QTextDocument& document, double height);

/// The position in the text at a point or beside it. A point between two paragraphs belongs to the upper one.
int PositionAtPoint(const QTextDocument& document, const QPointF& point);

} // namespace korvane
