#pragma once

#include "common/number/Units.h"

#include <QColor>
#include <QPalette>

namespace korvane {

/// Whether white is easier to read on the colour than black.
bool IsDark(const QColor& colour);

/// The background that was really chosen, or none if the palette's own is used. White is the default, so on a
/// dark palette it counts as "not chosen".
Colour ChosenBack(Colour back, const QPalette& palette);

/// A text with less contrast than this is hard to read.
inline constexpr double kReadable = 3.0;

/// How well `text` can be read on `back`: from 1 (not at all) to 21.
double Contrast(const QColor& text, const QColor& back);

/// The palette's text colour if it can be read on `back`, otherwise black or white.
QColor TextFor(const QColor& back, const QPalette& palette);

/// Black or white, whichever is easier to read on `back`.
QColor BlackOrWhite(const QColor& back);

/// Mixes `share` (0 to 1) of `other` into `colour`.
QColor Blend(const QColor& colour, const QColor& other, double share);

} // namespace korvane
