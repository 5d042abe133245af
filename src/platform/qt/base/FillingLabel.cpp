#include "platform/qt/base/FillingLabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace korvane {

namespace {

/// The size in pixels at which a text is measured.
constexpr int kMeasuredAt = 100;

QString WithEqualDigits(QString text) {
    for (QChar& letter : text) {
        if (letter.isDigit()) letter = QLatin1Char('0');
    }
    return text;
}

} // namespace

FillingLabel::FillingLabel(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QFont FillingLabel::FillingFont() const {
    QFont filling = font();
    filling.setPixelSize(kMeasuredAt);
    const QFontMetricsF measure(filling);
    const QRectF room = contentsRect();
    const qreal across = room.width() / std::max(1.0, measure.horizontalAdvance(WithEqualDigits(text())));
    const qreal down = room.height() / measure.height();
    filling.setPixelSize(std::max(1, static_cast<int>(kMeasuredAt * std::min(across, down))));
    return filling;
}

void FillingLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(FillingFont());
    painter.drawText(contentsRect(), Qt::AlignCenter | Qt::TextDontClip, text());
}

} // namespace korvane
