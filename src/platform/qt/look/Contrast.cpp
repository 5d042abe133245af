#include "platform/qt/look/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvane {

namespace {

/// The light that each value of a channel gives. It is a table because every painted cell needs several
/// values.
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

} // namespace

bool IsDark(const QColor& colour) {
    return Luminance(colour) < 0.18;
}

Colour ChosenBack(Colour back, const QPalette& palette) {
    return back == kWhite && IsDark(palette.color(QPalette::Base)) ? kNoColour : back;
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

QColor WithContrast(const QColor& colour, std::initializer_list<QColor> backs, double wanted) {
    const QColor aim = BlackOrWhite(*backs.begin());
    const auto least = [&backs](const QColor& candidate) {
        double contrast = Contrast(candidate, *backs.begin());
        for (const QColor& back : backs)
            contrast = std::min(contrast, Contrast(candidate, back));
        return contrast;
    };
    constexpr int kSteps = 20;
    QColor result = colour;
    for (int step = 1; step <= kSteps && least(result) < wanted; ++step)
        result = Blend(colour, aim, static_cast<double>(step) / kSteps);
    return result;
}

QColor RingColour(const QPalette& palette, std::initializer_list<QColor> backs) {
    // A little more than is needed, because smoothed edges lose some of it.
    constexpr double kRingContrast = 3.4;
    return WithContrast(palette.color(QPalette::Highlight), backs, kRingContrast);
}

QColor BlackOrWhite(const QColor& back) {
    return Contrast(Qt::black, back) >= Contrast(Qt::white, back) ? Qt::black : Qt::white;
}

QColor Blend(const QColor& colour, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return QColor(mix(colour.red(), other.red()), mix(colour.green(), other.green()),
                  mix(colour.blue(), other.blue()));
}

} // namespace korvane
