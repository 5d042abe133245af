#include "platform/qt/grid/GridPart.h"

#include "platform/qt/grid/GridAccess.h"
#include "platform/qt/grid/GridView.h"

#include <QHeaderView>

namespace korvane {

namespace {

QRect OnScreen(const QRect& place, const QWidget& widget) {
    return {widget.mapToGlobal(place.topLeft()), place.size()};
}

} // namespace

GridPart::GridPart(GridView& view, int row, int column) : view_(&view), row_(row), column_(column) {}

bool GridPart::isValid() const {
    return view_ != nullptr && view_->Model() != nullptr && row_ < view_->Model()->rowCount() &&
           column_ < view_->Model()->columnCount();
}

QWindow* GridPart::window() const {
    return isValid() ? view_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* GridPart::parent() const {
    return view_ == nullptr ? nullptr : QAccessible::queryAccessibleInterface(view_);
}

QModelIndex GridPart::Index() const {
    return isValid() && IsCell() ? view_->Model()->index(row_, column_) : QModelIndex();
}

QString GridPart::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return Name();
    return kind == QAccessible::Description ? Place() : QString();
}

QString GridPart::Name() const {
    if (IsCell()) return Index().data().toString();
    if (IsCaption()) return view_->Model()->headerData(column_, Qt::Horizontal, Qt::DisplayRole).toString();
    return row_ < 0 ? QString() : RowNumber();
}

/// The row's number in the table, which has hidden rows too.
QString GridPart::RowNumber() const {
    return view_->Model()->headerData(row_, Qt::Vertical, Qt::DisplayRole).toString();
}

QString GridPart::Place() const {
    if (!IsCell() || view_->IsBar()) return {};
    QStringList parts{view_->Model()->headerData(column_, Qt::Horizontal, Qt::DisplayRole).toString(),
                      GridView::tr("row %1").arg(RowNumber())};
    const QVariant tick = Index().siblingAtColumn(0).data(Qt::CheckStateRole);
    if (tick.isValid())
        parts << (tick.toInt() == Qt::Checked ? GridView::tr("ticked") : GridView::tr("not ticked"));
    return parts.join(QStringLiteral(", "));
}

QRect GridPart::rect() const {
    if (!isValid()) return {};
    if (IsCell()) return OnScreen(view_->visualRect(Index()), *view_->viewport());
    const QHeaderView& header = IsCaption() ? *view_->horizontalHeader() : *view_->verticalHeader();
    if (!header.isVisible() || (row_ < 0 && column_ < 0)) return {};
    const int section = IsCaption() ? column_ : row_;
    const int begin = header.sectionViewportPosition(section);
    const int length = header.sectionSize(section);
    const QRect place =
        IsCaption() ? QRect(begin, 0, length, header.height()) : QRect(0, begin, header.width(), length);
    return OnScreen(place, *header.viewport());
}

QAccessible::Role GridPart::role() const {
    if (IsCell()) return view_ != nullptr && view_->IsBar() ? QAccessible::ListItem : QAccessible::Cell;
    return IsCaption() ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State GridPart::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QRect place = rect();
    state.invisible = place.isEmpty() || !view_->isVisible();
    state.offscreen = !OnScreen(view_->rect(), *view_).intersects(place);
    if (!IsCell()) return state;
    state.selectable = state.focusable = true;
    state.selected = isSelected();
    state.focused = state.active = isSelected() && view_->hasFocus();
    state.editable = view_->editTriggers() != QAbstractItemView::NoEditTriggers;
    state.checkable = Index().flags().testFlag(Qt::ItemIsUserCheckable);
    state.checked = state.checkable && Index().data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return state;
}

void* GridPart::interface_cast(QAccessible::InterfaceType type) {
    const bool inTable = IsCell() && !view_.isNull() && !view_->IsBar();
    if (type == QAccessible::TableCellInterface && inTable)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return SpokenPart::interface_cast(type);
}

bool GridPart::isSelected() const {
    return IsCell() && isValid() && view_->currentIndex() == Index();
}

QList<QAccessibleInterface*> GridPart::columnHeaderCells() const {
    if (!IsCell() || !isValid() || view_->horizontalHeader()->isHidden()) return {};
    return {parent()->child(GridAccess::ChildOf(*view_, -1, column_))};
}

QString GridPart::OwnAction() const {
    if (!isValid()) return {};
    if (IsCaption() || (IsCell() && view_->IsBar())) return pressAction();
    return Index().flags().testFlag(Qt::ItemIsUserCheckable) ? toggleAction() : QString();
}

QStringList GridPart::actionNames() const {
    QStringList names;
    if (!OwnAction().isEmpty()) names << OwnAction();
    if (IsCell()) names << setFocusAction();
    return names;
}

void GridPart::doAction(const QString& action) {
    if (!isValid() || !actionNames().contains(action)) return;
    if (action == OwnAction()) return Press();
    view_->setCurrentIndex(Index());
    view_->setFocus(Qt::OtherFocusReason);
}

void GridPart::Press() {
    if (IsCaption()) return view_->PressCaption(column_);
    if (view_->IsBar()) return view_->PressCell(Index());
    view_->setCurrentIndex(Index());
    view_->ToggleCurrentCheck();
}

} // namespace korvane
