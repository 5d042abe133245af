#include "platform/qt/lists/AsciiWidths.h"

namespace korvane {

std::optional<int> AsciiWidths::AtMost(const QString& text, const QFont& font) {
    if (font_ != font) {
        font_ = font;
        widths_ = {};
    }
    const QFontMetrics metrics(font);
    int width = 0;
    for (const QChar letter : text) {
        if (letter.unicode() < kFirst || letter.unicode() > kLast) return std::nullopt;
        int& own = widths_[std::size_t{letter.unicode()} - kFirst];
        // A letter can be a part of a pixel wider.
        if (own == 0) own = metrics.horizontalAdvance(letter) + 1;
        width += own;
    }
    return width;
}

} // namespace korvane
