#include "platform/qt/binder/KeyHold.h"

#include <QCoreApplication>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace korvane {

void KeyHold::Begin() {
    holds_ = true;
    // Keys come to the window of the window system first, and from there to the control that has the
    // keyboard.
    if (QWindow* const handle = window_.windowHandle()) handle->installEventFilter(this);
}

void KeyHold::End() {
    holds_ = false;
    for (auto& key : std::exchange(kept_, {}))
        if (QWindow* const handle = window_.windowHandle())
            QCoreApplication::postEvent(handle, key.release());
}

bool KeyHold::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!holds_ || !isKey) return false;
    kept_.emplace_back(static_cast<QKeyEvent*>(event)->clone());
    return true;
}

} // namespace korvane
