#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPaintEngine>
#include <QRectF>
#include <QTextDocument>

namespace korvane {

/// Makes what Qt keeps of the lines within the area: glyphs, and where characters end. Qt makes it when it is
/// first needed, and what it has already of the paragraph moves then, also while it is drawn. So this comes
/// before a drawing that asks for glyphs.
void PrepareGlyphs(const QTextDocument& document, const QRectF& area);

/// The letters of a piece of a line, which the layout of the document draws at this place, with their places
/// in the document. None if the layout has no such piece there.
QList<QGlyphRun> GlyphsOf(const QTextDocument& document, const QPointF& place, const QTextItem& piece);

} // namespace korvane
