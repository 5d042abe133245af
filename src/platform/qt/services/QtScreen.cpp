#include "platform/qt/services/QtScreen.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/Palettes.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace korvane {

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

} // namespace korvane
