#pragma once

#include "common/number/Units.h"

#include <QPalette>

class QWidget;

namespace korvane {

/// Which of a widget's surfaces is coloured, and what is written on it.
struct Surface {
    QPalette::ColorRole back;
    QPalette::ColorRole text;
};

inline constexpr Surface kFieldSurface{QPalette::Base, QPalette::Text};
inline constexpr Surface kWindowSurface{QPalette::Window, QPalette::WindowText};
inline constexpr Surface kButtonSurface{QPalette::Button, QPalette::ButtonText};

/// Gives a widget a colour of its own, with a text that can be read on it; without a colour it goes with its
/// window.
void WriteBackColour(QWidget& widget, Colour back, const Surface& surface);

} // namespace korvane
