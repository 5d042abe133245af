#include "platform/qt/services/QtScreen.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Palettes.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace korvane {

namespace {

/// A user doesn't notice a wait of this length, and the work loses little time.
constexpr int kMillisecondsBetweenYields = 20;

} // namespace

Rect QtScreen::WorkArea() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return {};
    const QRect area = screen->availableGeometry();
    return {ToTwips(area.left()), ToTwips(area.top()), ToTwips(area.width()), ToTwips(area.height())};
}

bool QtScreen::IsDark() const {
    return korvane::IsDark(QGuiApplication::palette());
}

void QtScreen::SetPointer(Pointer pointer) {
    if (pointer == pointer_) return;
    if (pointer_ != Pointer::Default) QGuiApplication::restoreOverrideCursor();
    pointer_ = pointer;
    if (pointer != Pointer::Default) QGuiApplication::setOverrideCursor(QCursor(ShapeOf(pointer)));
}

void QtScreen::ProcessMessages() {
    QCoreApplication::processEvents();
}

void QtScreen::Yield() {
    if (sinceYield_.isValid() && sinceYield_.elapsed() < kMillisecondsBetweenYields) return;
    ProcessMessages();
    sinceYield_.start();
}

} // namespace korvane
