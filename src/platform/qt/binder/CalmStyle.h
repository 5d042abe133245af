#pragma once

#include <QProxyStyle>

namespace korvane {

/// Fusion, a little quieter: buttons of dialogs without pictures, captions of columns as far from the edge as
/// the texts of the cells below them, lists with some air between their lines, message boxes with icons of
/// the program's own, and edges and arrows that can be seen on a dark window.
class CalmStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalmStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

} // namespace korvane
