#include "PaintWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace korvane::bench {

void Settle() {
    // What an event leads to may ask for a paint of its own.
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

void DeleteClosed() {
    Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

PaintWatch::PaintWatch(QWidget& window) : window_(window) {
    window.installEventFilter(this);
}

void PaintWatch::Wait() {
    while (!painted_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Settle();
}

bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
    painted_ = painted_ || (watched == &window_ && event->type() == QEvent::Paint);
    return false;
}

} // namespace korvane::bench
