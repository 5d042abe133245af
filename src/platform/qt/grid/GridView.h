#pragma once

#include "controls/views/GridBox.h"
#include "platform/qt/grid/CellDelegate.h"
#include "platform/qt/grid/GridModel.h"
#include "platform/qt/grid/GridVoice.h"

#include <QTableView>
#include <memory>

namespace korvane {

/// The grid on the screen. It shows a store, follows its changes, and tells its `GridBox` what the user does.
class GridView : public QTableView, private GridListener {
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);
    ~GridView() override;

    /// Shows the grid. `box` must outlive the view, or `Detach` must be called before.
    void Attach(GridBox& box);
    void Detach();
    /// Drops a grid that is destroyed already.
    void Forget();
    /// Reads the table's colours, its font and the mouse pointer again.
    void ReadLook();
    const GridModel* Model() const { return model_.get(); }
    GridVoice& Voice() { return voice_; }
    /// Whether the grid is a bar of buttons and no table.
    virtual bool IsBar() const { return false; }

    // What the user does by other ways than the keyboard and the mouse.

    void PressCaption(int column);
    void PressCell(const QModelIndex& cell);
    /// Ticks or unticks the current row. False when the current cell has no check box.
    bool ToggleCurrentCheck();

    void setModel(QAbstractItemModel* model) override;

protected:
    virtual std::unique_ptr<CellDelegate> MakeDelegate(const GridModel& model, const GridBox& box);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // The store calls these when it changes.
    void RowsChanged(Row first, Row last) override;
    void TableChanged() override;
    void ColumnChanged(Col col) override;
    void LookChanged() override;
    void CurrentCellChanged() override;
    void FocusWanted() override;
    void RowWantedInView(Row row) override;

    void TellSeen() const;
    void TellTyping();
    void SetUpHeaders();
    void ReadTable();
    void WriteHeights();
    void WriteWidths();
    void FitHeader();
    void ShowCurrent();
    void ShowSortIndicator();
    void ColumnResized(int column, int width);

    QModelIndex CheckAt(const QPoint& place) const;
    void StepBy(int cells);
    void MoveDown();
    void TellMouseUp(const QMouseEvent& event);

    GridBox* box_ = nullptr;
    std::unique_ptr<GridModel> model_;
    std::unique_ptr<CellDelegate> delegate_;
    GridVoice voice_{*this};
    QPersistentModelIndex pressed_;
    bool pressedCheck_ = false;
    /// Whether the view is changing itself to follow the store. What it hears of itself then doesn't come
    /// from the user.
    bool following_ = false;
    /// Whether the store changed while the grid was hidden.
    bool stale_ = false;
};

} // namespace korvane
