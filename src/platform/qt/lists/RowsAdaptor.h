#pragma once

#include "controls/lists/RowsControl.h"
#include "platform/qt/lists/ItemsAdaptor.h"
#include "platform/qt/lists/RowsModel.h"

#include <QItemSelection>
#include <utility>
#include <vector>

namespace korvane {

/// The base of the adaptors of controls with rows. Rows count from 0; -1 is none.
class RowsAdaptor : public ItemsAdaptor, private RowListener {
public:
    ~RowsAdaptor() override;

protected:
    /// The model belongs to the view.
    RowsAdaptor(RowsControl& control, QAbstractItemView& view, RowsModel& model);

    // What the kind of control makes of rows, and what the user does to it.

    virtual int CurrentRow() const = 0;
    /// The column in which the user types.
    virtual int CurrentColumn() const { return 0; }
    virtual bool Picked(int row) const = 0;
    /// True only if that is known without a look at each row.
    virtual bool NonePicked() const { return false; }
    virtual void Pick(int row, bool picked) = 0;
    virtual void GoTo(int row) = 0;
    virtual void DoubleClick(int row) = 0;

    void Write(Aspect aspect) override;
    void Deafen() override;
    void LetGo() override { rows_.SetRowListener(nullptr); }
    void WriteHeldBack() override;
    void ScrollToWanted() override;

private:
    /// What became of the rows since the view heard of it last. More than one run of new rows, or of rows
    /// that went, is a reset: the view lays out all rows again for the one as for the other.
    struct Change {
        enum class Kind { None, Inserted, Removed, Reset } kind = Kind::None;
        int first = 0;
        int last = 0;
    };

    void RowsReset() override;
    void RowsInserted(int first, int last) override;
    void RowsRemoved(int first, int last) override;
    void RowsChanged(int first, int last) override;
    void PicksChanged() override { HoldBack(); }
    void CurrentChanged() override { HoldBack(); }
    void RowWantedInView() override;

    void HoldChange(const Change& change);
    void WriteChange();
    void WriteTexts();
    void WritePicks();
    void WriteCurrent();
    /// The first and the last of them.
    std::pair<int, int> RowsInView() const;
    QItemSelection PickedRanges() const;
    /// For each row whether the view shows it as picked.
    std::vector<bool> ShownPicks() const;
    void ReadCurrent(int row);
    void ReadPicks();

    RowsControl& rows_;
    QAbstractItemView& view_;
    RowsModel& model_;
    Change change_;
    /// The rows of which the texts changed since then; none while the last of them is -1.
    int firstChanged_ = 0;
    int lastChanged_ = -1;
};

} // namespace korvane
