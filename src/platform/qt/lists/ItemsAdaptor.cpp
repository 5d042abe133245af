#include "platform/qt/lists/ItemsAdaptor.h"

#include <utility>

namespace korvane {

ItemsAdaptor::ItemsAdaptor(Control& control, QAbstractItemView& view)
    : ControlAdaptor(control, view), view_(view) {
    view.viewport()->installEventFilter(this);
    // While a view is destroyed, Qt still sends events of it, and only the base class is left to take them.
    connect(&view, &QObject::destroyed, this, [this] { viewGoes_ = true; });
}

void ItemsAdaptor::HoldBack() {
    if (std::exchange(heldBack_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { Flush(); }, Qt::QueuedConnection);
}

void ItemsAdaptor::Flush() {
    if (viewGoes_ || writing_ || !Attached()) return;
    const auto guard = Writing();
    if (std::exchange(heldBack_, false)) {
        overtaken_ = false;
        WithoutScrolling([this] { WriteHeldBack(); });
    }
    if (!scrollHeldBack_ || !view_.isVisible()) return;
    scrollHeldBack_ = false;
    ScrollToWanted();
}

bool ItemsAdaptor::eventFilter(QObject* watched, QEvent* event) {
    Flush();
    return watched == &view_ && ControlAdaptor::eventFilter(watched, event);
}

} // namespace korvane
