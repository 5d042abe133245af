#include "platform/qt/text/QtTextView.h"

#include "document/store/MemoryTextStore.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/text/BlockSearch.h"
#include "platform/qt/text/TextAccessible.h"
#include "platform/qt/text/TextItem.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

/// Between the edge of the view and a text that flows in its width.
constexpr double kFlowMargin = 8;
/// Above a line that is high in the view there is this part of the view.
constexpr int kHighPart = 5;
constexpr double kPerCent = 100;
/// What is seen around the cursor, in pixels.
constexpr int kScrollMargin = 4;

bool SetMargins(QTextDocument& document, const QMarginsF& margins) {
    QTextFrameFormat format = document.rootFrame()->frameFormat();
    const QMarginsF before(format.leftMargin(), format.topMargin(), format.rightMargin(),
                           format.bottomMargin());
    if (before == margins) return false;
    format.setLeftMargin(margins.left());
    format.setTopMargin(margins.top());
    format.setRightMargin(margins.right());
    format.setBottomMargin(margins.bottom());
    document.rootFrame()->setFrameFormat(format);
    return true;
}

doc::MemoryTextStore& StoreOf(TextControl& control) {
    return dynamic_cast<doc::MemoryTextStore&>(control.Store());
}

/// The size so that it is a little less than whole points of the screen. Qt makes room for a scroll bar when
/// a part of a point is too much, then finds nothing to scroll, and takes the bar away again, on and on.
QSizeF InWholePoints(const QSizeF& size, double zoom) {
    constexpr double kLess = 0.01;
    const auto whole = [zoom](double length) { return (std::round(length * zoom) - kLess) / zoom; };
    return {whole(size.width()), whole(size.height())};
}

