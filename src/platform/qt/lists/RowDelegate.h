#pragma once

#include "platform/qt/lists/PlainCells.h"

#include <QStyledItemDelegate>

namespace korvane {

/// Draws the rows of a list, with a line below and at the right of each cell if the list has lines, and edits
/// a cell in place.
class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetLined(bool lined) { lined_ = lined; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

signals:
    /// The user typed a text into a row and goes on by `step` rows. The rows count from 0.
    void Typed(int row, const QString& text, int step) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    void Finish(QWidget& editor, int row, const QString& text, int step) const;

    bool lined_ = false;
    mutable PlainCells cells_;
};

} // namespace korvane
