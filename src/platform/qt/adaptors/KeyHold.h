#pragma once

#include <QKeyEvent>
#include <QObject>
#include <memory>
#include <vector>

class QWidget;

namespace korvane {

/// Keeps the keys that come to a window while it isn't ready for them, so that none goes to the wrong
/// control. A button that has got the keyboard meanwhile gets its own keys at once: what the window is busy
/// with can be stopped by it.
class KeyHold final : public QObject {
public:
    /// The window must outlive this object.
    explicit KeyHold(QWidget& window) : window_(window) {}

    /// From now on keys are kept. Only once the window has been shown.
    void Begin();
    /// Gives the keys that were kept to the window, in their order, before any other key comes.
    void End();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Stops(const QKeyEvent& key) const;
    bool Holds(const QKeyEvent& key) const;

    QWidget& window_;
    bool holds_ = false;
    /// What had the keyboard at the beginning, only to compare.
    const QWidget* focusedBefore_ = nullptr;
    std::vector<std::unique_ptr<QKeyEvent>> kept_;
};

} // namespace korvane
