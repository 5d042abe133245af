#pragma once

#include <QPainterPath>
#include <QString>

namespace korvane {

/// The path in an attribute "d" of SVG. The axes of its arcs aren't turned. It ends before what isn't a step.
QPainterPath SvgPath(const QString& steps);

} // namespace korvane
