#pragma once

#include <QProxyStyle>

namespace korvane {

/// Sets a header's captions as far from the edge as the texts of the cells below it.
class HeaderStyle : public QProxyStyle {
    Q_OBJECT

public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int kMargin = 5;
        return metric == PM_HeaderMargin ? kMargin : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace korvane
