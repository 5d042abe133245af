#pragma once

#include "controls/lists/ListBox.h"
#include "platform/qt/lists/RowsAdaptor.h"

#include <QListView>

namespace korvane {

/// A list. With the property "checkBoxes" in its look its items have check marks; with a selection mode that
/// takes several they can be picked.
class ListBoxModel;

class ListBoxAdaptor : public RowsAdaptor {
public:
    ListBoxAdaptor(ListBox& list, QListView& widget);

protected:
    void Write(Aspect aspect) override;
    int CurrentRow() const override { return list_.ListIndex(); }
    bool Picked(int row) const override;
    void Pick(int row, bool picked) override;
    void GoTo(int row) override { list_.Select(row); }
    void DoubleClick(int row) override { list_.DoubleClick(row); }

private:
    ListBoxAdaptor(ListBox& list, QListView& widget, ListBoxModel& model);

    bool TakesSeveral() const;

    ListBox& list_;
    QListView& widget_;
    ListBoxModel& model_;
};

} // namespace korvane
