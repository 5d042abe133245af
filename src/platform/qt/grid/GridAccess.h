#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace korvane {

class GridView;

/// What a screen reader learns of a grid: a table whose cells tell their text, their caption and row, and
/// whether the row is ticked. It is made only when somebody asks.
class GridAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccess(GridView& view);
    ~GridAccess() override;

    /// Lets Qt find this class for grids.
    static void Install();
    /// The number under which Qt's events name a cell. The headers are counted too; -1 is the row or the
    /// column of captions. A bar of buttons has no headers.
    static int ChildOf(const GridView& view, int row, int column);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    void ForgetParts() const;

    GridView& view_;
    /// By the number of the child.
    mutable QHash<int, QAccessible::Id> parts_;
    /// The number of columns by which the children were numbered.
    mutable int columns_ = 0;
};

} // namespace korvane
