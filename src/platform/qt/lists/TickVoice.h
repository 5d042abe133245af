#pragma once

#include "platform/qt/base/Ears.h"

#include <QAbstractItemView>

namespace korvane {

/// Tells screen readers when the check box of a list's current row changes, which the views of Qt don't. It
/// belongs to the view.
class TickVoice : public QObject {
    Q_OBJECT

public:
    /// The view has its model already.
    explicit TickVoice(QAbstractItemView& view);

    /// The ears outlive the object, which has usual ones until then.
    void SetEars(Ears& ears) { ears_ = &ears; }

private:
    void RowReached(const QModelIndex& current);
    void TextsChanged();
    void Tell(const QModelIndex& row);

    QAbstractItemView& view_;
    Ears usualEars_;
    Ears* ears_ = &usualEars_;
    /// What the check box of the current row was when it was told, or when the row was reached.
    QPersistentModelIndex row_;
    bool ticked_ = false;
};

} // namespace korvane
