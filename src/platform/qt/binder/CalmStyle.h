#pragma once

#include <QProxyStyle>
#include <memory>

namespace korvane {

/// The Fusion style with small changes: what has the keyboard has a ring that can be seen, and a chosen line
/// can be read; the buttons of dialogs have no pictures, column captions begin as far from the edge as the
/// texts of the cells below them, the lines of lists have some space between them, message boxes show the
/// program's own icons, and edges and arrows can be seen on a dark window. Where the system has controls of
/// its own look, buttons, boxes to tick or to choose from, and bars of progress are drawn so on a light
/// window.
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

private:
    /// What draws such a part of a control as the system does; nullptr when it isn't to look so.
    template <class Element>
    const QStyle* NativeFor(Element element, const QStyleOption& option) const;

    std::unique_ptr<QStyle> native_;
};

} // namespace korvane
