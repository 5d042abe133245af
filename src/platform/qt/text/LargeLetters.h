#pragma once

#include <QCache>
#include <QImage>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <functional>

class QPainter;
class QTextDocument;

namespace korvane {

/// Pictures of the large letters that were drawn last. Qt keeps pictures of letters up to 64 pixels, and
/// fills the outlines of larger ones with every paint.
class LargeLetters {
public:
    /// Runs a drawing of the document within the area, whose large letters are pictures that are kept.
    void Draw(QPainter& painter, const QTextDocument& document, const QRectF& area,
              const std::function<void(QPainter&)>& draw);

    /// A letter in its look. Its place is in quarters of a pixel.
    struct Letter {
        QRawFont font;
        quint32 glyph;
        double scale;
        QRgb colour;
        int quarter;

        bool operator==(const Letter&) const = default;
    };
    struct Picture {
        QImage image;
        /// From the pixel of the letter's place.
        QPoint corner;
    };
    /// The picture lives until the next one is asked for. Null if the letter is too large to be kept.
    const Picture* PictureOf(const Letter& letter);

    // In bytes.
    static constexpr qsizetype kMostKept = 16 << 20;
    qsizetype Kept() const { return pictures_.totalCost(); }

private:
    QCache<Letter, Picture> pictures_{kMostKept};
};

size_t qHash(const LargeLetters::Letter& letter, size_t seed = 0);

} // namespace korvane
