#pragma once

#include <QProxyStyle>

namespace korvane {

/// Fusion, a little quieter: buttons of dialogs without pictures, captions of columns as far from the edge as
/// the texts of the cells below them.
class CalmStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalmStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

} // namespace korvane
