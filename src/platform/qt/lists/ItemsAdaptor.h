#pragma once

#include "platform/qt/base/ControlAdaptor.h"

#include <QAbstractItemView>
#include <QScopedValueRollback>

class QHelpEvent;

namespace korvane {

/// The base of the adaptors of lists and trees. What the program changes is held back, however often it does
/// so, until the event loop turns or anything happens to the view.
class ItemsAdaptor : public ControlAdaptor {
protected:
    ItemsAdaptor(Control& control, QAbstractItemView& view);

    /// What is held back comes to the view when it is due.
    void HoldBack();
    /// Something is to be scrolled to once the view can be seen.
    void HoldScroll() { scrollHeldBack_ = true; }
    /// Brings what is held back to the view.
    virtual void WriteHeldBack() = 0;
    virtual void ScrollToWanted() = 0;
    void Flush();
    /// Does what may make another row the current one. By itself the view would scroll to that row.
    template <class Work>
    void WithoutScrolling(const Work& work) {
        const bool scrolls = view_.hasAutoScroll();
        view_.setAutoScroll(false);
        work();
        view_.setAutoScroll(scrolls);
    }

    /// Whether a signal of the view comes from the user.
    bool ByUser() const { return !writing_ && !overtaken_ && Attached(); }
    /// As long as the result lives, what the view signals isn't the user's.
    [[nodiscard]] QScopedValueRollback<bool> Writing() { return QScopedValueRollback(writing_, true); }
    /// As long as the result lives, what the user did is brought to the control.
    [[nodiscard]] QScopedValueRollback<bool> ReadingUser() { return QScopedValueRollback(reading_, true); }
    bool Reading() const { return reading_; }
    /// Rows came or went. When a handler did that, the view doesn't show any more what the user did, and
    /// nothing further of it counts.
    void Overtake() { overtaken_ = overtaken_ || reading_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Shows the whole text of the cell under the mouse if it is cut off.
    bool ShowCutText(const QHelpEvent& help) const;

    QAbstractItemView& view_;
    bool viewGoes_ = false;
    bool heldBack_ = false;
    bool scrollHeldBack_ = false;
    bool writing_ = false;
    bool reading_ = false;
    bool overtaken_ = false;
};

} // namespace korvane
