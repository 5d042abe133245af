#include "platform/qt/look/DrawSvg.h"

#include "platform/qt/look/SvgPath.h"

#include <QBrush>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QStringList>
#include <QXmlStreamReader>
#include <vector>

namespace korvane {

namespace {

/// How shapes are drawn. A group hands on what it says to all in it.
using Look = QHash<QString, QString>;

Look With(Look look, const QXmlStreamAttributes& attributes) {
    for (const QXmlStreamAttribute& attribute : attributes)
        look.insert(attribute.name().toString(), attribute.value().toString());
    return look;
}

double Number(const QXmlStreamAttributes& attributes, const char* name) {
    return attributes.value(QLatin1String(name)).toDouble();
}

QPainterPath Circle(const QXmlStreamAttributes& attributes) {
    const double radius = Number(attributes, "r");
    QPainterPath path;
    path.addEllipse(QPointF(Number(attributes, "cx"), Number(attributes, "cy")), radius, radius);
    return path;
}

/// A line of dashes begins where the path does: left in the upper side.
QPainterPath Rectangle(const QXmlStreamAttributes& attributes) {
    const double round = Number(attributes, "rx");
    const double across = Number(attributes, "width") - 2 * round;
    const double down = Number(attributes, "height") - 2 * round;
    return SvgPath(QStringLiteral("M%1 %2h%3a%5 %5 0 0 1 %5 %5v%4a%5 %5 0 0 1-%5 %5h-%3a%5 %5 0 0 1-%5-%5v-%4"
                                  "a%5 %5 0 0 1 %5-%5z")
                       .arg(Number(attributes, "x") + round)
                       .arg(Number(attributes, "y"))
                       .arg(across)
                       .arg(down)
                       .arg(round));
}

QPainterPath ShapeOf(QStringView element, const QXmlStreamAttributes& attributes) {
    if (element == u"path") return SvgPath(attributes.value(QLatin1String("d")).toString());
    if (element == u"circle") return Circle(attributes);
    if (element == u"rect") return Rectangle(attributes);
    return {};
}

QBrush BrushOf(const QString& colour) {
    return colour == QLatin1String("none") ? QBrush(Qt::NoBrush) : QBrush(QColor(colour));
}

QPen PenOf(const Look& look) {
    QPen pen(BrushOf(look.value(QStringLiteral("stroke"), QStringLiteral("none"))),
             look.value(QStringLiteral("stroke-width"), QStringLiteral("1")).toDouble());
    const bool round = look.value(QStringLiteral("stroke-linecap")) == QLatin1String("round");
    pen.setCapStyle(round ? Qt::RoundCap : Qt::FlatCap);
    const bool roundJoin = look.value(QStringLiteral("stroke-linejoin")) == QLatin1String("round");
    pen.setJoinStyle(roundJoin ? Qt::RoundJoin : Qt::SvgMiterJoin);
    // A pen counts dashes in its own widths.
    QList<qreal> dashes;
    for (const QString& dash :
         look.value(QStringLiteral("stroke-dasharray")).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        dashes << dash.toDouble() / pen.widthF();
    if (!dashes.isEmpty()) pen.setDashPattern(dashes);
    return pen;
}

void Draw(QPainter& painter, const QPainterPath& shape, const Look& look) {
    painter.setBrush(BrushOf(look.value(QStringLiteral("fill"), QStringLiteral("#000000"))));
    const QPen pen = PenOf(look);
    painter.setPen(pen.brush().style() == Qt::NoBrush ? QPen(Qt::NoPen) : pen);
    painter.drawPath(shape);
}

/// Makes the picture's own units fill the size.
void FitInto(QPainter& painter, const QSize& size, const QString& viewBox) {
    const QStringList box = viewBox.split(QLatin1Char(' '));
    if (box.size() != 4) return;
    painter.scale(size.width() / box[2].toDouble(), size.height() / box[3].toDouble());
    painter.translate(-box[0].toDouble(), -box[1].toDouble());
}

} // namespace

QImage DrawSvg(const QByteArray& svg, const QSize& size) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QXmlStreamReader reader(svg);
    std::vector<Look> looks(1);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement) looks.pop_back();
        if (token != QXmlStreamReader::StartElement) continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        looks.push_back(With(looks.back(), attributes));
        if (reader.name() == u"svg")
            FitInto(painter, size, attributes.value(QLatin1String("viewBox")).toString());
        else if (const QPainterPath shape = ShapeOf(reader.name(), attributes); !shape.isEmpty())
            Draw(painter, shape, looks.back());
    }
    return picture;
}

} // namespace korvane
