#pragma once

#include "controls/Control.h"

#include <optional>

namespace korvane {

/// What the view of a control with rows hears, each time after it has happened. Rows count from 0.
class RowListener {
public:
    virtual ~RowListener() = default;

    /// Everything may have changed, so the view reads it again.
    virtual void RowsReset() = 0;
    virtual void RowsInserted(int first, int last) = 0;
    virtual void RowsRemoved(int first, int last) = 0;
    /// Texts, pictures or check marks of the rows that were there before.
    virtual void RowsChanged(int first, int last) = 0;
    virtual void PicksChanged() = 0;
    virtual void CurrentChanged() = 0;
    /// The program wants the user to see the row of `TakeWantedRow`.
    virtual void RowWantedInView() = 0;
};

/// A control that holds rows. Its view follows each of them; of what changes during an update it hears once,
/// at the end.
class RowsControl : public Control {
public:
    using Control::Control;

    /// At most one; nullptr takes it away. The caller owns it.
    void SetRowListener(RowListener* listener) { listener_ = listener; }
    /// Where the row is by now that was last wanted in view; nullopt when there is none, or it was taken.
    std::optional<int> TakeWantedRow();

    /// Updates nest. `UpdateScope` ends them whatever happens.
    void BeginUpdate() { ++depth_; }
    void EndUpdate();

protected:
    void TellReset();
    void TellInserted(int first, int last);
    void TellRemoved(int first, int last);
    void TellChanged(int first, int last);
    void TellPicks();
    /// The new current row is wanted in view, too; -1 when there is none.
    void TellCurrent(int row);
    void TellWanted(int row);

private:
    /// Whether the listener is told now; during an update it is noted that something was kept back.
    bool Hears();

    RowListener* listener_ = nullptr;
    int depth_ = 0;
    bool keptBack_ = false;
    std::optional<int> wanted_;
};

} // namespace korvane
