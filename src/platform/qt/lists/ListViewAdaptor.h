#pragma once

#include "controls/lists/ListView.h"
#include "platform/qt/lists/ListViewModel.h"
#include "platform/qt/lists/RowDelegate.h"
#include "platform/qt/lists/RowsAdaptor.h"

#include <QTreeView>

namespace korvane {

/// A list with columns.
class ListViewAdaptor : public RowsAdaptor {
public:
    ListViewAdaptor(ListView& list, QTreeView& widget);

protected:
    int CurrentRow() const override { return list_.Current() - 1; }
    int CurrentColumn() const override { return list_.EditColumn > 0 ? list_.EditColumn - 1 : 0; }
    bool Picked(int row) const override { return list_.Selected(row + 1); }
    bool NonePicked() const override { return list_.SelectedCount() == 0; }
    void Pick(int row, bool picked) override { list_.SetSelected(row + 1, picked); }
    void GoTo(int row) override { list_.Select(row + 1); }
    void DoubleClick(int row) override { list_.DoubleClick(row + 1); }

    void Write(Aspect aspect) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ListViewAdaptor(ListView& list, QTreeView& widget, ListViewModel& model);
    void WriteShape();
    void WriteWidth(int column, int width);
    void WriteColours();
    void ReadWidth(int column, int width);

    ListView& list_;
    QTreeView& widget_;
    ListViewModel& model_;
    RowDelegate& delegate_;
};

} // namespace korvane
