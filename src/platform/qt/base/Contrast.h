#pragma once

#include "common/number/Units.h"

#include <QColor>
#include <QPalette>

namespace korvane {

/// Whether white can be read better on the colour than black.
bool IsDark(const QColor& colour);

/// The colour of a background, or none where it goes with the palette. White is what a background has whose
/// colour nobody chose: where the palette is dark, it is the palette's own.
Colour ChosenBack(Colour back, const QPalette& palette);

/// Below this contrast a text is hard to read.
inline constexpr double kReadable = 3.0;

/// How well `text` can be read on `back`, from 1 (not at all) to 21.
double Contrast(const QColor& text, const QColor& back);

/// The palette's text colour if it can be read on `back`, else black or white.
QColor TextFor(const QColor& back, const QPalette& palette);

/// Which of the two can be read better on `back`.
QColor BlackOrWhite(const QColor& back);

/// `colour` with `share` (0 to 1) of `other` in it.
QColor Blend(const QColor& colour, const QColor& other, double share);

} // namespace korvane
