#include "platform/qt/text/LargeLetters.h"

#include "platform/qt/text/LineGlyphs.h"

#include <QFontInfo>
#include <QGlyphRun>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <memory>

namespace korvane {

namespace {

/// Up to this size Qt keeps pictures of the letters.
constexpr double kLargest = 64;
constexpr qsizetype kPixelBytes = 4;
constexpr int kQuarterBits = 2;
constexpr int kQuarters = 1 << kQuarterBits;

/// Passes everything on to another painter, and draws the letters that are large there as pictures.
class LetterEngine final : public QPaintEngine {
public:
    LetterEngine(QPainter& target, const QTextDocument& document, const QRectF& ready, LargeLetters& letters)
        : QPaintEngine(AllFeatures),
          target_(target),
          document_(document),
          ready_(ready),
          letters_(letters),
          ratio_(target.device()->devicePixelRatioF()),
          clips_(target.hasClipping()),
          transform_(target.transform()) {
        if (clips_) clip_ = target.clipPath();
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override {
        const DirtyFlags changed = state.state();
        if (changed & DirtyTransform) target_.setTransform(state.transform());
        if (changed & DirtyPen) target_.setPen(state.pen());
        if (changed & DirtyBrush) target_.setBrush(state.brush());
        if (changed & DirtyBrushOrigin) target_.setBrushOrigin(state.brushOrigin());
        if (changed & DirtyFont) target_.setFont(state.font());
        if (changed & DirtyBackground) target_.setBackground(state.backgroundBrush());
        if (changed & DirtyBackgroundMode) target_.setBackgroundMode(state.backgroundMode());
        if (changed & DirtyOpacity) target_.setOpacity(state.opacity());
        if (changed & DirtyHints) TakeHints(state.renderHints());
        if (changed & DirtyCompositionMode) target_.setCompositionMode(state.compositionMode());
        if (changed & DirtyClipRegion) Clip(state.clipOperation(), RegionPath(state.clipRegion()));
        if (changed & DirtyClipPath) Clip(state.clipOperation(), state.clipPath());
        if (changed & DirtyClipEnabled) target_.setClipping(state.isClipEnabled() || clips_);
    }

    void drawRects(const QRectF* rects, int count) override { target_.drawRects(rects, count); }
    void drawLines(const QLineF* lines, int count) override { target_.drawLines(lines, count); }
    void drawPoints(const QPointF* points, int count) override { target_.drawPoints(points, count); }
    void drawEllipse(const QRectF& rect) override { target_.drawEllipse(rect); }
    void drawPath(const QPainterPath& path) override { target_.drawPath(path); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        if (mode == PolylineMode) return target_.drawPolyline(points, count);
        target_.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& from) override {
        target_.drawPixmap(to, pixmap, from);
    }
    void drawTiledPixmap(const QRectF& to, const QPixmap& pixmap, const QPointF& from) override {
        target_.drawTiledPixmap(to, pixmap, from);
    }
    void drawImage(const QRectF& to, const QImage& image, const QRectF& from,
                   Qt::ImageConversionFlags flags) override {
        target_.drawImage(to, image, from, flags);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        if (!IsLarge(item) || !IsReady(at, item) || !DrawLetters(at, item)) target_.drawTextItem(at, item);
    }

private:
    static QPainterPath RegionPath(const QRegion& region) {
        QPainterPath path;
        path.addRegion(region);
        return path;
    }

    void TakeHints(QPainter::RenderHints hints) {
        target_.setRenderHints(target_.renderHints(), false);
        target_.setRenderHints(hints);
    }

    /// Nothing that is drawn goes beyond the clip that the painter had already.
    void Clip(Qt::ClipOperation operation, const QPainterPath& path) {
        if (operation == Qt::IntersectClip) return target_.setClipPath(path, operation);
        const QTransform transform = target_.transform();
        target_.setTransform(transform_);
        if (clips_) {
            target_.setClipPath(clip_);
        } else {
            target_.setClipping(false);
        }
        target_.setTransform(transform);
        if (operation == Qt::ReplaceClip)
            target_.setClipPath(path, clips_ ? Qt::IntersectClip : Qt::ReplaceClip);
    }

    double Scale() const { return target_.transform().m11() * ratio_; }
    bool IsLarge(const QTextItem& item) const {
        const QTransform& transform = target_.transform();
        return transform.type() <= QTransform::TxScale && transform.m11() > 0 &&
               transform.m11() == transform.m22() && QFontInfo(item.font()).pixelSize() * Scale() > kLargest;
    }

    /// Qt draws some lines beyond what it was asked for, too.
    bool IsReady(const QPointF& at, const QTextItem& item) const {
        return at.y() - item.ascent() >= ready_.top() && at.y() <= ready_.bottom();
    }

    bool DrawLetters(const QPointF& at, const QTextItem& item) {
        const QList<QGlyphRun> runs = GlyphsOf(document_, at, item);
        return !runs.empty() &&
               std::ranges::all_of(runs, [this](const QGlyphRun& run) { return DrawRun(run); });
    }

    bool DrawRun(const QGlyphRun& run) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        const QTransform transform = target_.transform();
        LargeLetters::Letter letter{run.rawFont(), 0, Scale(), target_.pen().color().rgba(), 0};
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            const QPointF place = transform.map(places[i]) * ratio_;
            const int quarters = static_cast<int>(std::lround(place.x() * kQuarters));
            const int pixel = quarters >> kQuarterBits;
            letter.glyph = glyphs[i];
            letter.quarter = quarters - (pixel << kQuarterBits);
            const auto* const picture = letters_.PictureOf(letter);
            if (picture == nullptr) return false;
            const QPointF corner = QPoint(pixel, static_cast<int>(std::lround(place.y()))) + picture->corner;
            target_.setTransform({});
            target_.drawImage(QRectF(corner / ratio_, QSizeF(picture->image.size()) / ratio_), picture->image,
                              picture->image.rect());
            target_.setTransform(transform);
        }
        return true;
    }

