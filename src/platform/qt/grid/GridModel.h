#pragma once

#include "controls/GridBox.h"

#include <QAbstractTableModel>
#include <vector>

namespace korvane {

/// The rows and columns of a grid's store as the toolkit counts them: from 0, hidden rows left out. It reads
/// the store and holds nothing of the table.
class GridModel : public QAbstractTableModel {
public:
    /// The grid outlives the model.
    explicit GridModel(GridBox& box);

    /// Reads anew which rows and columns there are.
    void ReadShape();
    /// The store's rows from `first` to `last` look different.
    void TellChanged(Row first, Row last);
    void TellHeader(Col col);

    Row RowOf(int modelRow) const;
    static Col ColOf(int modelColumn) { return Col{modelColumn + 1}; }
    static int ColumnOf(Col col) { return col.Number() - 1; }
    /// -1 for a row that is hidden or doesn't exist.
    int ModelRowOf(Row row) const;
    /// Invalid where no such cell is shown.
    QModelIndex IndexOf(Row row, Col col) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes what the user typed (lines) or ticked.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    const Grid& Store() const { return box_.Store(); }
    bool Commit(Row row, Col col, const QString& lines);

    GridBox& box_;
    int rows_ = 0;
    int columns_ = 0;
    /// The shown rows in order; empty while none is hidden.
    std::vector<Row> shown_;
};

} // namespace korvane
