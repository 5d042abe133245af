#pragma once

#include "controls/views/GridBox.h"
#include "platform/qt/grid/CellLook.h"
#include "platform/qt/grid/CheckPictures.h"
#include "platform/qt/grid/DrawCellText.h"
#include "platform/qt/grid/GridModel.h"

#include <QAbstractItemDelegate>
#include <QFont>
#include <QPalette>
#include <QPersistentModelIndex>
#include <QPointer>
#include <optional>
#include <vector>

namespace korvane {

class CellEditor;

/// Paints the cells of a grid directly from its store, and makes the editor of a cell.
class CellDelegate : public QAbstractItemDelegate {
    Q_OBJECT

public:
    /// `model` and `box` must outlive the delegate.
    CellDelegate(const GridModel& model, const GridBox& box, QObject* parent);

    /// Whether the next editor starts with its text selected, so that typing replaces it.
    void SetTypingReplaces(bool replaces) { typingReplaces_ = replaces; }
    /// Whether the text in the open field isn't the one with which it was opened.
    bool FieldAltered() const;
    /// What the open field has; nothing when none is open.
    std::optional<FieldText> ReadField() const;
    /// The place of the check box in a cell that covers `cell`.
    static QRect CheckRect(const QRect& cell, const QWidget& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

signals:
    /// The editor was closed, and the user goes on by `cellStep` cells.
    void Moved(int cellStep) const;
    /// Something was typed into the field, or it has closed.
    void Typing() const;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    const Grid& Store() const { return box_.Store(); }
    /// `base` shapes no text. `shaped` says that the cell's text needs it.
    const QFont& CellFont(const QFont& base, Row row, Col col, bool shaped) const;
    void ForgetField() const;
    void Finish(QWidget& editor, bool commit, int cellStep) const;
    void PaintBack(QPainter& painter, const QStyleOptionViewItem& option, CellPosition cell,
                   const QColor& back) const;
    CellColours ColoursIn(CellPosition cell, const QPalette& palette) const;
    TextMarks MarksIn(CellPosition cell, const CellColours& colours) const;
    bool IsCurrent(CellPosition cell) const {
        return cell == CellPosition{Store().CurRow(), Store().CurCol()};
    }

    const GridModel& model_;
    const GridBox& box_;
    bool typingReplaces_ = false;
    mutable QPointer<CellEditor> field_;
    mutable QPersistentModelIndex fieldCell_;
    /// The fonts that the style flags of cells ask for, all made from the first font. Empty until a cell is
    /// painted.
    mutable std::vector<QFont> fonts_;
    mutable CheckPictures checks_;
};

} // namespace korvane
