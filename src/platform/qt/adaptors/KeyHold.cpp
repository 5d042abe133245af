#include "platform/qt/adaptors/KeyHold.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace korvane {

namespace {

/// Whether the key types something or moves to another place.
bool Types(const QKeyEvent& key) {
    const bool moves = key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown;
    return (moves || !key.text().isEmpty()) &&
           (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

} // namespace

void KeyHold::Begin() {
    if (!holds_) focusedBefore_ = window_.focusWidget();
    holds_ = true;
    // Keys come to the window of the window system first, and from there to the control that has the
    // keyboard.
    if (QWindow* const handle = window_.windowHandle()) handle->installEventFilter(this);
}

void KeyHold::End() {
    holds_ = false;
    // A key may close the window, and this object with it.
    const QPointer<QWidget> window(&window_);
    for (const auto& key : std::exchange(kept_, {}))
        if (window && window->windowHandle() != nullptr)
            QCoreApplication::sendEvent(window->windowHandle(), key.get());
}

bool KeyHold::Stops(const QKeyEvent& key) const {
    const QWidget* const focused = window_.focusWidget();
    if (focused == focusedBefore_ || qobject_cast<const QAbstractButton*>(focused) == nullptr) return false;
    // A blank may also belong to a text that is kept.
    return key.key() == Qt::Key_Escape || (key.key() == Qt::Key_Space && kept_.empty());
}

bool KeyHold::Holds(const QKeyEvent& key) const {
    // A key that starts a command may have opened a menu by now, and its own press or release would close
    // that again.
    if (!holds_ || QApplication::activePopupWidget() != nullptr || Stops(key)) return false;
    // A key that overtook a kept one could go to another cell before the text is typed, or save the table
    // without it.
    return Types(key) || !kept_.empty();
}

bool KeyHold::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool asked = event->type() == QEvent::ShortcutOverride;
    if (!asked && event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!Holds(key)) return false;
    // Qt looks for a shortcut before the key is pressed, and does so again when the key is given back.
    if (asked)
        event->accept();
    else
        kept_.emplace_back(key.clone());
    return true;
}

} // namespace korvane
