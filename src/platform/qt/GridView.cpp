#include "platform/qt/GridView.h"

#include "platform/qt/CellEditor.h"
#include "platform/qt/CellLook.h"
#include "platform/qt/Convert.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

namespace korvane {

namespace {

constexpr int kSmallestColumn = 16;
constexpr int kHeaderPadding = 8;

MouseButton ToMouseButton(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::Right;
    return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::Left;
}

} // namespace

GridView::GridView(QWidget* parent) : QTableView(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    // The cells draw their lines themselves, in a colour that goes with the table's.
    setShowGrid(false);
    SetUpHeaders();
}

GridView::~GridView() {
    Detach();
}

void GridView::SetUpHeaders() {
    QHeaderView& columns = *horizontalHeader();
    columns.setSectionsClickable(true);
    columns.setHighlightSections(true);
    columns.setMinimumSectionSize(kSmallestColumn);
    columns.setMaximumSectionSize(1 << 20);
    columns.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columns.setFixedHeight(columns.fontMetrics().height() + kHeaderPadding);
    connect(&columns, &QHeaderView::sectionClicked, this, &GridView::HeaderClicked);
    connect(&columns, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { ColumnResized(column, width); });

    QHeaderView& rows = *verticalHeader();
    rows.setMinimumSectionSize(0);
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.hide();
}

void GridView::Attach(GridBox& box) {
    Detach();
    box_ = &box;
    model_ = std::make_unique<GridModel>(box);
    delegate_ = MakeDelegate(*model_, box);
    connect(delegate_.get(), &CellDelegate::Moved, this, [this](int step) { MoveBy(0, step); });
    QTableView::setModel(model_.get());
    setItemDelegate(delegate_.get());
    box.Store().SetListener(this);
    box.ShownWidth = ToTwips(width());
    ReadLook();
    ReadTable();
}

std::unique_ptr<CellDelegate> GridView::MakeDelegate(const GridModel& model, const GridBox& box) {
    return std::make_unique<CellDelegate>(model, box, nullptr);
}

void GridView::Detach() {
    if (box_ == nullptr) return;
    box_->Store().SetListener(nullptr);
    Forget();
}

void GridView::Forget() {
    box_ = nullptr;
    QTableView::setModel(nullptr);
    setItemDelegate(nullptr);
    delegate_.reset();
    model_.reset();
}

void GridView::setModel(QAbstractItemModel* model) {
    // The only model is the one of the attached grid.
    if (model == model_.get()) QTableView::setModel(model);
}

// ---- Following the store ------------------------------------------------------------------------------

void GridView::RowsChanged(Row first, Row last) {
    if (stale_) return;
    model_->TellChanged(first, last);
}

void GridView::TableChanged() {
    // Held back news of the look arrive as this, too.
    ReadLook();
    ReadTable();
}

void GridView::ColumnChanged(Col col) {
    if (stale_) return;
    const QScopedValueRollback guard(following_, true);
    const int column = GridModel::ColumnOf(col);
    model_->TellHeader(col);
    horizontalHeader()->resizeSection(column, std::max(0, box_->Store().ColWidth(col)));
}

void GridView::LookChanged() {
    ReadLook();
    if (stale_ && box_->Store().GridVisible()) ReadTable();
}

void GridView::CurrentCellChanged() {
    if (!stale_) ShowCurrent();
    viewport()->update();
}

void GridView::FocusWanted() {
    setFocus(Qt::OtherFocusReason);
}

void GridView::RowWantedInView(Row row) {
    const QModelIndex index = model_->IndexOf(row, box_->Store().CurCol());
    if (index.isValid()) scrollTo(index);
}

void GridView::ReadTable() {
    stale_ = !box_->Store().GridVisible();
    if (stale_) return;
    const QScopedValueRollback guard(following_, true);
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    model_->ReadShape();
    WriteWidths();
    WriteHeights();
    ShowSortIndicator();
    executeDelayedItemsLayout();
    updateGeometries();
    ShowCurrent();
    // The current cell may stand outside what the user looks at.
    horizontalScrollBar()->setValue(scrolled.x());
    verticalScrollBar()->setValue(scrolled.y());
}

void GridView::WriteHeights() {
    QHeaderView& header = *verticalHeader();
    const Grid& store = box_->Store();
    const int rows = model_->rowCount();
    // Most rows are as high as the first: they need no entry of their own. Without painting and signals in
    // between, a table at the limit takes milliseconds.
    const int common = rows == 0 ? 0 : std::max(0, store.RowHeight(model_->RowOf(0)));
    const QSignalBlocker quiet(header);
    header.setUpdatesEnabled(false);
    if (common > 0) header.setDefaultSectionSize(common);
    for (int row = 0; row < rows; ++row) {
        const int height = std::max(0, store.RowHeight(model_->RowOf(row)));
        if (height != common || common == 0) header.resizeSection(row, height);
    }
    header.setUpdatesEnabled(true);
}

void GridView::WriteWidths() {
    const Grid& store = box_->Store();
    for (int column = 0; column < model_->columnCount(); ++column) {
        horizontalHeader()->resizeSection(column, std::max(0, store.ColWidth(GridModel::ColOf(column))));
    }
}

void GridView::ReadLook() {
    const Grid& store = box_->Store();
    horizontalHeader()->setFont(QApplication::font());
    const FontSpec own{store.GridFontName(), store.GridFontSize(), false};
    setFont(WithSpec(WithSpec(QApplication::font(), box_->Font), own));

    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, TableBack(store, palette));
    viewport()->setPalette(palette);
    viewport()->setUpdatesEnabled(store.GridVisible());
    viewport()->setCursor(ShapeOf(box_->MousePointer));
    viewport()->update();
}

