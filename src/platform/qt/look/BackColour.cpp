#include "platform/qt/look/BackColour.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"

#include <QApplication>
#include <QWidget>

namespace korvane {

void WriteBackColour(QWidget& widget, Colour back, const Surface& surface) {
    if (surface.back == QPalette::Window) widget.setAutoFillBackground(back != kNoColour);
    if (back == kNoColour) return widget.setPalette(QPalette());
    QPalette palette = widget.palette();
    const QColor colour = ToQColor(back);
    palette.setColor(surface.back, colour);
    palette.setColor(surface.text, TextFor(colour, QApplication::palette()));
    widget.setPalette(palette);
}

void WriteColours(QWidget& widget, Colour back, Colour fore, const Surface& surface) {
    WriteBackColour(widget, back, surface);
    if (fore == kNoColour) return;
    QPalette palette = widget.palette();
    palette.setColor(surface.text, ToQColor(fore));
    widget.setPalette(palette);
}

} // namespace korvane
