#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace korvane {

/// The two colours of the icons. Others take their places when an icon is drawn.
inline constexpr auto kStroke = "#3c4650";
inline constexpr auto kAccent = "#2f74c0";

/// Draws a picture that uses the part of SVG in which the program's icons are made: nested groups, paths,
/// circles and rectangles, with a plain colour for the ground and the line. What doesn't belong to that part
/// is left out.
QImage DrawSvg(const QByteArray& svg, const QSize& size);

} // namespace korvane
