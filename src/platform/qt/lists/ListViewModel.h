#pragma once

#include "controls/lists/ListView.h"
#include "platform/qt/lists/RowIcons.h"
#include "platform/qt/lists/RowsModel.h"

namespace korvane {

class ListViewModel : public RowsModel {
public:
    /// The list outlives the model, or `Forget` is called before it goes.
    ListViewModel(ListView& list, QObject* parent);

    /// Reads again which columns there are, and what the user can do with the rows.
    void ReadShape();

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// A view calls it for each row when it lays its rows out, so it does as little as it can.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes a check mark that the user set or took away.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    /// What the user types is the beginning of a name, whichever column was clicked.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

    // Rows that are dragged to other programs.
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override;
    /// nullptr when there are no files to drag.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

protected:
    int ControlRows() const override { return list_.Count(); }

private:
    QVariant FirstColumnData(int row, int role) const;

    ListView& list_;
    int columns_ = 0;
    Qt::ItemFlags rowFlags_;
    int editColumn_ = -1;
    mutable RowIcons icons_;
};

} // namespace korvane
