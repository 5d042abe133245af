#include "platform/qt/lists/RowDelegate.h"

#include "platform/qt/lists/RowEditor.h"

#include <QKeyEvent>
#include <QPainter>

namespace korvane {

namespace {

/// More of a text than any window shows. The layout of a text costs time for each character, also for those
/// that have no room.
constexpr int kMostSeen = 2000;

} // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!cells_.Paint(*painter, item)) QStyledItemDelegate::paint(painter, option, index);
    if (!lined_) return;
    // Filled, because lines are drawn point by point.
    const QRect& cell = option.rect;
    const QColor colour = option.palette.color(QPalette::Window);
    painter->fillRect(cell.left(), cell.bottom(), cell.width(), 1, colour);
    painter->fillRect(cell.right(), cell.top(), 1, cell.height(), colour);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.truncate(kMostSeen);
    // Of a name that is too long the end may matter, but of a date or a size it doesn't.
    if (index.column() > 0) option->textElideMode = Qt::ElideRight;
}

QWidget* RowDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                   const QModelIndex& index) const {
    auto* editor = new RowEditor(parent);
    connect(editor, &RowEditor::Finished, this,
            [this, editor, row = index.row()](int step) { Finish(*editor, row, editor->text(), step); });
    return editor;
}

void RowDelegate::Finish(QWidget& editor, int row, const QString& text, int step) const {
    auto& self = const_cast<RowDelegate&>(*this); // NOLINT: Qt makes editors in a const function
    // Closing the field takes the keyboard from it, which would finish it once more.
    editor.disconnect(this);
    emit self.closeEditor(&editor, NoHint);
    emit Typed(row, text, step);
}

bool RowDelegate::eventFilter(QObject* object, QEvent* event) {
    auto* editor = qobject_cast<RowEditor*>(object);
    if (editor == nullptr) return QStyledItemDelegate::eventFilter(object, event);
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape) {
        editor->disconnect(this);
        emit closeEditor(editor, NoHint);
        return true;
    }
    if (event->type() == QEvent::FocusOut && editor->isActiveWindow()) editor->Commit();
    return false;
}

} // namespace korvane
