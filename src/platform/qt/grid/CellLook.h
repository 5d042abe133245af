#pragma once

#include "grid/Grid.h"
#include "platform/qt/base/Contrast.h"

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace korvane {

struct CellColours {
    QColor back;
    QColor text;
};

/// How a cell is coloured: by its own colours, else the table's, else the palette's. Where only one of the
/// two comes from the data, the other is chosen so that the text can be read.
CellColours ColoursOf(const Grid& store, Row row, Col col, const QPalette& palette);

/// The background of the table.
QColor TableBack(const Grid& store, const QPalette& palette);

/// The lines between cells, to be seen on any background without standing out.
QColor GridLine(const QColor& back);

/// How much a marked place stands out.
enum class Mark : std::uint8_t { Soft, Strong };

/// The background of a marked place in a cell of these colours: to be told from the cell's own, with the text
/// as readable as it takes.
QColor MarkBack(const CellColours& colours, Mark mark);

} // namespace korvane