/// Qt takes the whole of a table into a selection that ends in it, and whole cells into one of several cells.
QTextCursor Selecting(QTextDocument& document, int anchor, int position) {
    QTextCursor cursor(&document);
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

QtTextView::QtTextView(QWidget* parent) : QGraphicsView(parent), item_(new TextItem(*this)) {
    // A screen reader may ask for the view before it has a control.
    TextAccessible::Install();
    item_->setDocument(&nothing_);
    scene_.addItem(item_);
    scene_.setFocusItem(item_);
    setScene(&scene_);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAttribute(Qt::WA_InputMethodEnabled);
}

QtTextView::~QtTextView() {
    Detach();
    // The scene would destroy the item after the document that it shows.
    delete item_;
}

void QtTextView::Attach(TextControl& control) {
    control_ = &control;
    control.Scroll = this;
    mirror_ = std::make_unique<TextMirror>(StoreOf(control));
    mirror_->Stale = [this] { ShowSoon(); };
    mirror_->Replaced = [this](QTextDocument& document) {
        // The item asks for the size of its document, for which all of it is laid out that has begun to be.
        item_->setDocument(&document);
        connect(document.documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
                &QtTextView::FitScene);
        Prepare(document);
        // A short text is laid out by now, and doesn't tell its size any more.
        FitScene();
    };
    ReadColours();
    mirror_->Replaced(mirror_->Shown());
    ReadLocked();
    ReadZoom();
    ReadMode();
    ShowText();
}

void QtTextView::Detach() {
    if (control_ == nullptr) return;
    control_->Scroll = nullptr;
    ShowNothing();
}

void QtTextView::Forget() {
    if (control_ == nullptr) return;
    mirror_->Abandon();
    ShowNothing();
}

void QtTextView::ShowNothing() {
    item_->setDocument(&nothing_);
    mirror_.reset();
    control_ = nullptr;
}

bool QtTextView::Locked() const {
    return control_ == nullptr || control_->Locked || !control_->Enabled;
}

bool QtTextView::ShowsPages() const {
    return control_ != nullptr && control_->ViewMode != TextControl::kFlow;
}

void QtTextView::ReadZoom() {
    if (control_ == nullptr) return;
    KeepTop([this] {
        const double scale = std::max(control_->ZoomFactor.Get(), 1) / kPerCent;
        setTransform(QTransform::fromScale(scale, scale));
        Fit();
    });
    emit Seen();
}

/// Lays the text out in another way. What is at the top of the view stays there.
void QtTextView::KeepTop(const std::function<void()>& layOut) {
    const QPointF before = mapToScene(QPoint(0, 0));
    const doc::Pos top = PlaceAt(before);
    const double hidden = before.y() - CursorAt(top).top();
    const bool atTop = verticalScrollBar()->value() == verticalScrollBar()->minimum();
    layOut();
    if (atTop) return;
    const double wanted = CursorAt(top).top() + hidden;
    // The text may be laid out only up to there by now.
    reached_ = std::max(reached_, wanted + viewport()->height() / Zoom());
    FitScene();
    verticalScrollBar()->setValue(static_cast<int>(std::lround(wanted * Zoom())));
}

void QtTextView::ReadMode() {
    if (control_ == nullptr) return;
    setAlignment(ShowsPages() ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignTop);
    Prepare(*item_->document());
    Fit();
    viewport()->update();
    emit Seen();
}

void QtTextView::ReadColours() {
    if (control_ == nullptr) return;
    item_->setDefaultTextColor(TextFor(PageColour(), palette()));
    viewport()->update();
}

void QtTextView::ReadLocked() {
    item_->setTextInteractionFlags(Locked() ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                            : Qt::TextEditorInteraction);
}

void QtTextView::ReadToolTip() {
    if (control_ != nullptr) item_->setToolTip(PlainToolTip(control_->ToolTipText.Get()));
}

void QtTextView::ReadLeft() {
    if (control_ != nullptr) setViewportMargins(ToPixels(control_->Left), 0, 0, 0);
}

QColor QtTextView::PageColour() const {
    const bool chosen = control_ != nullptr && control_->BackColor.Get() != kNoColour;
    return chosen ? ToQColor(control_->BackColor) : palette().color(QPalette::Base);
}

/// Gives a document what belongs to the view.
void QtTextView::Prepare(QTextDocument& document) const {
    if (control_ == nullptr) return;
    QTextOption option = document.defaultTextOption();
    const auto marks = control_->ControlChars
                           ? QTextOption::ShowTabsAndSpaces | QTextOption::ShowLineAndParagraphSeparators
                           : QTextOption::Flags();
    if (option.flags() != marks) {
        option.setFlags(marks);
        document.setDefaultTextOption(option);
    }
    const PageMath pages(mirror_->Text().page);
    if (ShowsPages()) {
        SetMargins(document, pages.Margins());
        if (document.pageSize() != pages.Step()) document.setPageSize(pages.Step());
    } else {
        SetMargins(document, {kFlowMargin, kFlowMargin, kFlowMargin, kFlowMargin});
        const QSizeF size(std::max(viewport()->width() / Zoom(), 3 * kFlowMargin), -1);
        if (document.pageSize() != size) document.setPageSize(size);
    }
}

void QtTextView::Fit() {
    if (control_ == nullptr) return;
    pages_ = PageMath(mirror_->Text().page);
    Prepare(*item_->document());
    FitScene();
}

void QtTextView::FitScene() {
    const QSizeF seen = QSizeF(viewport()->size()) / Zoom();
    QRectF text(QPointF(), item_->Laid());
    // A long text is laid out little by little, and the cursor may be further down already.
    text.setHeight(std::max(text.height(), reached_));
    if (ShowsPages()) {
        text.setBottom(pages_.Page(PageCount() - 1).bottom());
        text.setWidth(pages_.Step().width());
        item_->SetLeast(text);
        scene_.setSceneRect(text.adjusted(-PageMath::kGap, -PageMath::kGap, PageMath::kGap, PageMath::kGap));
    } else {
        // A click below the text goes into it too.
        text.setHeight(std::max(text.height(), seen.height() - 1));
        text.setSize(InWholePoints(text.size(), Zoom()));
        item_->SetLeast(text);
        scene_.setSceneRect(text);
    }
}

void QtTextView::ShowSoon() {
    if (std::exchange(asked_, true)) return;
    const auto show = [this] {
        asked_ = false;
        ShowText();
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void QtTextView::ShowHighSoon() {
    askedHigh_ = true;
    ShowSoon();
}

void QtTextView::ShowText() {
    if (control_ == nullptr || showing_) return;
    const QScopedValueRollback guard(showing_, true);
    mirror_->Shown();
    const PageMath pages(mirror_->Text().page);
    if (pages.Step() != pages_.Step() || pages.Margins() != pages_.Margins()) Fit();
    ReadSelection();
}

void QtTextView::ReadSelection() {
    if (control_ == nullptr) return;
    mirror_->Shown();
    const doc::Pos start = static_cast<doc::Pos>(control_->SelStart());
    const doc::Pos end = start + static_cast<doc::Pos>(control_->SelLength());
    const int from = mirror_->ToQt(start);
    const int to = mirror_->ToQt(end);
    const QTextCursor cursor = item_->textCursor();
    const QTextCursor wanted = Selecting(*item_->document(), from, to);
    if (cursor.selectionStart() != wanted.selectionStart() || cursor.selectionEnd() != wanted.selectionEnd())
        SetCursor(from, to);
    if (std::exchange(askedHigh_, false)) ScrollHigh();
    TellReaders();
    emit Seen();
}

void QtTextView::TellReaders() {
    if (!readers_.Listening()) {
        told_.clear();
        return;
    }
    const QString before = std::exchange(told_, ToLines(control_->All()));
    TellTextChange(*this, before, told_);
    TellCursor(*this);
}

void QtTextView::Select(doc::Pos from, doc::Pos to) {
    if (control_ == nullptr) return;
    ShowText();
    SetCursor(mirror_->ToQt(from), mirror_->ToQt(to));
    TakeCursor(false);
}

doc::Pos QtTextView::CursorPosition() const {
    mirror_->Shown();
    return mirror_->FromQt(item_->textCursor().position());
}

void QtTextView::SetCursor(int anchor, int position) {
    item_->setTextCursor(Selecting(*item_->document(), anchor, position));
    ScrollTo(CursorAt(mirror_->FromQt(position)));
}

void QtTextView::ScrollTo(const QRectF& place) {
    reached_ = place.bottom();
    FitScene();
    ensureVisible(place, kScrollMargin, kScrollMargin);
}

void QtTextView::ScrollHigh() {
    ShowLineAt(CursorAt(mirror_->FromQt(item_->textCursor().selectionStart())),
               viewport()->height() / kHighPart);
}

void QtTextView::ShowLineAt(const QRectF& line, int y) {
    // What comes below the line may not be laid out yet.
    ScrollTo(CursorAt(PlaceAt(line.topLeft() + QPointF(0, viewport()->height() / Zoom()))));
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(bar.value() + mapFromScene(line.topLeft()).y() - y);
}

TextTop QtTextView::Top() {
    ShowText();
    const QPoint corner(0, 0);
    const doc::Pos place = PlaceAt(mapToScene(corner));
    const int line = mapFromScene(CursorAt(place).topLeft()).y();
    // Nothing is above the first line, and what comes there later is to be seen.
    if (verticalScrollBar()->value() == verticalScrollBar()->minimum()) return {};
    return {static_cast<int>(place), -line};
}

void QtTextView::SetTop(const TextTop& top) {
    ShowText();
    if (top.place == 0) {
        reached_ = 0;
        FitScene();
        return verticalScrollBar()->setValue(verticalScrollBar()->minimum());
    }
    ShowLineAt(CursorAt(static_cast<doc::Pos>(top.place)), -top.above);
}

QRectF QtTextView::CursorAt(doc::Pos position) const {
    QTextDocument& document = mirror_->Shown();
    const int place = mirror_->ToQt(position);
    const QTextBlock block = document.findBlock(place);
    const QRectF rect = document.documentLayout()->blockBoundingRect(block);
    const QTextLayout& layout = *block.layout();
    const QTextLine line = layout.lineForTextPosition(place - block.position());
    if (!line.isValid()) return {rect.topLeft(), QSizeF(1, std::max(rect.height(), 1.0))};
    return {rect.topLeft() + QPointF(line.cursorToX(place - block.position()), line.y()),
            QSizeF(1, line.height())};
}

doc::Pos QtTextView::PlaceAt(const QPointF& point) const {
    return mirror_->FromQt(PositionAtPoint(mirror_->Shown(), point));
}

CursorPlace QtTextView::Place() {
    if (control_ == nullptr) return {};
    ShowText();
    const int position = item_->textCursor().position();
    const QTextBlock block = item_->document()->findBlock(position);
    const QRectF cursor = CursorAt(mirror_->FromQt(position));
    const auto lineOf = [](const QTextBlock& in, int offset) {
        const QTextLine line = in.layout()->lineForTextPosition(offset);
        return in.firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
    };
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    CursorPlace place;
    place.line = lineOf(block, position - block.position()) + 1;
    place.column = position - block.position() - (line.isValid() ? line.textStart() : 0) + 1;
    if (!ShowsPages()) return place;
    const int page = pages_.PageAt(cursor.center().y());
    const QPointF top = pages_.Page(page).topLeft() + QPointF(pages_.TextLeft(), pages_.Margins().top());
    const int first = PositionAtPoint(*item_->document(), top);
    const QTextBlock firstBlock = item_->document()->findBlock(first);
    place.line -= lineOf(firstBlock, first - firstBlock.position());
    place.page = page + 1;
    place.pages = PageCount();
    return place;
}

/// The pages as far as the text is laid out.
int QtTextView::PageCount() const {
    const int laid = static_cast<int>(std::lround(item_->Laid().height() / pages_.Step().height()));
    return std::max(laid, pages_.PageAt(reached_) + 1);
}

double QtTextView::MarginX() const {
    const double left = ShowsPages() ? pages_.TextLeft() : kFlowMargin;
    return viewportTransform().map(QPointF(left, 0)).x();
}

void QtTextView::paintEvent(QPaintEvent* event) {
    ShowText();
    QGraphicsView::paintEvent(event);
}

void QtTextView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    if (control_ != nullptr) KeepTop([this] { Fit(); });
    emit Seen();
}

void QtTextView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) ReadColours();
}

