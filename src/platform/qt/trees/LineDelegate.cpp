#include "platform/qt/trees/LineDelegate.h"

namespace korvane {

namespace {

/// More than a tree measures at a time.
constexpr qsizetype kMostWidths = 4000;

} // namespace

void LineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!cells_.Paint(*painter, item)) QStyledItemDelegate::paint(painter, option, index);
}

/// To lay a text out takes much longer than to look it up, and a window measures each some times while it
/// opens.
int LineDelegate::WidthOf(const QString& text, const QFont& font) const {
    if (const auto plain = cells_.TextWidth(text, font)) return *plain;
    if (const auto known = widths_.constFind(text); known != widths_.cend()) return *known;
    if (widths_.size() >= kMostWidths) widths_.clear();
    return *widths_.insert(text, QFontMetrics(font).horizontalAdvance(text));
}

QSize LineDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool isOtherFont = !frame_.isValid() || font_ != option.font;
    if (isOtherFont) widths_.clear();
    const int text = WidthOf(index.data().toString(), option.font);
    // All lines of a tree have a picture of the same size and no look of their own.
    if (isOtherFont) {
        font_ = option.font;
        frame_ = QStyledItemDelegate::sizeHint(option, index) - QSize(text, 0);
    }
    // Both widths are rounded, which must not cut the text.
    return frame_ + QSize(text + 1, 0);
}

} // namespace korvane
