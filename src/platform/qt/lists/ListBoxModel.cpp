#include "platform/qt/lists/ListBoxModel.h"

#include "platform/qt/base/Convert.h"

namespace korvane {

ListBoxModel::ListBoxModel(ListBox& list, bool checkBoxes, QObject* parent)
    : RowsModel(parent), list_(list), checkBoxes_(checkBoxes) {}

int ListBoxModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
    if (!Holds(index)) return {};
    if (role == Qt::DisplayRole) return ToLines(list_.List(index.row()));
    if (role == Qt::CheckStateRole && checkBoxes_) {
        return list_.Selected(index.row()) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

Qt::ItemFlags ListBoxModel::flags(const QModelIndex& index) const {
    if (!Holds(index)) return Qt::NoItemFlags;
    const auto row = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return checkBoxes_ ? row | Qt::ItemIsUserCheckable : row;
}

bool ListBoxModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!Holds(index) || role != Qt::CheckStateRole) return false;
    list_.SetSelected(index.row(), value.toInt() == Qt::Checked);
    return true;
}

} // namespace korvane
