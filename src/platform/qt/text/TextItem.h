#pragma once

#include "platform/qt/text/LargeLetters.h"

#include <QGraphicsTextItem>

namespace korvane {

class QtTextView;

/// The text in the scene. It moves the cursor, selects and blinks as Qt's text items do, but leaves every
/// change of the text to the view, which asks the control for it.
class TextItem final : public QGraphicsTextItem {
public:
    explicit TextItem(QtTextView& view);

    /// The size of the text as far as it is laid out.
    QSizeF Laid() const { return QGraphicsTextItem::boundingRect().size(); }
    /// The text takes at least this room, so that a click beside it goes into it.
    void SetLeast(const QRectF& room);
    QRectF boundingRect() const override { return QGraphicsTextItem::boundingRect() | least_; }
    QPainterPath shape() const override;
    bool contains(const QPointF& point) const override { return boundingRect().contains(point); }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    bool sceneEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent* event) override;
    void dragMoveEvent(QGraphicsSceneDragDropEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;

private:
    bool InSelection(const QPointF& point) const;

    QtTextView& view_;
    /// Whether the mouse was pressed on the selection, which may become a drag.
    bool mayDrag_ = false;
    bool dragged_ = false;
    QRectF least_;
    LargeLetters letters_;
};

} // namespace korvane
