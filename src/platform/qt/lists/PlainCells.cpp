#include "platform/qt/lists/PlainCells.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QWidget>
#include <cmath>

namespace korvane {

namespace {

using Item = QStyleOptionViewItem;

bool IsPlain(const Item& item) {
    return item.widget != nullptr && !item.features.testFlag(Item::HasCheckIndicator) &&
           item.decorationPosition == Item::Left && item.direction == Qt::LeftToRight;
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

/// The left end of the base line of a text with this width.
QPointF TextPlace(const Item& item, const QRect& area, int width) {
    const QFontMetricsF metrics(item.font);
    const qreal high = std::ceil(metrics.ascent() + metrics.descent());
    const QRect place = QStyle::alignedRect(item.direction, item.displayAlignment, QSize(width, 0), area);
    return {static_cast<qreal>(place.left()), area.top() + (area.height() - high) / 2 + metrics.ascent()};
}

/// The ring around the cell that has the keyboard.
void PaintRing(QPainter& painter, const Item& item, const QStyle& style) {
    QStyleOptionFocusRect ring;
    ring.QStyleOption::operator=(item);
    ring.rect = style.subElementRect(QStyle::SE_ItemViewItemFocusRect, &item, item.widget);
    ring.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    ring.backgroundColor = item.palette.color(selected ? QPalette::Highlight : QPalette::Window);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, item.widget);
}

} // namespace

std::optional<int> PlainCells::TextWidth(const QString& text, const QFont& font) {
    const auto width = glyphs_.WidthOf(text, font);
    return width ? std::optional(static_cast<int>(std::ceil(*width))) : std::nullopt;
}

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
    const auto width = TextWidth(item.text, item.font);
    if (!width || *width > rest.width()) return false;

    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, &painter, item.widget);
    if (hasIcon) PaintIcon(painter, item, iconArea);
    painter.setPen(TextColour(item));
    glyphs_.Draw(painter, TextPlace(item, rest, *width), item.text);
    if (item.state.testFlag(QStyle::State_HasFocus)) PaintRing(painter, item, style);
    return true;
}

} // namespace korvane
