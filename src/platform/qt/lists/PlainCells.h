#pragma once

#include "platform/qt/lists/AsciiWidths.h"

class QPainter;
class QStyleOptionViewItem;

namespace korvane {

/// Draws cells that have nothing but a picture and a short plain text, which takes half the time of the
/// general way.
class PlainCells {
public:
    /// False for any other cell, of which nothing is drawn.
    bool Paint(QPainter& painter, const QStyleOptionViewItem& item);

private:
    AsciiWidths widths_;
};

} // namespace korvane
