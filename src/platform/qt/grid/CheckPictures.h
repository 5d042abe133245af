#pragma once

#include "platform/qt/grid/CellLook.h"

#include <QPixmap>
#include <QSize>
#include <vector>

class QPainter;
class QRect;

namespace korvane {

/// Paints the check boxes of a grid. To draw one takes as long as the texts of a row, so it is drawn once for
/// each look and kept as a picture.
class CheckPictures {
public:
    /// Paints the box into `box`, which has whole pixels of the view.
    void Paint(QPainter& painter, const QRect& box, const CheckColours& colours, bool ticked);

private:
    /// All that a picture depends on.
    struct Look {
        QSize size;
        int scale;
        CheckColours colours;
        bool ticked;
        bool operator==(const Look&) const = default;
    };
    struct Picture {
        Look look;
        QPixmap pixels;
    };
    /// The colours of rows are few, but a file can have a colour of its own in each row.
    static constexpr std::size_t kMost = 64;

    const QPixmap& PictureOf(const Look& look);

    std::vector<Picture> pictures_;
};

} // namespace korvane
