#pragma once

#include "grid/Grid.h"
#include "platform/qt/look/Contrast.h"

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace korvane {

struct CellColours {
    QColor back;
    QColor text;
};

/// The colours of a cell: its own, otherwise the table's, otherwise the palette's. Where the data sets only
/// the text or only the background, the other one is chosen so that the text can be read. White is the
/// default, so on a dark palette it counts as not set.
CellColours ColoursOf(const Grid& store, Row row, Col col, const QPalette& palette);

/// The colour of the line around such a mark, which can be seen on the cell's background.
QColor MarkEdge(const CellColours& colours, const QColor& mark);

/// The two lines of the frame around the current cell. One of them can be seen on any background.
struct FrameColours {
    QColor dark;
    QColor light;
};
FrameColours FrameOf(const QColor& accent);

/// The colours of a row that is going to be deleted: the text is halfway to the background.
CellColours Faded(const CellColours& colours);

/// The colours of a check box in a cell with this background. The box can be seen on any background.
struct CheckColours {
    QColor fill;
    QColor edge;
    QColor tick;
    bool operator==(const CheckColours&) const = default;
};
CheckColours CheckColoursOn(const QColor& back);

/// The background of the table.
QColor TableBack(const Grid& store, const QPalette& palette);

/// The colour of the lines between cells. It can be seen on any background but doesn't distract.
QColor GridLine(const QColor& back);

/// How much a marked place stands out.
enum class Mark : std::uint8_t { Soft, Strong };

/// The background of a marked place in a cell with these colours. It differs from the cell's own background,
/// and the text on it stays readable.
QColor MarkBack(const CellColours& colours, Mark mark);

/// The colour of the letters on such a mark, which can always be read.
QColor MarkText(const CellColours& colours, const QColor& mark);

} // namespace korvane
