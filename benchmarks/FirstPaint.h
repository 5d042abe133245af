#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace korvane::bench {

/// Ends the process as soon as a widget has been painted and what was painted has been handed to the screen,
/// and prints at which moment that was.
class EndAtFirstPaint final : public QObject {
public:
    /// `isWatched` picks the widget.
    explicit EndAtFirstPaint(std::function<bool(const QWidget&)> isWatched);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    std::function<bool(const QWidget&)> isWatched_;
};

} // namespace korvane::bench
