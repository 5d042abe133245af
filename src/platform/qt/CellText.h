#pragma once

#include "common/Text.h"

#include <QFont>
#include <QRect>

class QPainter;

namespace korvane {

/// Draws a cell's text from the top left corner of `area` on: its own lines, wrapped where there is room for
/// more than one, and cut with an ellipsis where there is more than fits. A cell of any length takes no more
/// time than what is seen of it.
void DrawCellText(QPainter& painter, const QRect& area, const QFont& font, TextView text);

} // namespace korvane
