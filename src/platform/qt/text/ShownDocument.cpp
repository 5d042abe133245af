#include "platform/qt/text/ShownDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImageReader>
#include <QUrl>

namespace korvane {

namespace {

constexpr QLatin1String kScheme("picture:");
/// A picture of more points isn't decoded: a small file can ask for more memory than there is.
constexpr qint64 kMostPoints = 64 * 1024 * 1024;

QImage Decoded(std::string_view bytes) {
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPoints) return {};
    return reader.read();
}

/// What is shown for a picture that can't be.
QImage Placeholder() {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::lightGray);
    return image;
}

} // namespace

QString PictureName(doc::Index image) {
    return kScheme + QString::number(image);
}

ShownDocument::ShownDocument(const doc::Document& source) : source_(source) {
    // Undoing is the store's. Here it would only keep every change once more.
    setUndoRedoEnabled(false);
    setUseDesignMetrics(true);
}

QVariant ShownDocument::loadResource(int type, const QUrl& name) {
    const QString text = name.toString();
    // Nothing else is loaded: a document must not reach for files or for the net.
    if (type != QTextDocument::ImageResource || !text.startsWith(kScheme)) return {};
    const qsizetype number = text.mid(kScheme.size()).toLongLong();
    if (number < 1 || static_cast<std::size_t>(number) > source_.images.size()) return {};
    const QImage image = Decoded(source_.images[static_cast<std::size_t>(number) - 1].bytes.View());
    const QVariant shown = image.isNull() ? Placeholder() : image;
    addResource(type, name, shown);
    return shown;
}

} // namespace korvane
