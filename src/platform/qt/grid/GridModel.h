#pragma once

#include "controls/views/GridBox.h"

#include <QAbstractTableModel>
#include <vector>

namespace korvane {

/// The rows and columns of a grid's store as Qt counts them: from 0 and without the hidden rows. The model
/// reads the store and keeps no copy of the table.
class GridModel : public QAbstractTableModel {
public:
    /// `box` must outlive the model.
    explicit GridModel(GridBox& box);

    /// Reads again which rows and columns there are.
    void ReadShape();
    /// Tells the view that the store's rows from `first` to `last` look different now.
    void TellChanged(Row first, Row last);
    void TellHeader(Col col);

    Row RowOf(int modelRow) const;
    static Col ColOf(int modelColumn) { return Col{modelColumn + 1}; }
    static int ColumnOf(Col col) { return col.Number() - 1; }
    /// The row's number in the model, or -1 if the row is hidden or doesn't exist.
    int ModelRowOf(Row row) const;
    /// The cell's index, which is invalid if the cell isn't shown.
    QModelIndex IndexOf(Row row, Col col) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes the lines that were typed, or the box that was ticked.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    const Grid& Store() const { return box_.Store(); }
    bool Commit(Row row, Col col, const QString& lines);

    GridBox& box_;
    int rows_ = 0;
    int columns_ = 0;
    /// The numbers of the shown rows in order. Empty while no row is hidden.
    std::vector<Row> shown_;
};

} // namespace korvane