    QPainter& target_;
    const QTextDocument& document_;
    /// Where the document's glyphs may be asked for.
    QRectF ready_;
    LargeLetters& letters_;
    double ratio_;
    bool clips_;
    QTransform transform_;
    QPainterPath clip_;
};

/// As large as the device of the painter.
class LetterDevice final : public QPaintDevice {
public:
    LetterDevice(QPainter& target, const QTextDocument& document, const QRectF& ready, LargeLetters& letters)
        : device_(*target.device()), engine_(target, document, ready, letters) {}

    QPaintEngine* paintEngine() const override { return &engine_; }

protected:
    /// The target multiplies by the ratio of its device itself.
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return device_.width();
        case PdmHeight:
            return device_.height();
        case PdmWidthMM:
            return device_.widthMM();
        case PdmHeightMM:
            return device_.heightMM();
        case PdmNumColors:
            return device_.colorCount();
        case PdmDepth:
            return device_.depth();
        case PdmDpiX:
            return device_.logicalDpiX();
        case PdmDpiY:
            return device_.logicalDpiY();
        case PdmPhysicalDpiX:
            return device_.physicalDpiX();
        case PdmPhysicalDpiY:
            return device_.physicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        }
        return QPaintDevice::metric(metric);
    }

private:
    QPaintDevice& device_;
    mutable LetterEngine engine_;
};

} // namespace

size_t qHash(const LargeLetters::Letter& letter, size_t seed) {
    return qHashMulti(seed, letter.font, letter.glyph, letter.scale, letter.colour, letter.quarter);
}

const LargeLetters::Picture* LargeLetters::PictureOf(const Letter& letter) {
    if (const Picture* const kept = pictures_.object(letter)) return kept;
    QPainterPath outline = letter.font.pathForGlyph(letter.glyph);
    outline.setFillRule(Qt::WindingFill);
    const QTransform place = QTransform::fromTranslate(static_cast<double>(letter.quarter) / kQuarters, 0)
                                 .scale(letter.scale, letter.scale);
    outline = place.map(outline);
    const QRect room = outline.boundingRect().toAlignedRect().adjusted(-1, -1, 1, 1);
    if (kPixelBytes * room.width() * room.height() > kMostKept) return nullptr;
    auto picture = std::make_unique<Picture>();
    picture->corner = room.topLeft();
    picture->image = QImage(room.size(), QImage::Format_ARGB32_Premultiplied);
    picture->image.fill(Qt::transparent);
    QPainter painter(&picture->image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-room.topLeft());
    painter.fillPath(outline, QColor::fromRgba(letter.colour));
    painter.end();
    const qsizetype size = picture->image.sizeInBytes();
    pictures_.insert(letter, picture.release(), size);
    return pictures_.object(letter);
}

void LargeLetters::Draw(QPainter& painter, const QTextDocument& document, const QRectF& area,
                        const std::function<void(QPainter&)>& draw) {
    // Letters reach beyond their lines.
    const QRectF ready = area.adjusted(0, -area.height(), 0, area.height());
    PrepareGlyphs(document, ready);
    painter.save();
    LetterDevice device(painter, document, ready, *this);
    QPainter letters(&device);
    letters.setRenderHints(painter.renderHints());
    letters.setTransform(painter.transform());
    letters.setPen(painter.pen());
    letters.setBrush(painter.brush());
    letters.setFont(painter.font());
    letters.setOpacity(painter.opacity());
    draw(letters);
    letters.end();
    painter.restore();
}

} // namespace korvane
