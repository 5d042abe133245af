#include "platform/qt/tiles/GlyphTexts.h"

#include <QPainter>
#include <QVarLengthArray>
#include <algorithm>
#include <numeric>

namespace korvane {

namespace {

/// From here on, characters can join with their neighbours.
constexpr char16_t kFirstMark = 0x300;
constexpr char16_t kPunctuation = 0x2010;
constexpr char16_t kAfterPunctuation = 0x2027;

/// Most texts have no more characters.
constexpr qsizetype kShort = 8;

bool IsByItself(QChar character) {
    const char16_t code = character.unicode();
    return code < kFirstMark || (code >= kPunctuation && code < kAfterPunctuation);
}

} // namespace

GlyphTexts::GlyphTexts(const QFont& font) : font_(QRawFont::fromFont(font)) {}

bool GlyphTexts::Add(const QString& text, const QRect& place) {
    if (!std::all_of(text.begin(), text.end(), IsByItself)) return false;
    QVarLengthArray<quint32, kShort> glyphs(text.size());
    QVarLengthArray<QPointF, kShort> advances(text.size());
    int count = static_cast<int>(text.size());
    const bool known = font_.glyphIndexesForChars(text.constData(), count, glyphs.data(), &count) &&
                       count == text.size() && !glyphs.contains(0) &&
                       font_.advancesForGlyphIndexes(glyphs.constData(), advances.data(), count);
    if (!known) return false;
    const qreal width = std::accumulate(advances.begin(), advances.end(), 0.0,
                                        [](qreal sum, QPointF advance) { return sum + advance.x(); });
    const qreal height = font_.ascent() + font_.descent();
    // Whole pixels, at which glyphs are kept ready.
    qreal x = qRound(place.x() + (place.width() - width) / 2);
    const qreal y = qRound(place.y() + (place.height() - height) / 2 + font_.ascent());
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        glyphs_.append(glyphs[i]);
        places_.append({x, y});
        x += advances[i].x();
    }
    return true;
}

void GlyphTexts::Draw(QPainter& painter) const {
    if (glyphs_.isEmpty()) return;
    QGlyphRun run;
    run.setRawFont(font_);
    run.setGlyphIndexes(glyphs_);
    run.setPositions(places_);
    painter.drawGlyphRun({}, run);
}

} // namespace korvane
