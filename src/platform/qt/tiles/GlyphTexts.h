#pragma once

#include <QGlyphRun>
#include <QRawFont>
#include <QRect>
#include <QString>

class QFont;
class QPainter;

namespace korvane {

/// Many short texts of one font, which are drawn together. That takes a fraction of the time of drawing one
/// after the other.
class GlyphTexts {
public:
    explicit GlyphTexts(const QFont& font);

    /// Centres the text in the place. False if it needs more than the font's own glyphs side by side; then
    /// nothing is added.
    bool Add(const QString& text, const QRect& place);
    void Draw(QPainter& painter) const;

private:
    QRawFont font_;
    QVector<quint32> glyphs_;
    QVector<QPointF> places_;
};

} // namespace korvane
