#pragma once

#include "platform/qt/lists/AsciiGlyphs.h"

class QPainter;
class QStyleOptionViewItem;

namespace korvane {

/// Draws cells that have nothing but a picture and a short plain text, which takes a third of the time of the
/// general way.
class PlainCells {
public:
    /// False for any other cell, of which nothing is drawn.
    bool Paint(QPainter& painter, const QStyleOptionViewItem& item);
    /// The width of the text in such a cell, in pixels; nothing for another text.
    std::optional<int> TextWidth(const QString& text, const QFont& font);

private:
    AsciiGlyphs glyphs_;
};

} // namespace korvane
