#pragma once

#include "controls/Tiles.h"

#include <QAbstractTableModel>

namespace korvane {

/// The tiles of a control for the views of Qt.
class TilesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The tiles outlive the model, or `Forget` is called before they go.
    TilesModel(const Tiles& tiles, QObject* parent);

    /// All of them may have changed.
    void Read();
    void Forget();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    int TileAt(const QModelIndex& index) const;
    QModelIndex IndexOf(int tile) const;

private:
    const Tiles* tiles_;
};

} // namespace korvane
