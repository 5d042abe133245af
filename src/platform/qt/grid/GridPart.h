#pragma once

#include "platform/qt/base/SpokenPart.h"

#include <QPointer>

namespace korvane {

class GridView;

/// What a screen reader learns of one cell or caption of a grid. Row -1 has the captions of the columns, and
/// column -1 the numbers of the rows.
class GridPart : public SpokenPart, public QAccessibleTableCellInterface {
public:
    GridPart(GridView& view, int row, int column);

    int Row() const { return row_; }
    int Column() const { return column_; }

    bool isValid() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column_; }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    bool IsCell() const { return row_ >= 0 && column_ >= 0; }
    bool IsCaption() const { return row_ < 0 && column_ >= 0; }
    QModelIndex Index() const;
    QString Name() const;
    QString RowNumber() const;
    QString Place() const;
    /// What an action of this kind does to the part; an empty text for nothing.
    QString OwnAction() const;
    void Press();

    QPointer<GridView> view_;
    int row_;
    int column_;
};

} // namespace korvane
