#include "platform/qt/lists/ItemsAdaptor.h"

#include "platform/qt/base/Convert.h"

#include <QHelpEvent>
#include <QToolTip>
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
    if (watched == &view_) return ControlAdaptor::eventFilter(watched, event);
    return event->type() == QEvent::ToolTip && ShowCutText(*static_cast<QHelpEvent*>(event));
}

bool ItemsAdaptor::ShowCutText(const QHelpEvent& help) const {
    const QModelIndex index = view_.indexAt(help.pos());
    const QRect cell = view_.visualRect(index);
    const int seen = (cell & view_.viewport()->rect()).width();
    if (!index.isValid() || view_.sizeHintForIndex(index).width() <= seen) return false;
    const Text text = ToText(index.data().toString());
    QToolTip::showText(help.globalPos(), PlainToolTip(text), view_.viewport(), cell);
    return true;
}

} // namespace korvane
