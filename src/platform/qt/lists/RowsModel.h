#pragma once

#include <QAbstractTableModel>

namespace korvane {

/// The rows of a control for the views of Qt. It holds only how many there are: a text is asked for when it
/// is painted.
class RowsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    // Tell the views what has become of the rows.
    void ReadRows();
    void TellInserted(int first, int last);
    void TellRemoved(int first, int last);
    void TellChanged(int first, int last);
    /// Lets go of the control: there are no rows any more.
    void Forget();

    int rowCount(const QModelIndex& parent = {}) const override;
    /// A view calls it for each row when it lays its rows out, so it does as little as it can.
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;

protected:
    bool Attached() const { return attached_; }
    /// Whether the control has the row. While an update is held, the views may ask for one that has gone.
    bool Holds(const QModelIndex& index) const;
    virtual int ControlRows() const = 0;

private:
    int rows_ = 0;
    bool attached_ = true;
};

} // namespace korvane
