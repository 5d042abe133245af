#include "platform/qt/grid/CellLook.h"

#include "platform/qt/base/Convert.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace korvane {

namespace {

/// The contrast to which a text is brought that was hard to read.
constexpr double kComfortable = 6.0;

Colour FirstSet(Colour first, Colour second) {
    return first == kNoColour ? second : first;
}

/// The background that the table sets itself, or none if the palette's is used.
Colour OwnTableBack(const Grid& store, const QPalette& palette) {
    return ChosenBack(store.GridBackColor(), palette);
}

/// Makes the data's text colour readable on a background that the data didn't choose: the hue stays, and the
/// colour becomes as light or dark as needed.
QColor Readable(const QColor& text, const QColor& back) {
    return Contrast(text, back) >= kReadable ? text : WithContrast(text, {back}, kComfortable);
}

/// The hues of marks, the best one first. The next one is used where the background has a similar hue, or
/// where the text could not be read.
constexpr std::array kMarkHues{QColor(255, 190, 0), QColor(70, 160, 255), QColor(70, 0, 120)};
/// A mark can't be told from its background if the three channels together differ by less than this.
constexpr int kNoticeable = 60;

int Difference(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

/// Mixes in up to `share` of the hue, but only so much that the text stays readable.
QColor ReadableMark(const CellColours& colours, const QColor& hue, double share) {
    const double wanted = std::min(Contrast(colours.text, colours.back), kEasyToRead);
    QColor mark = Blend(colours.back, hue, share);
    for (; share > 0.05 && Contrast(colours.text, mark) < wanted; share -= 0.05)
        mark = Blend(colours.back, hue, share);
    return mark;
}

} // namespace

QColor MarkBack(const CellColours& colours, Mark mark) {
    const double share = mark == Mark::Strong ? 0.85 : 0.4;
    QColor best = colours.back;
    for (const QColor& hue : kMarkHues) {
        const QColor candidate = ReadableMark(colours, hue, share);
        if (Difference(candidate, colours.back) > Difference(best, colours.back)) best = candidate;
        if (Difference(best, colours.back) >= kNoticeable) break;
    }
    return best;
}

QColor MarkText(const CellColours& colours, const QColor& mark) {
    return Contrast(colours.text, mark) >= kEasyToRead ? colours.text : BlackOrWhite(mark);
}

QColor MarkEdge(const CellColours& colours, const QColor& mark) {
    return WithContrast(mark, {colours.back}, kReadable);
}

FrameColours FrameOf(const QColor& accent) {
    // With this contrast between the two lines, one of them differs enough from any colour.
    constexpr double kBetweenLines = 9.2;
    return {WithContrast(accent, {Qt::white}, kBetweenLines), Qt::white};
}

CellColours Faded(const CellColours& colours) {
    constexpr double kFading = 0.55;
    return {colours.back, Blend(colours.text, colours.back, kFading)};
}

CheckColours CheckColoursOn(const QColor& back) {
    const QColor ink = BlackOrWhite(back);
    const QColor fill = Blend(back, IsDark(back) ? Qt::black : Qt::white, 0.5);
    return {fill, Blend(back, ink, 0.75), BlackOrWhite(fill)};
}

QColor TableBack(const Grid& store, const QPalette& palette) {
    const Colour own = OwnTableBack(store, palette);
    return own == kNoColour ? palette.color(QPalette::Base) : ToQColor(own);
}

QColor GridLine(const QColor& back) {
    return Blend(back, IsDark(back) ? Qt::white : Qt::black, IsDark(back) ? 0.16 : 0.14);
}

CellColours ColoursOf(const Grid& store, Row row, Col col, const QPalette& palette) {
    const Colour own = ChosenBack(store.CellBackColor(row, col), palette);
    const Colour back = FirstSet(own, OwnTableBack(store, palette));
    const Colour text = FirstSet(store.CellForeColor(row, col), store.GridForeColor());
    const QColor shownBack = back == kNoColour ? palette.color(QPalette::Base) : ToQColor(back);
    if (text == kNoColour) return {shownBack, TextFor(shownBack, palette)};
    if (back == kNoColour) return {shownBack, Readable(ToQColor(text), shownBack)};
    return {shownBack, ToQColor(text)};
}

} // namespace korvane
