#pragma once

#include <QProxyStyle>

namespace korvane {

/// The Fusion style with small changes: what has the keyboard has a ring that can be seen, and a chosen line
/// can be read; the buttons of dialogs have no pictures, column captions begin as far from the edge as the
/// texts of the cells below them, the lines of lists have some space between them, message boxes show the
/// program's own icons, and edges and arrows can be seen on a dark window.
class CalmStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalmStyle();

    void polish(QPalette& palette) override;
    using QProxyStyle::polish;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
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
