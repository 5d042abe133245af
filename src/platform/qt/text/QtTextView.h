#pragma once

#include "controls/text/TextControl.h"
#include "platform/qt/text/PageMath.h"
#include "platform/qt/text/ReaderWatch.h"
#include "platform/qt/text/TextMirror.h"

#include <QGraphicsScene>
#include <QGraphicsView>

class QMimeData;

namespace korvane {

class TextItem;

/// Where the cursor is, for people: everything counts from 1.
struct CursorPlace {
    int page = 1;
    int pages = 1;
    int line = 1;
    int column = 1;
};

/// Shows the text of a control, and lets the user edit it. The control has the text: the view asks it for
/// every change and shows what came of it.
class QtTextView final : public QGraphicsView, private TextScroll {
    Q_OBJECT

public:
    explicit QtTextView(QWidget* parent = nullptr);
    ~QtTextView() override;

    /// The control must live until `Detach`.
    void Attach(TextControl& control);
    /// Shows the text no more and forgets the control.
    void Detach();
    /// The same when the control is gone already.
    void Forget();
    TextControl* Shown() const { return control_; }

    // The control changed.
    void ReadZoom();
    void ReadMode();
    void ReadColours();
    void ReadSelection();
    void ReadLocked();
    void ReadToolTip();
    void ReadLeft();
    /// Shows text and selection when the program has done what it is at.
    void ShowSoon();
    /// Does the same, and shows the line where the selection begins in the upper part of the view.
    void ShowHighSoon();

    /// Brings the shown text up to date, as every paint does.
    void ShowText();
    const TextMirror& Mirror() const { return *mirror_; }
    const PageMath& Pages() const { return pages_; }
    bool ShowsPages() const;
    /// The whole text is laid out for it in the view with pages.
    CursorPlace Place();
    /// The rectangle of the cursor at a place of the text, and the place at a point, both in the scene.
    QRectF CursorAt(doc::Pos position) const;
    doc::Pos PlaceAt(const QPointF& point) const;
    /// Where the margin of the text is in the view, and how many of its pixels there are for one of the text.
    double MarginX() const;
    double Zoom() const { return transform().m11(); }

    // What the item of the text asks for.
    /// False if the key isn't one that edits.
    bool EditWith(const QKeyEvent& event);
    void Commit(const QString& text, int replacedFrom, int replaced);
    void DeleteSelection();
    /// Tells the control the selection that the item has. A cursor that came between tables goes on in its
    /// direction.
    void TakeCursor(bool backwards);
    void MoveTo(const QPointF& point);
    void ClickAt(const QPointF& point);
    void HoverAt(const QPointF& point);
    void HoverNowhere();
    void StartDrag();
    bool Takes(const QMimeData* data) const;
    void Drop(QGraphicsSceneDragDropEvent& event);
    void PasteSelectionAt(const QPointF& point);
    void ShowMenu(const QPoint& place);

    void Copy();
    void Cut();
    void Paste();
    void Undo();
    void Redo();
    void SelectAll();
    /// What the user selects without the mouse or a key; the cursor is at the end.
    void Select(doc::Pos from, doc::Pos to);
    /// Where the cursor is in the text.
    doc::Pos CursorPosition() const;
    /// The selection goes to another place, in one step.
    void MoveSelectionTo(doc::Pos place);
    /// The text between two places, put in by the user.
    void Replace(doc::Pos from, doc::Pos to, TextView text);

    QSize sizeHint() const override { return {400, 300}; }

signals:
    /// The text, the selection or the place of the text in the view changed.
    void Seen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& exposed) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;

private:
    TextTop Top() override;
    void SetTop(const TextTop& top) override;
    void Prepare(QTextDocument& document) const;
    void Fit();
    void KeepTop(const std::function<void()>& layOut);
    void FitScene();
    bool Locked() const;
    void SetCursor(int anchor, int position);
    void ScrollTo(const QRectF& place);
    void ScrollHigh();
    /// So many pixels below the upper edge of the view.
    void ShowLineAt(const QRectF& line, int y);
    void ShowNothing();
    void TellReaders();
    int PageCount() const;
    void DeleteTo(QTextCursor::MoveOperation way);
    bool TypeWith(const QKeyEvent& event);
    void MoveByPage(const QKeyEvent& event);
    void Step(int cells);
    doc::Index FieldAt(const QPointF& point) const;
    void Put(const QMimeData& data);
    QColor PageColour() const;

    QGraphicsScene scene_;
    TextItem* item_;
    TextControl* control_ = nullptr;
    std::unique_ptr<TextMirror> mirror_;
    /// What the item shows while there is no control.
    QTextDocument nothing_;
    PageMath pages_{doc::Page{}};
    bool asked_ = false;
    bool askedHigh_ = false;
    /// What screen readers were told of last; it is kept only while there is one.
    QString told_;
    ReaderWatch readers_;
    /// How far down the cursor was when it was shown last.
    double reached_ = 0;
    bool showing_ = false;
    bool dragging_ = false;
};

/// Whether the key only moves the cursor or the selection.
bool MovesCursor(const QKeyEvent& event);

} // namespace korvane
