#include "platform/qt/grid/CheckPictures.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

void Draw(QPainter& painter, const QRectF& area, const CheckColours& colours, bool ticked) {
    const QRectF box = area.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours.edge);
    painter.setBrush(colours.fill);
    painter.drawRoundedRect(box, 2, 2);
    if (!ticked) return;
    painter.setPen(
        QPen(colours.tick, std::max(1.5, box.width() / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.74), at(0.8, 0.26)});
}

} // namespace

void CheckPictures::Paint(QPainter& painter, const QRect& box, const CheckColours& colours, bool ticked) {
    const double scale = painter.device()->devicePixelRatioF();
    // At other scales a box can begin inside a pixel, where a picture would be moved.
    if (scale == std::floor(scale)) {
        painter.drawPixmap(box.topLeft(), PictureOf({box.size(), static_cast<int>(scale), colours, ticked}));
        return;
    }
    painter.save();
    Draw(painter, box, colours, ticked);
    painter.restore();
}

const QPixmap& CheckPictures::PictureOf(const Look& look) {
    const auto known = std::ranges::find(pictures_, look, &Picture::look);
    if (known != pictures_.end()) return known->pixels;
    if (pictures_.size() == kMost) pictures_.clear();
    QPixmap pixels(look.size * look.scale);
    pixels.setDevicePixelRatio(look.scale);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    Draw(painter, QRectF(QPointF(), look.size), look.colours, look.ticked);
    painter.end();
    pictures_.push_back({look, pixels});
    return pictures_.back().pixels;
}

} // namespace korvane
