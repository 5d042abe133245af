#include "platform/qt/binder/DeskCover.h"

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace korvane {

namespace {

constexpr auto kAboveAll = Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

QList<QRect> OtherScreens() {
    QList<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen != QGuiApplication::primaryScreen()) places << screen->availableGeometry();
    }
    return places;
}

} // namespace

DeskCover::DeskCover(QWidget& window) : QObject(&window), window_(window) {
    window.setWindowFlags(window.windowFlags() | kAboveAll);
    // Without a move Qt would put a dialog at the corner of the screen into the middle.
    window.move(window.pos());
    window.installEventFilter(this);
    FollowScreens();
}

DeskCover::~DeskCover() = default;

void DeskCover::FollowScreens() {
    const auto changed = [this] {
        if (const QScreen* primary = QGuiApplication::primaryScreen())
            window_.setGeometry(primary->availableGeometry());
        if (window_.isVisible()) CoverOtherScreens();
    };
    const auto follow = [this, changed](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, changed);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, changed);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, changed);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, changed);
}

void DeskCover::CoverOtherScreens() {
    Cover(OtherScreens());
}

void DeskCover::Cover(const QList<QRect>& places) {
    covers_.clear();
    for (const QRect& place : places) {
        // A cover is a child of the window, so it isn't blocked while the window is modal.
        auto cover = std::make_unique<QWidget>(&window_, Qt::Tool | kAboveAll);
        cover->setPalette(Qt::black);
        cover->setGeometry(place);
        cover->setAttribute(Qt::WA_ShowWithoutActivating);
        cover->installEventFilter(this);
        cover->show();
        covers_.push_back(std::move(cover));
    }
}

bool DeskCover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_) {
        OfWindow(*event);
    } else {
        OfCover(*event);
    }
    return QObject::eventFilter(watched, event);
}

void DeskCover::OfWindow(const QEvent& event) {
    switch (event.type()) {
    case QEvent::Show:
        CoverOtherScreens();
        window_.grabKeyboard();
        break;
    case QEvent::Hide:
        window_.releaseKeyboard();
        covers_.clear();
        break;
    case QEvent::WindowBlocked:
        // A question above the window needs the keyboard.
        window_.releaseKeyboard();
        break;
    case QEvent::WindowUnblocked:
        if (window_.isVisible()) window_.grabKeyboard();
        break;
    case QEvent::ZOrderChange:
        for (const auto& cover : covers_)
            cover->raise();
        break;
    case QEvent::WindowDeactivate:
        QMetaObject::invokeMethod(this, &DeskCover::StayAbove, Qt::QueuedConnection);
        break;
    default:
        break;
    }
}

void DeskCover::OfCover(QEvent& event) {
    const bool asks = event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::KeyPress;
    if (asks) QCoreApplication::sendEvent(&window_, &event);
}

/// Takes the place in front back from a window of another program, but not from a question of this one.
void DeskCover::StayAbove() {
    if (!window_.isVisible() || QApplication::activeModalWidget() != &window_) return;
    window_.raise();
    window_.activateWindow();
}

} // namespace korvane
