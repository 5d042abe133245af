#include "platform/qt/grid/GridView.h"

#include "common/text/Shown.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/grid/CellLook.h"
#include "platform/qt/grid/GridAccess.h"

#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

namespace korvane {

namespace {

constexpr int kSmallestColumn = 16;
constexpr int kHeaderLine = 2;

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
    // The delegate draws the lines between cells in a colour that fits the table's.
    setShowGrid(false);
    SetUpHeaders();
    GridAccess::Install();
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
    connect(&columns, &QHeaderView::sectionClicked, this, &GridView::PressCaption);
    connect(&columns, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { ColumnResized(column, width); });

    columns.viewport()->installEventFilter(this);

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
    connect(delegate_.get(), &CellDelegate::Moved, this, [this](int step) { StepBy(step); });
    connect(delegate_.get(), &CellDelegate::Typing, this, &GridView::TellTyping);
    box.ReadField = [this] { return delegate_->ReadField(); };
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
    box_->ReadField = nullptr;
    box_->FieldAltered = false;
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
    // The view accepts only the model of the attached grid.
    if (model == model_.get()) QTableView::setModel(model);
}

// ---- Following the store ------------------------------------------------------------------------------

void GridView::RowsChanged(Row first, Row last) {
    TellSeen();
    if (stale_) return;
    model_->TellChanged(first, last);
    voice_.CellsChanged();
}

void GridView::TableChanged() {
    // Notices that the store held back, those about the look too, arrive as this one.
    ReadLook();
    ReadTable();
    TellSeen();
}

void GridView::TellSeen() const {
    if (box_->Seen) box_->Seen();
}

void GridView::TellTyping() {
    if (box_ == nullptr) return;
    box_->FieldAltered = delegate_->FieldAltered();
    if (box_->Typing) box_->Typing();
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
    TellSeen();
    if (!stale_) ShowCurrent();
    viewport()->update();
}

void GridView::FocusWanted() {
    // A command may end when another tab has come to the front, which then keeps the keyboard.
    const bool hiddenPage = window()->isVisible() && !isVisible();
    if (!hiddenPage) setFocus(Qt::OtherFocusReason);
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
    // Showing the current cell may have scrolled away from what the user looks at.
    horizontalScrollBar()->setValue(scrolled.x());
    verticalScrollBar()->setValue(scrolled.y());
}

void GridView::WriteHeights() {
    QHeaderView& header = *verticalHeader();
    const Grid& store = box_->Store();
    const int rows = model_->rowCount();
    // Most rows are as high as the first one, so only the others need an entry of their own. With painting
    // and signals off this takes milliseconds even for the largest table.
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
    // The captions use the glyphs of all other texts of the window, and not those of the cells' strategy.
    QFont captions = QApplication::font();
    captions.setStyleStrategy(QFont::PreferDefault);
    horizontalHeader()->setFont(captions);
    FitHeader();
    const FontSpec own{Text(Shown(store.GridFontName())), store.GridFontSize(), false};
    QFont font = WithSpec(WithSpec(QApplication::font(), box_->Font), own);
    // Few cells need shaping, and each of the two ways has glyphs of its own.
    font.setStyleStrategy(QFont::PreferNoShaping);
    setFont(font);

    // The view's own palette is the base, because a window around it may have changed its colours.
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, TableBack(store, palette));
    viewport()->setPalette(palette);
    viewport()->setUpdatesEnabled(store.GridVisible());
    viewport()->setCursor(CursorOf(box_->MousePointer, box_->HandImage.Get()));
    viewport()->update();
}

/// The style leaves its margin free above and below a caption, and the header has a line at its bottom.
void GridView::FitHeader() {
    QHeaderView& header = *horizontalHeader();
    const int margin = header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    header.setFixedHeight(header.fontMetrics().height() + 2 * margin + kHeaderLine);
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

// ---- Painting -----------------------------------------------------------------------------------------

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (box_ != nullptr) box_->ShownWidth = ToTwips(width());
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && box_ != nullptr) ReadLook();
    if (event->type() == QEvent::StyleChange) viewport()->update();
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    voice_.CellReached();
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

} // namespace korvane
