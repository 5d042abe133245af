#include "platform/qt/binder/ScrollBarLook.h"

#include "platform/qt/look/Contrast.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace korvane {

namespace {

// How much of the text's colour is in the parts.
constexpr double kGroove = 0.06;
constexpr double kEdge = 0.2;
constexpr double kHandle = 0.5;
constexpr double kHandleUnderMouse = 0.62;
constexpr double kHandleHeld = 0.75;

/// What is left free on both sides of the handle.
constexpr int kAir = 3;
constexpr int kArrow = 8;

QColor Shade(const QStyleOptionSlider& bar, double share) {
    return Blend(bar.palette.color(QPalette::Window), bar.palette.color(QPalette::WindowText), share);
}

bool IsUsed(const QStyleOptionSlider& bar, QStyle::SubControl part, QStyle::StateFlag state) {
    return bar.activeSubControls.testFlag(part) && bar.state.testFlag(state);
}

double HandleShade(const QStyleOptionSlider& bar) {
    if (IsUsed(bar, QStyle::SC_ScrollBarSlider, QStyle::State_Sunken)) return kHandleHeld;
    return IsUsed(bar, QStyle::SC_ScrollBarSlider, QStyle::State_MouseOver) ? kHandleUnderMouse : kHandle;
}

void DrawArrow(QStyle::SubControl part, QStyle::PrimitiveElement arrow, const QStyleOptionSlider& bar,
               QPainter& painter, const QStyle& style, const QWidget* widget) {
    const QRect place = style.subControlRect(QStyle::CC_ScrollBar, &bar, part, widget);
    if (IsUsed(bar, part, QStyle::State_Sunken)) painter.fillRect(place, Shade(bar, kEdge));
    QStyleOption option = bar;
    option.rect = QStyle::alignedRect(bar.direction, Qt::AlignCenter, QSize(kArrow, kArrow), place);
    style.drawPrimitive(arrow, &option, &painter, widget);
}

} // namespace

void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QStyle& style,
                   const QWidget* widget) {
    const bool lies = bar.orientation == Qt::Horizontal;
    const bool reversed = lies && bar.direction == Qt::RightToLeft;
    const QRect& all = bar.rect;
    painter.fillRect(all, Shade(bar, kGroove));
    painter.fillRect(lies ? QRect(all.left(), all.top(), all.width(), 1)
                          : QRect(all.left(), all.top(), 1, all.height()),
                     Shade(bar, kEdge));
    const auto back = reversed ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowLeft;
    const auto on = reversed ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    DrawArrow(QStyle::SC_ScrollBarSubLine, lies ? back : QStyle::PE_IndicatorArrowUp, bar, painter, style,
              widget);
    DrawArrow(QStyle::SC_ScrollBarAddLine, lies ? on : QStyle::PE_IndicatorArrowDown, bar, painter, style,
              widget);
    // Where everything is in view there is nothing to move.
    if (bar.maximum <= bar.minimum) return;
    const QRect handle = style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSlider, widget);
    painter.fillRect(lies ? handle.adjusted(0, kAir, 0, -kAir) : handle.adjusted(kAir, 0, -kAir, 0),
                     Shade(bar, HandleShade(bar)));
}

} // namespace korvane
