#include "platform/qt/lists/RowDelegate.h"

#include "platform/qt/lists/RowEditor.h"

#include <QKeyEvent>
#include <QPainter>

namespace korvane {

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!lined_) return;
    painter->setPen(option.palette.color(QPalette::Window));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
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
