#include "platform/qt/base/DialogParent.h"

#include <QApplication>
#include <QWidget>

namespace korvane {

namespace {

/// Qt deletes such a window as soon as it has closed, and a dialog with it.
bool IsPassing(const QWidget& window) {
    return window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip;
}

} // namespace

QWidget* DialogParent() {
    QWidget* window = QApplication::activeWindow();
    while (window != nullptr && IsPassing(*window))
        window = window->parentWidget() == nullptr ? nullptr : window->parentWidget()->window();
    return window;
}

} // namespace korvane
