#pragma once

#include "controls/lists/ListBox.h"
#include "platform/qt/lists/RowsModel.h"

#include <QFont>

namespace korvane {

class ListBoxModel : public RowsModel {
public:
    /// The list outlives the model, or `Forget` is called before it goes.
    ListBoxModel(ListBox& list, bool checkBoxes, QObject* parent);

    /// How high each row is; 0 leaves it to the look.
    void SetRowHeight(int height) { rowHeight_ = height; }
    /// The font from which the faces of a list of fonts are made.
    void SetBaseFont(const QFont& font) { baseFont_ = font; }

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes a check mark that the user set or took away.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

protected:
    int ControlRows() const override { return list_.ListCount(); }

private:
    QVariant FaceOf(int row) const;

    ListBox& list_;
    QFont baseFont_;
    bool checkBoxes_;
    int rowHeight_ = 0;
};

} // namespace korvane
