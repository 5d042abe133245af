#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace korvane {

class TextMirror;

/// Draws what Qt doesn't draw of the paragraphs and tables that are exposed: the frames of paragraphs, the
/// marks of lists and the lines of tables. Their lines have this colour.
void PaintMarks(QPainter& painter, const TextMirror& mirror, const QRectF& exposed, const QColor& colour);

} // namespace korvane
