#include "platform/qt/look/ReadyIcons.h"

#include <QResource>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>

namespace korvane {

namespace {

constexpr int kWhole = 255;

template <class T>
T Read(const uchar* bytes) {
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

std::optional<ReadyIcon> FindReady(const uchar* bytes, std::string_view name, int size) {
    const uchar* at = bytes + sizeof(std::uint32_t);
    for (auto left = Read<std::uint32_t>(bytes); left > 0; --left, at += sizeof(ReadyIcon)) {
        const auto icon = Read<ReadyIcon>(at);
        if (static_cast<int>(icon.size) == size && name == icon.name.data()) return icon;
    }
    return std::nullopt;
}

/// A point whose colours are multiplied by how much of them it has.
QRgb Mixed(int strokeShare, int accentShare, const QColor& stroke, const QColor& accent) {
    const auto mix = [=](int one, int other) {
        return (one * strokeShare + other * accentShare + kWhole / 2) / kWhole;
    };
    return qRgba(mix(stroke.red(), accent.red()), mix(stroke.green(), accent.green()),
                 mix(stroke.blue(), accent.blue()), strokeShare + accentShare);
}

} // namespace

QImage DrawReadyIcon(const QString& name, const QSize& size, const QColor& stroke, const QColor& accent) {
    const QResource resource(QStringLiteral(":/ready-icons"));
    if (!resource.isValid() || size.width() != size.height()) return {};
    const QByteArray word = name.toLatin1();
    const auto icon = FindReady(
        resource.data(), std::string_view(word.data(), static_cast<std::size_t>(word.size())), size.width());
    if (!icon) return {};
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    const uchar* shares = resource.data() + icon->place;
    for (int y = 0; y < size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x, shares += 2)
            line[x] = shares[0] + shares[1] == 0 ? 0 : Mixed(shares[0], shares[1], stroke, accent);
    }
    return picture;
}

} // namespace korvane
