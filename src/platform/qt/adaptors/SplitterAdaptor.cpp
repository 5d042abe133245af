#include "platform/qt/adaptors/SplitterAdaptor.h"

#include <QEvent>
#include <algorithm>

namespace korvane {

SplitterAdaptor::SplitterAdaptor(Splitter& splitter, QSplitter& widget) : AdaptorOf(splitter, widget) {
    widget.setChildrenCollapsible(false);
    // So the parts have their widths at the first layout already, whatever the window's width is.
    widget.setStretchFactor(1, 1);
    connect(&widget, &QSplitter::splitterMoved, this, [this](int position) { control_.DragTo(position); });
}

void SplitterAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Value) WritePosition();
    AdaptorOf::Write(aspect);
}

void SplitterAdaptor::WritePosition() {
    const int left = control_.Position;
    // Until the window has been laid out, its width isn't known. What the left part doesn't take is the other
    // one's.
    if (left > 0 && widget_.sizes().value(0) != left)
        widget_.setSizes({left, std::max(widget_.width() - left - widget_.handleWidth(), 1)});
}

bool SplitterAdaptor::eventFilter(QObject* watched, QEvent* event) {
    const bool passed = AdaptorOf::eventFilter(watched, event);
    if (event->type() == QEvent::Resize && Attached()) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (Attached()) WritePosition();
            },
            Qt::QueuedConnection);
    }
    return passed;
}

} // namespace korvane
