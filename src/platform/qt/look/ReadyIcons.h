#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>
#include <array>
#include <cstdint>

namespace korvane {

/// The icons of the first screen as pictures that were drawn when the program was built, because to draw them
/// from SVG takes longer than all texts of the bars. There is one for each icon, size and scale.
///
/// The resource begins with the number of pictures in 32 bits, and one `ReadyIcon` for each of them. The
/// pictures follow. Each point of a picture is two bytes, the shares of the icon's first and second colour in
/// it.
struct ReadyIcon {
    std::array<char, 24> name{};
    /// The width and height in points, and where the picture begins in the resource.
    std::uint32_t size = 0;
    std::uint32_t place = 0;
};

/// The scales of a screen for which there are pictures.
inline constexpr std::array kReadyScales{1.0, 1.5, 2.0};

/// The icon in these colours; a null picture when it isn't there in this size.
QImage DrawReadyIcon(const QString& name, const QSize& size, const QColor& stroke, const QColor& accent);

} // namespace korvane
