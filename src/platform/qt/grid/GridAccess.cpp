#include "platform/qt/grid/GridAccess.h"

#include "platform/qt/grid/GridPart.h"
#include "platform/qt/grid/GridView.h"

#include <QHeaderView>
#include <utility>

namespace korvane {

namespace {

QAccessibleInterface* MakeAccess(const QString& className, QObject* object) {
    auto* view = qobject_cast<GridView*>(object);
    const bool mine = view != nullptr && className == QLatin1String(GridView::staticMetaObject.className());
    return mine ? new GridAccess(*view) : nullptr;
}

QAccessible::Role RoleOf(const GridView& view) {
    return view.IsBar() ? QAccessible::List : QAccessible::Table;
}

} // namespace

void GridAccess::Install() {
    // Qt passes over a factory that it knows already.
    QAccessible::installFactory(&MakeAccess);
}

GridAccess::GridAccess(GridView& view) : QAccessibleWidget(&view, RoleOf(view)), view_(view) {}

GridAccess::~GridAccess() {
    ForgetParts();
}

void GridAccess::ForgetParts() const {
    for (const QAccessible::Id id : std::as_const(parts_))
        QAccessible::deleteAccessibleInterface(id);
    parts_.clear();
}

int GridAccess::ChildOf(const GridView& view, int row, int column) {
    if (view.IsBar()) return row;
    return (row + 1) * (view.Model()->columnCount() + 1) + column + 1;
}

int GridAccess::rowCount() const {
    return view_.Model() == nullptr ? 0 : view_.Model()->rowCount();
}

int GridAccess::columnCount() const {
    return view_.Model() == nullptr ? 0 : view_.Model()->columnCount();
}

int GridAccess::childCount() const {
    if (view_.Model() == nullptr) return 0;
    return view_.IsBar() ? rowCount() : (rowCount() + 1) * (columnCount() + 1);
}

QAccessibleInterface* GridAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    if (std::exchange(columns_, columnCount()) != columnCount()) ForgetParts();
    const auto known = parts_.constFind(index);
    if (known != parts_.constEnd()) return QAccessible::accessibleInterface(*known);
    const int perRow = columnCount() + 1;
    auto* part = view_.IsBar() ? new GridPart(view_, index, 0)
                               : new GridPart(view_, index / perRow - 1, index % perRow - 1);
    // The cache of Qt owns it from now on.
    parts_.insert(index, QAccessible::registerAccessibleInterface(part));
    return part;
}

int GridAccess::indexOfChild(const QAccessibleInterface* part) const {
    const auto* own = dynamic_cast<const GridPart*>(part);
    return own == nullptr || view_.Model() == nullptr ? -1 : ChildOf(view_, own->Row(), own->Column());
}

QAccessibleInterface* GridAccess::childAt(int x, int y) const {
    const QPoint place(x, y);
    const QModelIndex cell = view_.indexAt(view_.viewport()->mapFromGlobal(place));
    if (cell.isValid()) return cellAt(cell.row(), cell.column());
    const QHeaderView& header = *view_.horizontalHeader();
    const QPoint inHeader = header.viewport()->mapFromGlobal(place);
    const int column = header.logicalIndexAt(inHeader);
    const bool onHeader = header.isVisible() && header.viewport()->rect().contains(inHeader) && column >= 0;
    return onHeader ? child(ChildOf(view_, -1, column)) : nullptr;
}

QAccessibleInterface* GridAccess::focusChild() const {
    const QModelIndex current = view_.currentIndex();
    return current.isValid() ? cellAt(current.row(), current.column()) : nullptr;
}

void* GridAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface && !view_.IsBar())
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* GridAccess::cellAt(int row, int column) const {
    const bool isThere = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return isThere ? child(ChildOf(view_, row, column)) : nullptr;
}

int GridAccess::selectedCellCount() const {
    return view_.currentIndex().isValid() ? 1 : 0;
}

QList<QAccessibleInterface*> GridAccess::selectedCells() const {
    return view_.currentIndex().isValid() ? QList{focusChild()} : QList<QAccessibleInterface*>();
}

QString GridAccess::columnDescription(int column) const {
    if (column < 0 || column >= columnCount()) return {};
    return view_.Model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

QString GridAccess::rowDescription(int row) const {
    return row >= 0 && row < rowCount() ? QString::number(row + 1) : QString();
}

void GridAccess::modelChange(QAccessibleTableModelChangeEvent* event) {
    // The numbers of the parts count rows and columns, so they hold only until there are more or fewer.
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged) ForgetParts();
}

} // namespace korvane
