#pragma once

#include "platform/qt/look/Contrast.h"

#include <QHash>
#include <QImage>
#include <algorithm>

namespace korvane::test {

/// The greatest contrast of a pixel with those a little beside it.
inline double ContrastWithNeighbours(const QImage& picture, const QPoint& place) {
    constexpr int kBeside = 3;
    double contrast = 1;
    for (const QPoint step :
         {QPoint(kBeside, 0), QPoint(-kBeside, 0), QPoint(0, kBeside), QPoint(0, -kBeside)}) {
        if (!picture.rect().contains(place + step)) continue;
        contrast = std::max(contrast, Contrast(picture.pixelColor(place), picture.pixelColor(place + step)));
    }
    return contrast;
}

/// How many pixels of the area have changed and can be told by this contrast from what is around them.
inline int SeenChanges(const QImage& before, const QImage& after, const QRect& area, double contrast) {
    constexpr double kChanged = 1.3;
    int count = 0;
    const QRect inside = area & before.rect() & after.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (before.pixel(x, y) == after.pixel(x, y)) continue;
            const bool changed = Contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= kChanged;
            if (changed && ContrastWithNeighbours(after, {x, y}) >= contrast) ++count;
        }
    }
    return count;
}

/// The greatest contrast of a pixel in the area with the colour that most pixels there have.
inline double ContrastWithin(const QImage& picture, const QRect& area) {
    QHash<QRgb, int> counts;
    const QRect inside = area & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    QRgb back = 0;
    int most = 0;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
        if (each.value() > most) back = each.key();
        most = std::max(most, each.value());
    }
    double contrast = 1;
    for (auto each = counts.cbegin(); each != counts.cend(); ++each)
        contrast = std::max(contrast, Contrast(QColor(each.key()), QColor(back)));
    return contrast;
}

} // namespace korvane::test
