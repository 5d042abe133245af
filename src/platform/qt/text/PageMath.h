#pragma once

#include "document/model/Document.h"

#include <QMarginsF>
#include <QRectF>
#include <QSizeF>

namespace korvane {

/// Where the pages of a text are. They follow each other downwards with a gap between them. For Qt the gap
/// belongs to the lower margin of a page, so that no line is in it.
class PageMath {
public:
    explicit PageMath(const doc::Page& page);

    static constexpr double kGap = 16;

    /// The size of a page with the gap after it.
    QSizeF Step() const { return {size_.width(), size_.height() + kGap}; }
    /// The margins around the text within `Step`.
    QMarginsF Margins() const;
    QRectF Page(int page) const { return {{0, page * Step().height()}, size_}; }
    /// The page, from 0, in which a height is, or after which it is in the gap.
    int PageAt(double y) const;
    /// Where the text begins and ends in a line, from the left edge of the page.
    double TextLeft() const { return margins_.left(); }
    double TextRight() const { return size_.width() - margins_.right(); }

private:
    QSizeF size_;
    QMarginsF margins_;
};

/// The steps of the zoom, in per cent.
inline constexpr int kZoomSteps[] = {30,  50,  62,  75,  82,  90,  95,  100, 105, 110,
                                     115, 120, 125, 150, 175, 200, 250, 300, 400, 500};

} // namespace korvane
