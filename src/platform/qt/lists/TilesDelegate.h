#pragma once

#include <QStyledItemDelegate>

namespace korvane {

/// Draws the tiles. There are many, and nearly all have nothing but a short text, which takes a fraction of
/// the style's time when it is drawn plainly.
class TilesDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace korvane
