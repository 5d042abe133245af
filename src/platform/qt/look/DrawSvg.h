#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QSize>

namespace korvane {

/// Draws a picture that uses the part of SVG in which the program's icons are made: nested groups, paths,
/// circles and rectangles, with a plain colour for the ground and the line. What doesn't belong to that part
/// is left out.
QPixmap DrawSvg(const QByteArray& svg, const QSize& size);

} // namespace korvane
