#pragma once

#include <QFont>
#include <QRawFont>
#include <QString>
#include <array>
#include <optional>

class QPainter;
class QPointF;

namespace korvane {

/// The ASCII characters in a font, which are drawn one beside the other. That takes a third of the time in
/// which Qt lays out a text.
class AsciiGlyphs {
public:
    /// In pixels; nothing for a text that has to be laid out.
    std::optional<qreal> WidthOf(const QString& text, const QFont& font);
    /// Draws a text that has just been measured. The left end of its base line is given.
    void Draw(QPainter& painter, const QPointF& place, const QString& text) const;

private:
    struct Glyph {
        quint32 index = 0;
        qreal width = 0;
    };
    static constexpr char16_t kFirst = u' ';
    static constexpr char16_t kLast = u'~';

    void Take(const QFont& font);
    const Glyph& GlyphOf(QChar letter) const { return glyphs_[std::size_t{letter.unicode()} - kFirst]; }

    std::optional<QFont> font_;
    QRawFont raw_;
    /// The index is 0 for what the font doesn't have.
    std::array<Glyph, kLast - kFirst + 1> glyphs_{};
};

} // namespace korvane
