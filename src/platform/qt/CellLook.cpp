#include "platform/qt/CellLook.h"

#include "platform/qt/Convert.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace korvane {

namespace {

/// Below this a text is hard to read.
constexpr double kReadable = 3.0;
/// What a text gets that was hard to read.
constexpr double kComfortable = 6.0;
/// What a text keeps of its contrast on a mark.
constexpr double kMarkContrast = 4.5;

/// The light that each value of a channel gives. Every cell that is painted asks for some.
std::array<double, 256> MakeLinear() {
    std::array<double, 256> linear{};
    for (std::size_t value = 0; value < linear.size(); ++value) {
        const double channel = static_cast<double>(value) / 255;
        linear[value] = channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    }
    return linear;
}

double Linear(int channel) {
    static const std::array<double, 256> linear = MakeLinear();
    return linear[static_cast<std::size_t>(channel)];
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.red()) + 0.7152 * Linear(colour.green()) + 0.0722 * Linear(colour.blue());
}

constexpr Colour kWhite{0xFFFFFF};

bool IsDark(const QColor& colour) {
    return Luminance(colour) < 0.18;
}

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

Colour ChosenBack(Colour back, const QPalette& palette) {
    return back == kWhite && IsDark(palette.color(QPalette::Base)) ? kNoColour : back;
}

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

double Contrast(const QColor& text, const QColor& back) {
    const double a = Luminance(text);
    const double b = Luminance(back);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor TextFor(const QColor& back, const QPalette& palette) {
    const QColor text = palette.color(QPalette::Text);
    if (Contrast(text, back) >= kReadable) return text;
    return BlackOrWhite(back);
}

QColor BlackOrWhite(const QColor& back) {
    return Contrast(Qt::black, back) >= Contrast(Qt::white, back) ? Qt::black : Qt::white;
}

QColor Blend(const QColor& colour, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return QColor(mix(colour.red(), other.red()), mix(colour.green(), other.green()),
                  mix(colour.blue(), other.blue()));
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
