#include "platform/qt/lists/TilesDelegate.h"

#include <QPainter>

namespace korvane {

void TilesDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    constexpr QStyle::State kSpecial =
        QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver;
    const bool plain = (option.state & kSpecial) == 0 && option.state.testFlag(QStyle::State_Enabled);
    if (!plain) return QStyledItemDelegate::paint(painter, option, index);
    const QString text = index.data().toString();
    if (text.isEmpty()) return;
    const QVariant font = index.data(Qt::FontRole);
    painter->setFont(font.isValid() ? font.value<QFont>() : option.font);
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Text));
    painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine, text);
}

} // namespace korvane
