#include "platform/qt/look/SvgPath.h"

#include <QByteArray>
#include <QPointF>
#include <QtMath>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

namespace korvane {

namespace {

/// Where an arc of an ellipse is. Angles are in radians, with the clock, from three o'clock.
struct ArcPlace {
    QPointF centre;
    QPointF radii;
    double from;
    double length;

    QPointF Turned(double x, double y) const { return {x * radii.x(), y * radii.y()}; }
    QPointF At(double angle) const { return centre + Turned(std::cos(angle), std::sin(angle)); }
    /// The way that the arc goes there, for one radian.
    QPointF Way(double angle) const { return Turned(-std::sin(angle), std::cos(angle)); }
    double AngleOf(const QPointF& point) const {
        return std::atan2((point.y() - centre.y()) / radii.y(), (point.x() - centre.x()) / radii.x());
    }
};

/// Of the two ellipses through both points, and their two parts, the one that the flags name.
ArcPlace FindArc(const QPointF& from, const QPointF& to, QPointF radii, bool large, bool clockwise) {
    // In units of the radii the ellipses are circles, and the middle of the line between the points sees
    // their centres at right angles.
    const QPointF half((to.x() - from.x()) / 2 / radii.x(), (to.y() - from.y()) / 2 / radii.y());
    const double distance = std::hypot(half.x(), half.y());
    // Radii that don't reach grow until they do.
    if (distance > 1) radii *= distance;
    const double aside = distance > 1 ? 0 : std::sqrt(1 / (distance * distance) - 1);
    const double side = large == clockwise ? -aside : aside;
    ArcPlace arc{(from + to) / 2, radii, 0, 0};
    arc.centre += arc.Turned(-half.y() * side, half.x() * side);
    arc.from = arc.AngleOf(from);
    arc.length = arc.AngleOf(to) - arc.from;
    if (clockwise && arc.length < 0) arc.length += 2 * M_PI;
    if (!clockwise && arc.length > 0) arc.length -= 2 * M_PI;
    return arc;
}

/// A curve is close to an arc that is no longer than a quarter.
void AddArc(QPainterPath& path, const ArcPlace& arc, const QPointF& to) {
    const int count = std::max(1, static_cast<int>(std::ceil(std::abs(arc.length) / M_PI_2 - 1e-9)));
    const double step = arc.length / count;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    for (int i = 0; i < count; ++i) {
        const double begin = arc.from + i * step;
        const double end = begin + step;
        path.cubicTo(arc.At(begin) + reach * arc.Way(begin), arc.At(end) - reach * arc.Way(end),
                     i + 1 == count ? to : arc.At(end));
    }
}

class Reader {
public:
    explicit Reader(std::string_view steps) : rest_(steps) {}

    QPainterPath Read() {
        while (const auto letter = NextLetter())
            if (!Step(*letter)) break;
        return path_;
    }

private:
    std::optional<char> NextLetter() {
        SkipBlanks();
        if (rest_.empty()) return std::nullopt;
        if (std::isalpha(static_cast<unsigned char>(rest_.front())) == 0) return Following(last_);
        last_ = rest_.front();
        rest_.remove_prefix(1);
        return last_;
    }
    /// The step that further numbers after a step mean.
    static std::optional<char> Following(char letter) {
        if (letter == 'M') return 'L';
        if (letter == 'm') return 'l';
        if (letter == 'Z' || letter == 'z' || letter == 0) return std::nullopt;
        return letter;
    }

    bool Step(char letter) {
        const QPointF here = path_.currentPosition();
        const QPointF origin = letter >= 'a' ? here : QPointF();
        const QPointF bend = std::exchange(bend_, std::nullopt).value_or(here);
        switch (letter & ~0x20) {
        case 'M':
            path_.moveTo(Point(origin));
            break;
        case 'L':
            path_.lineTo(Point(origin));
            break;
        case 'H':
            path_.lineTo(origin.x() + Number(), here.y());
            break;
        case 'V':
            path_.lineTo(here.x(), origin.y() + Number());
            break;
        case 'C':
            Curve(Point(origin), origin);
            break;
        case 'S':
            Curve(2 * here - bend, origin);
            break;
        case 'A':
            Arc(here, origin);
            break;
        case 'Z':
            path_.closeSubpath();
            break;
        default:
            return false;
        }
        return !failed_;
    }

    void Curve(const QPointF& first, const QPointF& origin) {
        const QPointF second = Point(origin);
        path_.cubicTo(first, second, Point(origin));
        bend_ = second;
    }

    void Arc(const QPointF& here, const QPointF& origin) {
        const QPointF radii = Point({});
        Number();
        const bool large = Flag();
        const bool clockwise = Flag();
        const QPointF to = Point(origin);
        if (failed_ || to == here) return;
        AddArc(path_, FindArc(here, to, radii, large, clockwise), to);
    }

    QPointF Point(const QPointF& origin) {
        const double x = Number();
        return origin + QPointF(x, Number());
    }

    double Number() {
        SkipBlanks();
        double number = 0;
        const auto [end, fault] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
        failed_ = failed_ || fault != std::errc();
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return number;
    }

    /// A flag is one digit, and no blank has to follow it.
    bool Flag() {
        SkipBlanks();
        failed_ = failed_ || rest_.empty();
        const bool set = rest_.starts_with('1');
        rest_.remove_prefix(std::min<std::size_t>(rest_.size(), 1));
        return set;
    }

    void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" ,\t\r\n"), rest_.size())); }

    std::string_view rest_;
    QPainterPath path_;
    char last_ = 0;
    /// The point towards which the last curve came in.
    std::optional<QPointF> bend_;
    bool failed_ = false;
};

} // namespace

QPainterPath SvgPath(const QString& steps) {
    const QByteArray bytes = steps.toLatin1();
    return Reader({bytes.data(), static_cast<std::size_t>(bytes.size())}).Read();
}

} // namespace korvane
