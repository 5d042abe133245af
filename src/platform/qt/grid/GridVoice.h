#pragma once

#include "platform/qt/base/Ears.h"

#include <QObject>

namespace korvane {

class GridView;

/// Tells screen readers what happens in a grid. A command may go to several cells before it comes to the one
/// it wants, so only the last one is told, once, when the event loop turns. While nobody listens nothing is
/// done.
class GridVoice : public QObject {
public:
    explicit GridVoice(GridView& view);

    /// The ears outlive the object, which has usual ones until then.
    void SetEars(Ears& ears) { ears_ = &ears; }

    /// The current cell is another one, or the keyboard has come to the grid.
    void CellReached();
    /// Texts or check boxes have changed.
    void CellsChanged();

private:
    void Send(QAccessibleEvent&& event, int row, int column);
    void Hold();
    void Tell();
    void TellTick(const QModelIndex& current);
    void TellElsewhere(const QModelIndex& current);

    GridView& view_;
    Ears usualEars_;
    Ears* ears_ = &usualEars_;
    bool held_ = false;
    bool reached_ = false;
    /// What was told last.
    int row_ = -1;
    bool ticked_ = false;
};

} // namespace korvane
