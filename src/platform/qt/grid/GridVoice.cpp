#include "platform/qt/grid/GridVoice.h"

#include "platform/qt/grid/GridAccess.h"
#include "platform/qt/grid/GridView.h"

#include <QApplication>
#include <utility>

namespace korvane {

namespace {

bool IsTicked(const QModelIndex& cell) {
    return cell.siblingAtColumn(0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
}

} // namespace

GridVoice::GridVoice(GridView& view) : QObject(&view), view_(view) {}

void GridVoice::CellReached() {
    if (!ears_->Listen()) return;
    reached_ = true;
    Hold();
}

void GridVoice::CellsChanged() {
    if (ears_->Listen()) Hold();
}

void GridVoice::Hold() {
    if (std::exchange(held_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { Tell(); }, Qt::QueuedConnection);
}

void GridVoice::Tell() {
    held_ = false;
    const bool reached = std::exchange(reached_, false);
    const QModelIndex current = view_.currentIndex();
    if (!current.isValid() || !ears_->Listen()) return;
    if (current.row() == row_ && IsTicked(current) != ticked_) TellTick(current);
    row_ = current.row();
    ticked_ = IsTicked(current);
    if (!reached) return;
    if (!view_.hasFocus()) return TellElsewhere(current);
    Send(QAccessibleEvent(&view_, QAccessible::Focus), row_, current.column());
}

/// A dialog that goes through the table keeps the keyboard, so what has it there tells where it has come to.
void GridVoice::TellElsewhere(const QModelIndex& current) {
    QWidget* focused = QApplication::focusWidget();
    QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(&view_);
    const bool inDialog = focused != nullptr && focused->window() != view_.window();
    if (!inDialog || view_.IsBar() || grid == nullptr) return;
    const QAccessibleInterface* cell = grid->tableInterface()->cellAt(current.row(), current.column());
    const QString place = cell->text(QAccessible::Description);
    focused->setAccessibleDescription(QStringLiteral("%1: %2").arg(place, cell->text(QAccessible::Name)));
}

void GridVoice::TellTick(const QModelIndex& current) {
    QAccessible::State changed;
    changed.checked = true;
    Send(QAccessibleStateChangeEvent(&view_, changed), current.row(), 0);
    // The cell itself says of the tick in its description.
    Send(QAccessibleEvent(&view_, QAccessible::DescriptionChanged), current.row(), current.column());
}

/// Tells something of a cell.
void GridVoice::Send(QAccessibleEvent&& event, int row, int column) {
    event.setChild(GridAccess::ChildOf(view_, row, column));
    ears_->Hear(event);
}

} // namespace korvane