#pragma once

#include <QObject>

class QWidget;

namespace korvane::bench {

/// Runs the events that are waiting, and those that they lead to.
void Settle();

/// Deletes the windows that were closed, which otherwise waits for the end of the program's event loop.
void DeleteClosed();

/// Watches a window that was shown for its first paint. A window whose paint isn't waited for takes nearly no
/// time, so both sides of a comparison are measured until this has ended.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& window);

    /// Runs the event loop until the window has been painted and nothing else is waiting.
    void Wait();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
    bool painted_ = false;
};

} // namespace korvane::bench
