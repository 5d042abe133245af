#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace korvane::bench {

/// Ends the process as soon as a watched widget has been painted and shown, and prints the time.
class EndAtFirstPaint final : public QObject {
public:
    /// `isWatched` tells whether a widget is the watched one.
    explicit EndAtFirstPaint(std::function<bool(const QWidget&)> isWatched);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    std::function<bool(const QWidget&)> isWatched_;
};

} // namespace korvane::bench
