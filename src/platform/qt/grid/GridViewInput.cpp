// This file handles what the user does with the keyboard and the mouse.

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/PopupPlace.h"
#include "platform/qt/grid/CellEditor.h"
#include "platform/qt/grid/GridView.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace korvane {

namespace {

MouseButton ToMouseButton(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

/// The cells that a Tab key goes on by; 0 for any other key.
int TabStep(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Backtab) return -1;
    const bool chord = event.modifiers().testFlag(Qt::ControlModifier);
    return event.key() == Qt::Key_Tab && !chord ? 1 : 0;
}

} // namespace

/// QTableView would tell screen readers of each cell at once, also of those that a command only passes.
void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QAbstractItemView::currentChanged(current, previous);
    voice_.CellReached();
    if (following_ || box_ == nullptr || !current.isValid()) return;
    const QScopedValueRollback guard(following_, true);
    Grid& store = box_->Store();
    store.SetCurRow(model_->RowOf(current.row()));
    store.SetCurCol(GridModel::ColOf(current.column()));
    viewport()->update();
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    // The selected cell is always the current one, which is told already.
    QAbstractItemView::selectionChanged(selected, deselected);
}

void GridView::ColumnResized(int column, int width) {
    // A column that is stretched to the width of the view keeps the width that was set for it.
    if (following_ || box_ == nullptr || horizontalHeader()->stretchLastSection()) return;
    const QScopedValueRollback guard(following_, true);
    box_->DragColumn(GridModel::ColOf(column), width);
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    // While a column's edge is dragged the header reports each pixel, but it doesn't report the end of the
    // drag.
    const bool released = event->type() == QEvent::MouseButtonRelease;
    const bool handled = QTableView::eventFilter(watched, event);
    if (released && watched == horizontalHeader()->viewport() && box_ != nullptr) box_->ReleaseColumn();
    return handled;
}

void GridView::PressCell(const QModelIndex& cell) {
    if (box_ != nullptr && cell.isValid())
        box_->ClickCell(model_->RowOf(cell.row()), GridModel::ColOf(cell.column()));
}

void GridView::PressCaption(int column) {
    if (box_ == nullptr) return;
    FinishTyping();
    box_->ClickHeader(GridModel::ColOf(column));
    if (box_ != nullptr) ShowSortIndicator();
}

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (delegate_ != nullptr) delegate_->SetTypingReplaces(trigger == AnyKeyPressed);
    return QTableView::edit(index, trigger, event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier;
    const int step = tabKeyNavigation() ? TabStep(*event) : 0;
    if (step != 0) {
        StepBy(step);
    } else if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        MoveDown();
    } else if (!(plain && event->key() == Qt::Key_Space && ToggleCurrentCheck())) {
        QTableView::keyPressEvent(event);
    }
}

void GridView::StepBy(int cells) {
    if (box_ != nullptr) box_->StepCell(cells);
}

void GridView::MoveDown() {
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.row() + 1 < model_->rowCount())
        setCurrentIndex(current.siblingAtRow(current.row() + 1));
}

bool GridView::ToggleCurrentCheck() {
    const QModelIndex current = currentIndex();
    if (box_ == nullptr || !current.isValid() || current.column() != 0) return false;
    const Row row = model_->RowOf(current.row());
    if (!box_->Store().CellCheckShown(row)) return false;
    box_->ClickCheck(row);
    return true;
}

QModelIndex GridView::CheckAt(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (box_ == nullptr || !index.isValid() || index.column() != 0) return {};
    if (!box_->Store().CellCheckShown(model_->RowOf(index.row()))) return {};
    return CellDelegate::CheckRect(visualRect(index), *this).contains(place) ? index : QModelIndex();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    pressed_ = indexAt(place);
    pressedCheck_ = event->button() == Qt::LeftButton && CheckAt(place).isValid();
    QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Two quick clicks on a check box count as two clicks and don't start the editor.
    if (CheckAt(event->position().toPoint()).isValid()) {
        mousePressEvent(event);
    } else {
        QTableView::mouseDoubleClickEvent(event);
    }
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (box_ != nullptr) TellMouseUp(*event);
}

void GridView::TellMouseUp(const QMouseEvent& event) {
    const QPoint place = event.position().toPoint();
    const QModelIndex index = indexAt(place);
    const bool onPressed = index.isValid() && index == pressed_;
    if (event.button() == Qt::LeftButton && onPressed) {
        const Row row = model_->RowOf(index.row());
        const Col col = GridModel::ColOf(index.column());
        if (pressedCheck_ && CheckAt(place).isValid()) {
            box_->ClickCheck(row);
        } else {
            box_->ClickCell(row, col);
        }
    }
    pressedCheck_ = false;
    // The handler of the click may have closed the tab.
    if (box_ != nullptr && box_->MouseUp) box_->MouseUp(ToMouseButton(event.button()));
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    // A right click was reported when the button was released. Only the menu key is handled here.
    event->accept();
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (!byKey || box_ == nullptr || !box_->MouseUp) return;
    const QRect cell = visualRect(currentIndex()) & viewport()->rect();
    const PopupPlace place(*this, viewport()->mapToGlobal(cell.bottomLeft()));
    box_->MouseUp(MouseButton::Right);
}

void GridView::enterEvent(QEnterEvent* event) {
    QTableView::enterEvent(event);
    if (box_ != nullptr && box_->Hover) box_->Hover(true);
}

void GridView::leaveEvent(QEvent* event) {
    QTableView::leaveEvent(event);
    if (box_ != nullptr && box_->Hover) box_->Hover(false);
}

} // namespace korvane
