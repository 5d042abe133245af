#pragma once

#include <QAccessible>

namespace korvane {

/// Knows whether a screen reader or its like listens.
class ReaderWatch final : private QAccessible::ActivationObserver {
public:
    ReaderWatch() : listening_(QAccessible::isActive()) { QAccessible::installActivationObserver(this); }
    ReaderWatch(const ReaderWatch&) = delete;
    ReaderWatch& operator=(const ReaderWatch&) = delete;
    ~ReaderWatch() override { QAccessible::removeActivationObserver(this); }

    bool Listening() const { return listening_; }

private:
    void accessibilityActiveChanged(bool active) override { listening_ = active; }

    bool listening_;
};

} // namespace korvane
