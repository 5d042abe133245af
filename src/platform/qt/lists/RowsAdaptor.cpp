#include "platform/qt/lists/RowsAdaptor.h"

#include "platform/qt/lists/TickVoice.h"

#include <algorithm>
#include <utility>

namespace korvane {

RowsAdaptor::RowsAdaptor(RowsControl& control, QAbstractItemView& view, RowsModel& model)
    : ItemsAdaptor(control, view), rows_(control), view_(view), model_(model) {
    view.setModel(&model);
    new TickVoice(view);
    control.SetRowListener(this);
    const QItemSelectionModel* const shown = view.selectionModel();
    connect(shown, &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
        if (current.isValid()) ReadCurrent(current.row());
    });
    connect(shown, &QItemSelectionModel::selectionChanged, this, [this] { ReadPicks(); });
    connect(&view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (ByUser()) DoubleClick(index.row());
    });
}

RowsAdaptor::~RowsAdaptor() {
    if (Attached()) rows_.SetRowListener(nullptr);
}

void RowsAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) RowsReset();
    if (aspect == Aspect::Selection) RowWantedInView();
    ItemsAdaptor::Write(aspect);
}

void RowsAdaptor::Deafen() {
    view_.selectionModel()->disconnect(this);
    ItemsAdaptor::Deafen();
    model_.Forget();
}

// ---- What the control tells ---------------------------------------------------------------------------

void RowsAdaptor::RowsReset() {
    HoldChange({Change::Kind::Reset});
}

void RowsAdaptor::RowsInserted(int first, int last) {
    // Most rows come one after another.
    const bool goesOn = change_.kind == Change::Kind::Inserted && first == change_.last + 1;
    if (goesOn) first = change_.first;
    if (goesOn || change_.kind == Change::Kind::None) {
        change_ = {};
        HoldChange({Change::Kind::Inserted, first, last});
    } else {
        RowsReset();
    }
}

void RowsAdaptor::RowsRemoved(int first, int last) {
    HoldChange({Change::Kind::Removed, first, last});
}

void RowsAdaptor::HoldChange(const Change& change) {
    Overtake();
    change_ = change_.kind == Change::Kind::None ? change : Change{Change::Kind::Reset};
    HoldBack();
}

void RowsAdaptor::RowsChanged(int first, int last) {
    firstChanged_ = lastChanged_ < 0 ? first : std::min(firstChanged_, first);
    lastChanged_ = std::max(lastChanged_, last);
    HoldBack();
}

void RowsAdaptor::RowWantedInView() {
    // Where it is the user who goes, the view has scrolled as users expect.
    if (Reading() && CurrentRow() == view_.currentIndex().row()) {
        rows_.TakeWantedRow();
    } else {
        HoldScroll();
        HoldBack();
    }
}

// ---- Bringing it to the view --------------------------------------------------------------------------

void RowsAdaptor::WriteHeldBack() {
    WriteChange();
    WriteTexts();
    WritePicks();
    WriteCurrent();
}

void RowsAdaptor::ScrollToWanted() {
    if (const auto row = rows_.TakeWantedRow()) view_.scrollTo(model_.index(*row, 0));
}

void RowsAdaptor::WriteChange() {
    const Change change = std::exchange(change_, {});
    if (change.kind == Change::Kind::None) return;
    if (change.kind == Change::Kind::Inserted) model_.TellInserted(change.first, change.last);
    if (change.kind == Change::Kind::Removed) model_.TellRemoved(change.first, change.last);
    if (change.kind == Change::Kind::Reset) model_.ReadRows();
    // Rows have moved, so any of them may have a text that changed.
    firstChanged_ = 0;
    if (lastChanged_ >= 0) lastChanged_ = model_.rowCount() - 1;
}

void RowsAdaptor::WriteTexts() {
    if (lastChanged_ < 0) return;
    // All rows are equally high, and the view asks for the others when they come into view.
    const auto [firstShown, lastShown] = RowsInView();
    const int first = std::max(firstChanged_, firstShown);
    const int last = std::min(std::exchange(lastChanged_, -1), lastShown);
    if (first <= last) model_.TellChanged(first, last);
}

std::pair<int, int> RowsAdaptor::RowsInView() const {
    const QRect area = view_.viewport()->rect();
    const QModelIndex top = view_.indexAt(area.topLeft());
    const QModelIndex bottom = view_.indexAt(area.bottomLeft());
    return {std::max(top.row(), 0), bottom.isValid() ? bottom.row() : model_.rowCount() - 1};
}

void RowsAdaptor::WritePicks() {
    if (NonePicked() && !view_.selectionModel()->hasSelection()) return;
    int row = 0;
    const std::vector<bool> before = ShownPicks();
    // Writing the same marks again would make Qt forget where the user began to mark.
    if (std::ranges::all_of(before, [&](bool picked) { return picked == Picked(row++); })) return;
    QItemSelectionModel& shown = *view_.selectionModel();
    // A single step would compare each old range with each new one, which is slow in a list with many gaps.
    shown.clearSelection();
    shown.select(PickedRanges(), QItemSelectionModel::Select);
    // What the user marks next comes in addition to these.
    shown.select(QItemSelection(), QItemSelectionModel::Select);
}

QItemSelection RowsAdaptor::PickedRanges() const {
    QItemSelection ranges;
    const int rows = model_.rowCount();
    const int lastColumn = model_.columnCount() - 1;
    for (int row = 0; row < rows; ++row) {
        const int first = row;
        while (row < rows && Picked(row))
            ++row;
        if (row > first) ranges.append({model_.index(first, 0), model_.index(row - 1, lastColumn)});
    }
    return ranges;
}

std::vector<bool> RowsAdaptor::ShownPicks() const {
    std::vector<bool> picks(static_cast<std::size_t>(model_.rowCount()));
    for (const QItemSelectionRange& range : view_.selectionModel()->selection()) {
        std::fill(picks.begin() + range.top(), picks.begin() + range.bottom() + 1, true);
    }
    return picks;
}

void RowsAdaptor::WriteCurrent() {
    const QModelIndex current = model_.index(CurrentRow(), CurrentColumn());
    if (current == view_.currentIndex()) return;
    view_.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

// ---- What the user does -------------------------------------------------------------------------------

void RowsAdaptor::ReadCurrent(int row) {
    if (!ByUser()) return;
    {
        const auto guard = ReadingUser();
        GoTo(row);
    }
    // The control has picked the row alone, but the user may hold a key that keeps others.
    ReadPicks();
    if (Attached()) HoldBack();
}

void RowsAdaptor::ReadPicks() {
    if (!ByUser()) return;
    const auto guard = ReadingUser();
    const std::vector<bool> picks = ShownPicks();
    for (int row = 0; row < static_cast<int>(picks.size()) && ByUser(); ++row) {
        const bool picked = picks[static_cast<std::size_t>(row)];
        if (Picked(row) != picked) Pick(row, picked);
    }
}

} // namespace korvane
