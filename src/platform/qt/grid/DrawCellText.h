#pragma once

#include "common/text/Text.h"

#include <QColor>
#include <QFont>
#include <QRect>

class QPainter;

namespace korvane {

/// The marks in a text: every place that contains `part` gets these colours. An empty part marks nothing.
struct TextMarks {
    TextView part{};
    QColor back{};
    QColor text{};
    QColor edge{};
};

/// Draws a cell's text from the top left corner of `area`. The text is wrapped if there is room for several
/// lines, and is cut with an ellipsis if it doesn't fit. The time needed depends on what can be seen and not
/// on the length of the text. Where a marked place is cut off, the ellipsis is marked.
void DrawCellText(QPainter& painter, const QRect& area, const QFont& font, TextView text,
                  const TextMarks& marks = {});

} // namespace korvane
