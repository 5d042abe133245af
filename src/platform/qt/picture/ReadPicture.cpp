#include "platform/qt/picture/ReadPicture.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>

namespace korvane {

namespace {

/// For one picture while it is read.
constexpr int kMostMegabytes = 256;
/// Of a picture that is shown, at 4 bytes each.
constexpr double kMostPixels = 32e6;

/// A file whose reading can be given up.
class PatientFile final : public QFile {
public:
    PatientFile(const QString& path, const std::atomic_bool& givenUp) : QFile(path), givenUp_(givenUp) {}

protected:
    qint64 readData(char* data, qint64 most) override { return givenUp_ ? -1 : QFile::readData(data, most); }

private:
    const std::atomic_bool& givenUp_;
};

/// Opening anything but a real file could wait for ever.
bool Open(QFile& file) {
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
}

/// To ask Qt for the size of a GIF reads the whole file, since its frames may be larger.
QSize SizeOfGif(const QByteArray& head) {
    if (head.size() < 10 || !head.startsWith("GIF8")) return {};
    const auto number = [&head](int at) { return qFromLittleEndian<quint16>(head.constData() + at); };
    return {number(6), number(8)};
}

bool IsKnown(const QImageReader& reader) {
    constexpr std::array kFormats{"jpeg", "png", "bmp", "gif"};
    return std::ranges::any_of(kFormats, [&reader](const char* format) { return reader.format() == format; });
}

QSize Turned(const QImageReader& reader, const QSize& size) {
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed()
                                                                                     : size;
}

QSize SizeIn(QImageReader& reader, QFile& file) {
    if (!IsKnown(reader)) return {};
    if (reader.format() == "gif") return SizeOfGif(file.peek(10));
    return Turned(reader, reader.size());
}

/// As large as wanted, as there are pixels, and as fits into memory.
QSize SizeToRead(const QSize& own, const QSize& wanted) {
    const QSize size(std::min(own.width(), wanted.width()), std::min(own.height(), wanted.height()));
    const double pixels = static_cast<double>(size.width()) * size.height();
    return pixels <= kMostPixels ? size : size * std::sqrt(kMostPixels / pixels);
}

} // namespace

QSize SizeOfPicture(const QString& path) {
    QFile file(path);
    if (!Open(file)) return {};
    QImageReader reader(&file);
    return SizeIn(reader, file);
}

QImage ReadPicture(const QString& path, const QSize& wanted, const std::atomic_bool& givenUp) {
    PatientFile file(path, givenUp);
    if (!Open(file)) return {};
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(&file);
    const QSize own = SizeIn(reader, file);
    if (own.isEmpty() || wanted.isEmpty()) return {};
    const QSize size = SizeToRead(own, wanted);
    if (size != own) reader.setScaledSize(Turned(reader, size));
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    if (givenUp || picture.isNull()) return {};
    return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
}

} // namespace korvane
