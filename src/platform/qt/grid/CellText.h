#pragma once

#include "common/text/Text.h"

#include <QColor>
#include <QFont>
#include <QRect>

class QPainter;

namespace korvane {

/// What in a text stands out: every place that holds `part`, on this background; none for an empty part.
struct TextMarks {
    TextView part{};
    QColor back{};
};

/// Draws a cell's text from the top left corner of `area` on: its own lines, wrapped where there is room for
/// more than one, and cut with an ellipsis where there is more than fits. A cell of any length takes no more
/// time than what is seen of it. Where a marked place is cut off, the ellipsis is marked for it.
void DrawCellText(QPainter& painter, const QRect& area, const QFont& font, TextView text,
                  const TextMarks& marks = {});

} // namespace korvane
