#include "platform/qt/grid/CellLook.h"

#include "platform/qt/base/Convert.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace korvane {

namespace {

/// What a text gets that was hard to read.
constexpr double kComfortable = 6.0;
/// What a text keeps of its contrast on a mark.
constexpr double kMarkContrast = 4.5;

Colour FirstSet(Colour first, Colour second) {
    return first == kNoColour ? second : first;
}

/// The colour that the table has of its own; none where it goes with the palette.
Colour OwnTableBack(const Grid& store, const QPalette& palette) {
    return ChosenBack(store.GridBackColor(), palette);
}

/// A text colour of the data on a background that isn't of the data: the same hue, as light or dark as it
/// takes.
QColor Readable(const QColor& text, const QColor& back) {
    if (Contrast(text, back) >= kReadable) return text;
    const QColor aim = IsDark(back) ? Qt::white : Qt::black;
    QColor result = text;
    for (int step = 1; step <= 10 && Contrast(result, back) < kComfortable; ++step) {
        result = Blend(text, aim, step / 10.0);
    }
    return result;
}

/// The hues of marks, the best one first: on a background like it, or one on which it would drown the text,
/// the next is seen.
constexpr std::array kMarkHues{QColor(255, 190, 0), QColor(70, 160, 255), QColor(70, 0, 120)};
/// Marks that differ less from the background aren't noticed, in steps of the three channels together.
constexpr int kNoticeable = 60;

int Difference(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

/// As much of the hue as `share` allows and the text stays readable on.
QColor ReadableMark(const CellColours& colours, const QColor& hue, double share) {
    const double wanted = std::min(Contrast(colours.text, colours.back), kMarkContrast);
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

QColor TableBack(const Grid& store, const QPalette& palette) {
    const Colour own = OwnTableBack(store, palette);
    return own == kNoColour ? palette.color(QPalette::Base) : ToQColor(own);
}

QColor GridLine(const QColor& back) {
    return Blend(back, IsDark(back) ? Qt::white : Qt::black, IsDark(back) ? 0.16 : 0.14);
}

CellColours ColoursOf(const Grid& store, Row row, Col col, const QPalette& palette) {
    const Colour back = FirstSet(store.CellBackColor(row, col), OwnTableBack(store, palette));
    const Colour text = FirstSet(store.CellForeColor(row, col), store.GridForeColor());
    const QColor shownBack = back == kNoColour ? palette.color(QPalette::Base) : ToQColor(back);
    if (text == kNoColour) return {shownBack, TextFor(shownBack, palette)};
    if (back == kNoColour) return {shownBack, Readable(ToQColor(text), shownBack)};
    return {shownBack, ToQColor(text)};
}

} // namespace korvane
