#include "platform/qt/lists/AsciiGlyphs.h"

#include <QGlyphRun>
#include <QPainter>
#include <QVarLengthArray>
#include <algorithm>
#include <numeric>

namespace korvane {

std::optional<qreal> AsciiGlyphs::WidthOf(const QString& text, const QFont& font) {
    if (font_ != font) Take(font);
    qreal width = 0;
    for (const QChar letter : text) {
        if (letter.unicode() < kFirst || letter.unicode() > kLast) return std::nullopt;
        const Glyph& glyph = GlyphOf(letter);
        if (glyph.index == 0) return std::nullopt;
        width += glyph.width;
    }
    return width;
}

void AsciiGlyphs::Take(const QFont& font) {
    font_ = font;
    glyphs_ = {};
    // Lines through or below a text aren't part of its letters.
    if (font.underline() || font.strikeOut() || font.overline()) return;
    raw_ = QRawFont::fromFont(font);
    std::array<char16_t, std::tuple_size_v<decltype(glyphs_)>> letters{};
    std::iota(letters.begin(), letters.end(), kFirst);
    const QString all = QString::fromUtf16(letters.data(), letters.size());
    const QList<quint32> indexes = raw_.glyphIndexesForString(all);
    const QList<QPointF> widths = raw_.advancesForGlyphIndexes(indexes);
    for (qsizetype letter = 0; letter < std::min(indexes.size(), all.size()); ++letter)
        glyphs_[static_cast<std::size_t>(letter)] = {indexes[letter], widths[letter].x()};
}

void AsciiGlyphs::Draw(QPainter& painter, const QPointF& place, const QString& text) const {
    constexpr int kUsual = 64;
    QVarLengthArray<quint32, kUsual> indexes;
    QVarLengthArray<QPointF, kUsual> places;
    QPointF next;
    for (const QChar letter : text) {
        const Glyph& glyph = GlyphOf(letter);
        indexes.push_back(glyph.index);
        places.push_back(next);
        next.rx() += glyph.width;
    }
    QGlyphRun run;
    run.setRawFont(raw_);
    run.setRawData(indexes.constData(), places.constData(), static_cast<int>(indexes.size()));
    painter.drawGlyphRun(place, run);
}

} // namespace korvane
