#include "platform/qt/CalmStyle.h"

namespace korvane {

namespace {

constexpr int kHeaderMargin = 5;

} // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_HeaderMargin ? kHeaderMargin : QProxyStyle::pixelMetric(metric, option, widget);
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace korvane