void QtTextView::focusInEvent(QFocusEvent* event) {
    QGraphicsView::focusInEvent(event);
    // A menu that is opened with a key takes the focus twice, and then Qt doesn't know any more that the text
    // had it.
    if (scene_.focusItem() == nullptr) scene_.setFocusItem(item_, event->reason());
}

void QtTextView::scrollContentsBy(int dx, int dy) {
    QGraphicsView::scrollContentsBy(dx, dy);
    if (dx != 0) emit Seen();
}

bool QtTextView::focusNextPrevChild(bool next) {
    // Tab is a key of the text.
    return Locked() && QGraphicsView::focusNextPrevChild(next);
}

void QtTextView::drawBackground(QPainter* painter, const QRectF& exposed) {
    if (!ShowsPages()) {
        painter->fillRect(exposed, PageColour());
        return;
    }
    const bool dark = control_->PageViewStyle == 0;
    painter->fillRect(exposed, dark ? QColor(0x40, 0x40, 0x40) : palette().color(QPalette::Button));
    painter->setPen(QPen(palette().color(QPalette::Mid), 0));
    const int last = pages_.PageAt(std::min(exposed.bottom(), scene_.sceneRect().bottom() - PageMath::kGap));
    for (int page = pages_.PageAt(exposed.top()); page <= last; ++page) {
        painter->fillRect(pages_.Page(page), PageColour());
        painter->drawRect(pages_.Page(page));
    }
}

} // namespace korvane
