#include "platform/qt/lists/TilesModel.h"

#include "platform/qt/base/Convert.h"

#include <QFont>

namespace korvane {

TilesModel::TilesModel(const Tiles& tiles, QObject* parent) : QAbstractTableModel(parent), tiles_(&tiles) {}

void TilesModel::Read() {
    beginResetModel();
    endResetModel();
}

void TilesModel::Forget() {
    beginResetModel();
    tiles_ = nullptr;
    endResetModel();
}

int TilesModel::rowCount(const QModelIndex& parent) const {
    return tiles_ == nullptr || parent.isValid() ? 0 : tiles_->Rows();
}

int TilesModel::columnCount(const QModelIndex& parent) const {
    return tiles_ == nullptr || parent.isValid() ? 0 : tiles_->Columns();
}

int TilesModel::TileAt(const QModelIndex& index) const {
    if (tiles_ == nullptr || !index.isValid()) return -1;
    const int tile = index.row() * tiles_->Columns() + index.column();
    return tile < static_cast<int>(tiles_->Items.Get().size()) ? tile : -1;
}

QModelIndex TilesModel::IndexOf(int tile) const {
    if (tiles_ == nullptr || tile < 0) return {};
    return index(tile / tiles_->Columns(), tile % tiles_->Columns());
}

QVariant TilesModel::data(const QModelIndex& index, int role) const {
    const int at = TileAt(index);
    if (at < 0) return {};
    const Tiles::Tile& tile = tiles_->Items.Get()[static_cast<std::size_t>(at)];
    if (role == Qt::DisplayRole) return ToQString(tile.text);
    if (role == Qt::AccessibleTextRole && !tile.spoken.empty()) return ToQString(tile.spoken);
    if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
    if (role == Qt::FontRole && tile.marked) {
        QFont bold = WithSpec({}, tiles_->Font);
        bold.setBold(true);
        return bold;
    }
    return {};
}

QVariant TilesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool named = tiles_ != nullptr && orientation == Qt::Horizontal && role == Qt::DisplayRole;
    const auto at = static_cast<std::size_t>(section);
    if (!named || at >= tiles_->Headers.Get().size()) return {};
    return ToQString(tiles_->Headers.Get()[at]);
}

Qt::ItemFlags TilesModel::flags(const QModelIndex& index) const {
    return TileAt(index) < 0 ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace korvane
