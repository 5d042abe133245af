#pragma once

#include "common/number/Units.h"

#include <QColor>
#include <QPalette>
#include <initializer_list>

namespace korvane {

/// Whether white is easier to read on the colour than black.
bool IsDark(const QColor& colour);

/// The background that was really chosen, or none if the palette's own is used. White is the default, so on a
/// dark palette it counts as "not chosen".
Colour ChosenBack(Colour back, const QPalette& palette);

/// A text with less contrast than this is hard to read.
inline constexpr double kReadable = 3.0;

/// The contrast with which a text is easy to read.
inline constexpr double kEasyToRead = 4.5;

/// How well `text` can be read on `back`: from 1 (not at all) to 21.
double Contrast(const QColor& text, const QColor& back);

/// The palette's text colour if it can be read on `back`, otherwise black or white.
QColor TextFor(const QColor& back, const QPalette& palette);

/// The colour, made as much lighter or darker as it takes to have the contrast with all of `backs`. Where
/// that can't be had, it is black or white.
QColor WithContrast(const QColor& colour, std::initializer_list<QColor> backs, double wanted);

/// The colour of the ring around what has the keyboard: the palette's accent, so that it can be seen on
/// `backs`.
QColor RingColour(const QPalette& palette, std::initializer_list<QColor> backs);

/// Black or white, whichever is easier to read on `back`.
QColor BlackOrWhite(const QColor& back);

/// Mixes `share` (0 to 1) of `other` into `colour`.
QColor Blend(const QColor& colour, const QColor& other, double share);

} // namespace korvane
