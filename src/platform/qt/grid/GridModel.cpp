#include "platform/qt/grid/GridModel.h"

#include "common/text/Shown.h"
#include "platform/qt/base/Convert.h"

#include <algorithm>

namespace korvane {

namespace {

/// The rows that aren't hidden. Empty also when no row is hidden, because then no list is needed.
std::vector<Row> ShownRows(const Grid& store) {
    std::vector<Row> shown;
    const Row last = store.RowCount();
    for (Row row{1}; row <= last; ++row) {
        if (store.RowVisible(row)) shown.push_back(row);
    }
    return shown;
}

} // namespace

GridModel::GridModel(GridBox& box) : box_(box) {
    ReadShape();
}

void GridModel::ReadShape() {
    beginResetModel();
    shown_ = ShownRows(Store());
    rows_ = static_cast<int>(shown_.size());
    columns_ = Store().ColCount().Number();
    if (rows_ == Store().RowCount().Number()) shown_ = {};
    endResetModel();
}

void GridModel::TellChanged(Row first, Row last) {
    if (rows_ == 0 || columns_ == 0) return;
    const auto at = [this](Row row) {
        if (shown_.empty()) return row.Number() - 1;
        return static_cast<int>(std::lower_bound(shown_.begin(), shown_.end(), row) - shown_.begin());
    };
    const int from = std::max(at(first), 0);
    const int to = std::min(at(last + 1) - 1, rows_ - 1);
    if (from <= to) emit dataChanged(index(from, 0), index(to, columns_ - 1));
}

void GridModel::TellHeader(Col col) {
    const int column = ColumnOf(col);
    if (column >= 0 && column < columns_) emit headerDataChanged(Qt::Horizontal, column, column);
}

Row GridModel::RowOf(int modelRow) const {
    if (modelRow < 0 || modelRow >= rows_) return Row{0};
    return shown_.empty() ? Row{modelRow + 1} : shown_[static_cast<std::size_t>(modelRow)];
}

int GridModel::ModelRowOf(Row row) const {
    if (shown_.empty()) return row >= Row{1} && row.Number() <= rows_ ? row.Number() - 1 : -1;
    const auto found = std::lower_bound(shown_.begin(), shown_.end(), row);
    return found != shown_.end() && *found == row ? static_cast<int>(found - shown_.begin()) : -1;
}

QModelIndex GridModel::IndexOf(Row row, Col col) const {
    const int modelRow = ModelRowOf(row);
    return modelRow < 0 ? QModelIndex() : index(modelRow, ColumnOf(col));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Row row = RowOf(index.row());
    const Col col = ColOf(index.column());
    if (role == Qt::DisplayRole || role == Qt::EditRole) return ToLines(Store().CellText(row, col));
    if (role == Qt::CheckStateRole && col == Col{1} && Store().CellCheckShown(row)) {
        return Store().CellCheck(row) == 1 ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return RowOf(section).Number();
    return ToLines(Shown(Store().ColHeaderText(ColOf(section))));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const auto cell =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
    const bool checkable = index.column() == 0 && Store().CellCheckShown(RowOf(index.row()));
    return checkable ? cell | Qt::ItemIsUserCheckable : cell;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid()) return false;
    const Row row = RowOf(index.row());
    const Col col = ColOf(index.column());
    if (role == Qt::EditRole) return Commit(row, col, value.toString());
    if (role != Qt::CheckStateRole || col != Col{1}) return false;
    const int wanted = value.toInt() == Qt::Checked ? 1 : 0;
    if (wanted != Store().CellCheck(row)) box_.ClickCheck(row);
    return true;
}

bool GridModel::Commit(Row row, Col col, const QString& lines) {
    // If nothing was typed the cell isn't written, so that line ends other than CR LF stay as they are.
    if (ToLines(Store().CellText(row, col)) != lines) box_.CommitEdit(row, col, FromLines(lines));
    return true;
}

} // namespace korvane
