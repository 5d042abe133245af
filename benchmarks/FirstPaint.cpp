#include "FirstPaint.h"

#include "Moment.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace korvane::bench {

namespace {

void End() {
    std::printf("%lld\n", static_cast<long long>(NanosecondsNow()));
    std::fflush(stdout);
    // The process ends without any clean-up, which isn't part of the measurement.
    _exit(0);
}

} // namespace

EndAtFirstPaint::EndAtFirstPaint(std::function<bool(const QWidget&)> isWatched)
    : isWatched_(std::move(isWatched)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool EndAtFirstPaint::eventFilter(QObject* receiver, QEvent* event) {
    const auto* widget = qobject_cast<const QWidget*>(receiver);
    if (event->type() == QEvent::Paint && widget != nullptr && isWatched_(*widget)) {
        QCoreApplication::instance()->removeEventFilter(this);
        // Qt paints and shows the whole window before the timer fires.
        QTimer::singleShot(0, &End);
    }
    return false;
}

} // namespace korvane::bench
