#include "platform/qt/services/QtFrontWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace korvane {

void QtFrontWindow::PressDown() {
    QWidget* const widget = QApplication::focusWidget();
    if (widget == nullptr) return;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(widget, new QKeyEvent(type, Qt::Key_Down, Qt::NoModifier));
}

} // namespace korvane
