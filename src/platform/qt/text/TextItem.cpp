#include "platform/qt/text/TextItem.h"

#include "platform/qt/text/QtTextView.h"
#include "platform/qt/text/TextClipboard.h"
#include "platform/qt/text/TextPaint.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDrag>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace korvane {

TextItem::TextItem(QtTextView& view) : view_(view) {
    setTextInteractionFlags(Qt::TextEditorInteraction);
    // Without this a repaint would draw the whole text.
    setFlag(QGraphicsItem::ItemUsesExtendedStyleOption);
    setAcceptHoverEvents(true);
    setAcceptDrops(true);
}

void TextItem::SetLeast(const QRectF& room) {
    if (room == least_) return;
    prepareGeometryChange();
    least_ = room;
}

QPainterPath TextItem::shape() const {
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

void TextItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    QStyleOptionGraphicsItem plain(*option);
    // Qt draws a dashed line around an item that has the keyboard.
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    if (view_.Zoom() > 1) {
        letters_.Draw(*painter, *document(), option->exposedRect,
                      [&](QPainter& letters) { QGraphicsTextItem::paint(&letters, &plain, widget); });
    } else {
        QGraphicsTextItem::paint(painter, &plain, widget);
    }
    if (view_.Shown() != nullptr)
        PaintMarks(*painter, view_.Mirror(), option->exposedRect, defaultTextColor());
}

QVariant TextItem::inputMethodQuery(Qt::InputMethodQuery query) const {
    view_.ShowText();
    return QGraphicsTextItem::inputMethodQuery(query);
}

bool TextItem::sceneEvent(QEvent* event) {
    const auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    if (key != nullptr && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)) {
        // Qt would write this one by itself.
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return event->isAccepted();
    }
    return QGraphicsTextItem::sceneEvent(event);
}

void TextItem::keyPressEvent(QKeyEvent* event) {
    if (view_.EditWith(*event)) {
        event->accept();
        return;
    }
    if (!MovesCursor(*event)) {
        event->ignore();
        return;
    }
    const int before = textCursor().position();
    QGraphicsTextItem::keyPressEvent(event);
    view_.TakeCursor(textCursor().position() < before);
    event->accept();
}

void TextItem::inputMethodEvent(QInputMethodEvent* event) {
    view_.ShowText();
    const QString commit = event->commitString();
    const bool writes = !commit.isEmpty() || event->replacementLength() > 0;
    // What is typed takes the place of the selection, also while it isn't finished.
    if (!event->preeditString().isEmpty() && textCursor().hasSelection()) view_.DeleteSelection();
    if (writes) {
        QInputMethodEvent none;
        QGraphicsTextItem::inputMethodEvent(&none);
        view_.Commit(commit, event->replacementStart(), event->replacementLength());
    }
    QInputMethodEvent unfinished(event->preeditString(), event->attributes());
    QGraphicsTextItem::inputMethodEvent(&unfinished);
    view_.TakeCursor(false);
    event->accept();
}

bool TextItem::InSelection(const QPointF& point) const {
    const int place = document()->documentLayout()->hitTest(point, Qt::ExactHit);
    const QTextCursor cursor = textCursor();
    return place >= cursor.selectionStart() && place < cursor.selectionEnd();
}

void TextItem::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    view_.ShowText();
    mayDrag_ = dragged_ = false;
    // Qt would paste with the middle button by itself.
    if (event->button() == Qt::MiddleButton) {
        view_.PasteSelectionAt(event->pos());
        return;
    }
    if (event->button() != Qt::LeftButton) return;
    mayDrag_ = event->modifiers() == Qt::NoModifier && InSelection(event->pos());
    if (mayDrag_) return;
    QGraphicsTextItem::mousePressEvent(event);
    view_.TakeCursor(false);
}

void TextItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event) {
    if (mayDrag_) {
        const QPoint way = event->screenPos() - event->buttonDownScreenPos(Qt::LeftButton);
        if (way.manhattanLength() < QApplication::startDragDistance()) return;
        mayDrag_ = false;
        dragged_ = true;
        view_.StartDrag();
        return;
    }
    if (dragged_) return;
    view_.ShowText();
    QGraphicsTextItem::mouseMoveEvent(event);
    view_.TakeCursor(false);
}

void TextItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    if (event->button() != Qt::LeftButton || std::exchange(dragged_, false)) return;
    view_.ShowText();
    if (std::exchange(mayDrag_, false)) {
        view_.MoveTo(event->pos());
    } else {
        QGraphicsTextItem::mouseReleaseEvent(event);
        view_.TakeCursor(false);
    }
    if (!textCursor().hasSelection()) view_.ClickAt(event->pos());
}

void TextItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) {
    view_.ShowText();
    if (event->button() != Qt::LeftButton) return;
    QGraphicsTextItem::mouseDoubleClickEvent(event);
    view_.TakeCursor(false);
}

void TextItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event) {
    // Qt's own menu changes the text by itself.
    view_.ShowMenu(event->screenPos());
    event->accept();
}

void TextItem::hoverMoveEvent(QGraphicsSceneHoverEvent* event) {
    view_.HoverAt(event->pos());
}

void TextItem::hoverLeaveEvent(QGraphicsSceneHoverEvent*) {
    view_.HoverNowhere();
}

void TextItem::dragEnterEvent(QGraphicsSceneDragDropEvent* event) {
    if (!view_.Takes(event->mimeData())) return event->ignore();
    QGraphicsTextItem::dragEnterEvent(event);
    event->accept();
}

void TextItem::dragMoveEvent(QGraphicsSceneDragDropEvent* event) {
    if (!view_.Takes(event->mimeData())) return event->ignore();
    QGraphicsTextItem::dragMoveEvent(event);
    event->accept();
}

void TextItem::dropEvent(QGraphicsSceneDragDropEvent* event) {
    // This takes away the line where the text would be dropped.
    QGraphicsTextItem::dragLeaveEvent(event);
    view_.Drop(*event);
}

} // namespace korvane
