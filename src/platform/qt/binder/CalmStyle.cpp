#include "platform/qt/binder/CalmStyle.h"

#include "platform/qt/base/Contrast.h"
#include "platform/qt/base/Icons.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/tabs/TabBar.h"

#include <QPainter>
#include <QStyleOption>

namespace korvane {

namespace {

constexpr int kHeaderMargin = 5;
constexpr int kAirInList = 4;

/// Whether the element is drawn as a hollow in its window. On a dark window it could not be seen without an
/// edge.
bool IsHollow(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           element == QStyle::PE_FrameLineEdit;
}

void DrawEdge(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.35));
    const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == QStyle::PE_IndicatorRadioButton) {
        painter.drawEllipse(edge);
    } else {
        painter.drawRoundedRect(edge, 2, 2);
    }
    painter.restore();
}

QString OwnIconName(QStyle::StandardPixmap picture) {
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("boxInformation");
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("boxQuestion");
    case QStyle::SP_MessageBoxWarning:
        return QStringLiteral("boxExclamation");
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("boxStop");
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        return QStringLiteral("moreTools");
    default:
        return {};
    }
}

} // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // Fusion draws an edge already around a field that has the keyboard.
    const bool edged = element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus);
    if (IsHollow(element) && !edged && IsDark(option->palette)) DrawEdge(element, *option, *painter);
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_HeaderMargin ? kHeaderMargin : QProxyStyle::pixelMetric(metric, option, widget);
}

/// `TabBar` places its buttons by itself. This is the same place, so that a layout doesn't move them twice.
QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_TabBarTabRightButton && qobject_cast<const TabBar*>(widget) != nullptr)
        return TabBar::CloseButtonOf(option->rect);
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_ItemViewItem ? whole + QSize(0, kAirInList) : whole;
}

QIcon CalmStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                              const QWidget* widget) const {
    const QIcon own = TintedIcon(OwnIconName(picture));
    return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace korvane
