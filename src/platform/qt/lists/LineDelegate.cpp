#include "platform/qt/lists/LineDelegate.h"

namespace korvane {

void LineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!cells_.Paint(*painter, item)) QStyledItemDelegate::paint(painter, option, index);
}

QSize LineDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
    // All lines of a tree have a picture of the same size and no look of their own.
    if (!frame_.isValid() || font_ != option.font) {
        font_ = option.font;
        frame_ = QStyledItemDelegate::sizeHint(option, index) - QSize(text, 0);
    }
    // Both widths are rounded, which must not cut the text.
    return frame_ + QSize(text + 1, 0);
}

} // namespace korvane
