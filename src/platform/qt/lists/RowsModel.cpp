#include "platform/qt/lists/RowsModel.h"

namespace korvane {

void RowsModel::ReadRows() {
    beginResetModel();
    rows_ = ControlRows();
    endResetModel();
}

void RowsModel::TellInserted(int first, int last) {
    beginInsertRows({}, first, last);
    rows_ += last - first + 1;
    endInsertRows();
}

void RowsModel::TellRemoved(int first, int last) {
    beginRemoveRows({}, first, last);
    rows_ -= last - first + 1;
    endRemoveRows();
}

void RowsModel::TellChanged(int first, int last) {
    if (columnCount() > 0) emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void RowsModel::Forget() {
    beginResetModel();
    attached_ = false;
    rows_ = 0;
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

QModelIndex RowsModel::index(int row, int column, const QModelIndex& parent) const {
    const bool isThere =
        row >= 0 && row < rows_ && column >= 0 && column < columnCount() && !parent.isValid();
    return isThere ? createIndex(row, column) : QModelIndex();
}

bool RowsModel::Holds(const QModelIndex& index) const {
    return attached_ && index.isValid() && index.row() < ControlRows();
}

} // namespace korvane
