#include "platform/qt/lists/TickVoice.h"

#include <utility>

namespace korvane {

namespace {

bool IsTicked(const QModelIndex& row) {
    return row.siblingAtColumn(0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

TickVoice::TickVoice(QAbstractItemView& view) : QObject(&view), view_(view) {
    connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TickVoice::RowReached);
    connect(view.model(), &QAbstractItemModel::dataChanged, this, &TickVoice::TextsChanged);
}

void TickVoice::RowReached(const QModelIndex& current) {
    row_ = current.siblingAtColumn(0);
    ticked_ = IsTicked(current);
}

void TickVoice::TextsChanged() {
    const QModelIndex current = view_.currentIndex().siblingAtColumn(0);
    const bool isKnown = row_ == current;
    const bool before = std::exchange(ticked_, IsTicked(current));
    row_ = current;
    if (isKnown && ticked_ != before && ears_->Listen()) Tell(current);
}

void TickVoice::Tell(const QModelIndex& row) {
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&view_);
    if (list == nullptr || list->tableInterface() == nullptr) return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&view_, changed);
    event.setChild(list->indexOfChild(list->tableInterface()->cellAt(row.row(), 0)));
    ears_->Hear(event);
}

} // namespace korvane
