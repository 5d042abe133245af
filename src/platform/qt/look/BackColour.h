#pragma once

#include "common/number/Units.h"

#include <QPalette>

class QWidget;

namespace korvane {

/// The palette roles of a surface: its background, and the text that is written on it.
struct Surface {
    QPalette::ColorRole back;
    QPalette::ColorRole text;
};

inline constexpr Surface kFieldSurface{QPalette::Base, QPalette::Text};
inline constexpr Surface kWindowSurface{QPalette::Window, QPalette::WindowText};
inline constexpr Surface kButtonSurface{QPalette::Button, QPalette::ButtonText};

/// Gives a widget a background of its own and a text colour that can be read on it. Without a colour the
/// widget looks like its window again.
void WriteBackColour(QWidget& widget, Colour back, const Surface& surface);
/// Gives a widget a text colour of its own too, whether or not it can be read there.
void WriteColours(QWidget& widget, Colour back, Colour fore, const Surface& surface);

} // namespace korvane