void GridView::ShowCurrent() {
    const QScopedValueRollback guard(following_, true);
    const Grid& store = box_->Store();
    const QModelIndex index = model_->IndexOf(store.CurRow(), store.CurCol());
    if (index == currentIndex()) return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void GridView::ShowSortIndicator() {
    QHeaderView& header = *horizontalHeader();
    const int column = GridModel::ColumnOf(box_->SortedBy());
    const bool sorted = column >= 0 && column < model_->columnCount();
    header.setSortIndicatorShown(sorted);
    if (!sorted) return;
    const bool ascending = box_->Order() == SortOrder::Ascending;
    header.setSortIndicator(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

// ---- What the user does -------------------------------------------------------------------------------

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (following_ || box_ == nullptr || !current.isValid()) return;
    const QScopedValueRollback guard(following_, true);
    Grid& store = box_->Store();
    store.SetCurRow(model_->RowOf(current.row()));
    store.SetCurCol(GridModel::ColOf(current.column()));
    viewport()->update();
}

void GridView::ColumnResized(int column, int width) {
    // A column that follows the width of the view keeps the width that was set.
    if (following_ || box_ == nullptr || horizontalHeader()->stretchLastSection()) return;
    const QScopedValueRollback guard(following_, true);
    box_->Store().SetColWidth(GridModel::ColOf(column), width);
}

void GridView::HeaderClicked(int column) {
    if (box_ == nullptr) return;
    FinishTyping();
    box_->ClickHeader(GridModel::ColOf(column));
    if (box_ != nullptr) ShowSortIndicator();
}

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (delegate_ != nullptr) delegate_->SetTypingReplaces(trigger == AnyKeyPressed);
    return QTableView::edit(index, trigger, event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool plain = modifiers == Qt::NoModifier;
    if (event->matches(QKeySequence::Copy)) {
        CopyCurrent();
    } else if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        MoveBy(1, 0);
    } else if (!(plain && event->key() == Qt::Key_Space && ToggleCurrentCheck())) {
        QTableView::keyPressEvent(event);
    }
}

void GridView::MoveBy(int rows, int columns) {
    const QModelIndex current = currentIndex();
    if (!current.isValid()) return;
    const int row = std::clamp(current.row() + rows, 0, model_->rowCount() - 1);
    const int column = std::clamp(current.column() + columns, 0, model_->columnCount() - 1);
    setCurrentIndex(model_->index(row, column));
}

void GridView::CopyCurrent() const {
    if (!currentIndex().isValid()) return;
    const Grid& store = box_->Store();
    QApplication::clipboard()->setText(ToQString(store.CellText(store.CurRow(), store.CurCol())));
}

bool GridView::ToggleCurrentCheck() {
    const QModelIndex current = currentIndex();
    if (!current.isValid() || current.column() != 0) return false;
    const Row row = model_->RowOf(current.row());
    if (!box_->Store().CellCheckShown(row)) return false;
    box_->ClickCheck(row);
    return true;
}

QModelIndex GridView::CheckAt(const QPoint& place) const {
    const QModelIndex index = indexAt(place);
    if (box_ == nullptr || !index.isValid() || index.column() != 0) return {};
    if (!box_->Store().CellCheckShown(model_->RowOf(index.row()))) return {};
    return CellDelegate::CheckRect(visualRect(index), *this).contains(place) ? index : QModelIndex();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    pressed_ = indexAt(place);
    pressedCheck_ = event->button() == Qt::LeftButton && CheckAt(place).isValid();
    QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Two quick clicks on a check box are two clicks, not the wish to edit.
    if (CheckAt(event->position().toPoint()).isValid()) {
        mousePressEvent(event);
    } else {
        QTableView::mouseDoubleClickEvent(event);
    }
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (box_ != nullptr) TellMouseUp(*event);
}

void GridView::TellMouseUp(const QMouseEvent& event) {
    const QPoint place = event.position().toPoint();
    const QModelIndex index = indexAt(place);
    const bool onPressed = index.isValid() && index == pressed_;
    if (event.button() == Qt::LeftButton && onPressed) {
        const Row row = model_->RowOf(index.row());
        const Col col = GridModel::ColOf(index.column());
        if (pressedCheck_ && CheckAt(place).isValid()) {
            box_->ClickCheck(row);
        } else {
            box_->ClickCell(row, col);
        }
    }
    pressedCheck_ = false;
    // A handler may have closed the tab.
    if (box_ != nullptr && box_->MouseUp) box_->MouseUp(ToMouseButton(event.button()));
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse has told of its button already; this is the menu key.
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (byKey && box_ != nullptr && box_->MouseUp) box_->MouseUp(MouseButton::Right);
    event->accept();
}

void GridView::enterEvent(QEnterEvent* event) {
    QTableView::enterEvent(event);
    if (box_ != nullptr && box_->Hover) box_->Hover(true);
}

void GridView::leaveEvent(QEvent* event) {
    QTableView::leaveEvent(event);
    if (box_ != nullptr && box_->Hover) box_->Hover(false);
}

// ---- Painting -----------------------------------------------------------------------------------------

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (box_ != nullptr) box_->ShownWidth = ToTwips(width());
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        viewport()->update();
    }
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

} // namespace korvane
