#include "platform/qt/look/Icons.h"

#include "platform/qt/look/DrawSvg.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/look/ReadyIcons.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QToolButton>
#include <QWidget>

namespace korvane {

namespace {

/// What the accent becomes in a dark window.
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

/// Few sizes of few icons are ready, and the others are drawn.
QImage Draw(const QString& path, const QSize& size, const Tints& tints) {
    const QImage ready = DrawReadyIcon(QFileInfo(path).baseName(), size, QColor(tints.stroke.constData()),
                                       QColor(tints.accent.constData()));
    if (!ready.isNull()) return ready;
    QFile file(path);
    QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return DrawSvg(svg.replace(kStroke, tints.stroke).replace(kAccent, tints.accent), size);
}

/// It reads its file when it is drawn for the first time, and most windows find it drawn already.
class TintedEngine : public QIconEngine {
public:
    /// With an invalid colour the icon takes its colours from the palette.
    TintedEngine(QString path, const QColor& colour) : path_(std::move(path)), colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        // A list asks for the same again in each row.
        const qint64 colours = QGuiApplication::palette().cacheKey();
        if (last_.pixmap.isNull() || last_.size != size || last_.mode != mode || last_.colours != colours)
            last_ = {size, mode, colours, Drawn(size, mode)};
        return last_.pixmap;
    }

    QIconEngine* clone() const override { return new TintedEngine(path_, colour_); }
    // It is only made for a file that is there.
    bool isNull() override { return false; }

private:
    struct Last {
        QSize size;
        QIcon::Mode mode = QIcon::Normal;
        qint64 colours = 0;
        QPixmap pixmap;
    };

    QPixmap Drawn(const QSize& size, QIcon::Mode mode) const {
        const QByteArray own = colour_.name().toLatin1();
        const Tints tints = colour_.isValid() ? Tints{own, own} : PaletteTints(mode);
        const QString key = QStringLiteral("tinted/%1/%2x%3/%4/%5")
                                .arg(path_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(QLatin1String(tints.stroke), QLatin1String(tints.accent));
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap)) return pixmap;
        pixmap = QPixmap::fromImage(Draw(path_, size, tints));
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QString path_;
    QColor colour_;
    Last last_;
};

/// The icon has the name of the part unless the window's look names another one.
QString IconName(const QObject& part) {
    const QString other = part.property("iconName").toString();
    return other.isEmpty() ? part.objectName() : other;
}

template <class T>
void SetIconsOf(QWidget& window) {
    for (T* part : window.findChildren<T*>()) {
        // A look that was made ahead has its icons.
        if (!part->icon().isNull()) continue;
        const QIcon icon = TintedIcon(IconName(*part));
        if (!icon.isNull()) part->setIcon(icon);
    }
}

} // namespace

QIcon TintedIcon(const QString& name) {
    return TintedIcon(name, QColor());
}

QIcon TintedIcon(const QString& name, const QColor& colour) {
    const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
    return name.isEmpty() || !QFile::exists(path) ? QIcon() : QIcon(new TintedEngine(path, colour));
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
