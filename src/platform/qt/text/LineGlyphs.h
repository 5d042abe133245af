#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPaintEngine>
#include <QTextDocument>

namespace korvane {

/// The letters of a piece of a line, which the layout of the document draws at this place, with their places
/// in the document. None if the layout has no such piece there.
QList<QGlyphRun> GlyphsOf(const QTextDocument& document, const QPointF& place, const QTextItem& piece);

} // namespace korvane
