#include "platform/qt/base/Icons.h"

#include "platform/qt/base/DrawSvg.h"
#include "platform/qt/base/Palettes.h"

#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QToolButton>
#include <QWidget>

namespace korvane {

namespace {

// The two colours in which the icons are drawn, and what the second one becomes in a dark window.
constexpr auto kStroke = "#3c4650";
constexpr auto kAccent = "#2f74c0";
constexpr auto kAccentOnDark = "#6fb1f5";

struct Tints {
    QByteArray stroke;
    QByteArray accent;
};

Tints PaletteTints(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected) {
        // The icon is in a chosen line of a list.
        const QByteArray chosen = palette.color(QPalette::HighlightedText).name().toLatin1();
        return {chosen, chosen};
    }
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QByteArray text = palette.color(group, QPalette::ButtonText).name().toLatin1();
    if (mode == QIcon::Disabled) return {text, text};
    return IsDark(palette) ? Tints{text, kAccentOnDark} : Tints{kStroke, kAccent};
}

QPixmap Draw(QByteArray svg, const QSize& size, const Tints& tints) {
    return DrawSvg(svg.replace(kStroke, tints.stroke).replace(kAccent, tints.accent), size);
}

class TintedEngine : public QIconEngine {
public:
    /// With an invalid colour the icon takes its colours from the palette.
    TintedEngine(QByteArray svg, const QColor& colour) : svg_(std::move(svg)), colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QByteArray own = colour_.name().toLatin1();
        const Tints tints = colour_.isValid() ? Tints{own, own} : PaletteTints(mode);
        const QString key = QStringLiteral("tinted/%1/%2x%3/%4/%5")
                                .arg(qHash(svg_))
                                .arg(size.width())
                                .arg(size.height())
                                .arg(QLatin1String(tints.stroke), QLatin1String(tints.accent));
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap)) return pixmap;
        pixmap = Draw(svg_, size, tints);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine* clone() const override { return new TintedEngine(svg_, colour_); }
    bool isNull() override { return svg_.isEmpty(); }

private:
    QByteArray svg_;
    QColor colour_;
};

/// The icon has the name of the part unless the window's look names another one.
QString IconName(const QObject& part) {
    const QString other = part.property("iconName").toString();
    return other.isEmpty() ? part.objectName() : other;
}

template <class T>
void SetIconsOf(QWidget& window) {
    for (T* part : window.findChildren<T*>()) {
        const QIcon icon = TintedIcon(IconName(*part));
        if (!icon.isNull()) part->setIcon(icon);
    }
}

} // namespace

QIcon TintedIcon(const QString& name) {
    return TintedIcon(name, QColor());
}

QIcon TintedIcon(const QString& name, const QColor& colour) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new TintedEngine(file.readAll(), colour));
}

QIcon IconFromFile(const QString& path, const QString& otherwise) {
    const QPixmap picture(path);
    return picture.isNull() ? TintedIcon(otherwise) : QIcon(picture);
}

void SetIcons(QWidget& window) {
    SetIconsOf<QAction>(window);
    SetIconsOf<QToolButton>(window);
}

} // namespace korvane
