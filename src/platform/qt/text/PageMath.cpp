#include "platform/qt/text/PageMath.h"

#include "platform/qt/text/TextFormats.h"

#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

/// The margins leave at least so much of a page, for a line must fit in.
constexpr double kLeastText = 48;

void Shrink(double& before, double& after, double length) {
    const double most = std::max(length - kLeastText, 0.0);
    before = std::clamp(before, 0.0, most);
    after = std::clamp(after, 0.0, most - before);
}

} // namespace

PageMath::PageMath(const doc::Page& page)
    : size_(std::max(TextPixels(page[doc::Page::Width]), kLeastText),
            std::max(TextPixels(page[doc::Page::Height]), kLeastText)) {
    double left = TextPixels(page[doc::Page::MarginLeft]);
    double top = TextPixels(page[doc::Page::MarginTop]);
    double right = TextPixels(page[doc::Page::MarginRight]);
    double bottom = TextPixels(page[doc::Page::MarginBottom]);
    Shrink(left, right, size_.width());
    Shrink(top, bottom, size_.height());
    margins_ = {left, top, right, bottom};
}

QMarginsF PageMath::Margins() const {
    return margins_ + QMarginsF(0, 0, 0, kGap);
}

int PageMath::PageAt(double y) const {
    return std::max(static_cast<int>(std::floor(y / Step().height())), 0);
}

} // namespace korvane
