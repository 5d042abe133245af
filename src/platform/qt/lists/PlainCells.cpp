#include "platform/qt/lists/PlainCells.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QWidget>

namespace korvane {

namespace {

using Item = QStyleOptionViewItem;

bool IsPlain(const Item& item) {
    return item.widget != nullptr && !item.features.testFlag(Item::HasCheckIndicator) &&
           !item.state.testFlag(QStyle::State_HasFocus) && item.decorationPosition == Item::Left &&
           item.direction == Qt::LeftToRight;
}

void PaintIcon(QPainter& painter, const Item& item, const QRect& area) {
    const QRect place =
        QStyle::alignedRect(item.direction, item.decorationAlignment, item.decorationSize, area);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const bool enabled = item.state.testFlag(QStyle::State_Enabled);
    const QIcon::Mode mode = !enabled ? QIcon::Disabled : selected ? QIcon::Selected : QIcon::Normal;
    item.icon.paint(&painter, place, item.decorationAlignment, mode,
                    item.state.testFlag(QStyle::State_Open) ? QIcon::On : QIcon::Off);
}

QColor TextColour(const Item& item) {
    const bool active = item.state.testFlag(QStyle::State_Active);
    const bool enabled = item.state.testFlag(QStyle::State_Enabled);
    const auto group = !enabled ? QPalette::Disabled : active ? QPalette::Normal : QPalette::Inactive;
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    return item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

bool PlainCells::Paint(QPainter& painter, const QStyleOptionViewItem& item) {
    if (!IsPlain(item)) return false;
    const QStyle& style = *item.widget->style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    const bool hasIcon = item.features.testFlag(Item::HasDecoration);
    QRect rest = item.rect;
    if (hasIcon) rest.setLeft(rest.left() + item.decorationSize.width() + 2 * margin);
    const QRect iconArea(item.rect.left(), item.rect.top(), rest.left() - item.rect.left(),
                         item.rect.height());
    rest.adjust(margin, 0, -margin, 0);
    const auto width = widths_.AtMost(item.text, item.font);
    if (!width || *width > rest.width()) return false;

    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, &painter, item.widget);
    if (hasIcon) PaintIcon(painter, item, iconArea);
    painter.setPen(TextColour(item));
    painter.setFont(item.font);
    painter.drawText(rest, static_cast<int>(item.displayAlignment) | Qt::TextSingleLine, item.text);
    return true;
}

} // namespace korvane
