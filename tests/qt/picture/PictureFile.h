#pragma once

#include "support/TempDir.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QString>

namespace korvane::test {

/// Pictures in files of a folder that goes away again.
class PictureFolder {
public:
    QString Path(const QString& name) const {
        return QString::fromStdString((folder_.Path() / name.toStdString()).string());
    }
    /// The left half of the picture is red and the right half is blue.
    QString Add(const QString& name, const QSize& size, const char* format) const {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (int y = 0; y < size.height(); ++y)
            std::fill_n(reinterpret_cast<QRgb*>(picture.scanLine(y)) + size.width() / 2,
                        size.width() - size.width() / 2, qRgb(0, 0, 255));
        picture.save(Path(name), format);
        return Path(name);
    }
    QString AddBytes(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
        return Path(name);
    }
    QByteArray Bytes(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    TempDir folder_;
};

} // namespace korvane::test
