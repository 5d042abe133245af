#include "platform/qt/lists/ListViewAdaptor.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/BackColour.h"
#include "platform/qt/look/Contrast.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <algorithm>

namespace korvane {

ListViewAdaptor::ListViewAdaptor(ListView& list, QTreeView& widget)
    : ListViewAdaptor(list, widget, *new ListViewModel(list, &widget)) {}

ListViewAdaptor::ListViewAdaptor(ListView& list, QTreeView& widget, ListViewModel& model)
    : RowsAdaptor(list, widget, model),
      list_(list),
      widget_(widget),
      model_(model),
      delegate_(*new RowDelegate(&widget)) {
    widget.setItemDelegate(&delegate_);
    connect(&delegate_, &RowDelegate::Typed, this, [this](int row, const QString& text, int step) {
        if (Attached()) list_.TypeText(row + 1, ToText(text), step);
    });
    widget.setRootIsDecorated(false);
    widget.setUniformRowHeights(true);
    widget.setAllColumnsShowFocus(true);
    widget.header()->setSectionsClickable(true);
    widget.header()->setTextElideMode(Qt::ElideRight);
    connect(widget.header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (Attached()) list_.ClickColumn(section + 1);
    });
    connect(widget.header(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { ReadWidth(section, width); });
}

void ListViewAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Range) WriteShape();
    if (aspect == Aspect::Colours) WriteColours();
    RowsAdaptor::Write(aspect);
}

void ListViewAdaptor::WriteShape() {
    const auto guard = Writing();
    model_.ReadShape();
    const auto& columns = list_.Columns.Get();
    const bool sized =
        std::ranges::any_of(columns, [](const auto& column) { return column.width > Twips{}; });
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const int width = ToPixels(columns[column].width);
        // Qt would show a column without a width a little.
        widget_.setColumnHidden(static_cast<int>(column), sized && width == 0);
        if (width > 0) WriteWidth(static_cast<int>(column), width);
    }
    widget_.setSelectionMode(list_.MultiSelect ? QAbstractItemView::ExtendedSelection
                                               : QAbstractItemView::SingleSelection);
    widget_.setDragEnabled(list_.FilesToDrag != nullptr);
    delegate_.SetLined(list_.GridLines);
    constexpr auto kTyping = QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed;
    widget_.setEditTriggers(
        list_.EditColumn > 0 ? kTyping : QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    widget_.viewport()->update();
}

/// A column that is shown is wide enough for its caption.
void ListViewAdaptor::WriteWidth(int column, int width) {
    const int least = widget_.isHeaderHidden() ? 0 : widget_.header()->sectionSizeHint(column);
    widget_.setColumnWidth(column, std::max(width, least));
}

void ListViewAdaptor::WriteColours() {
    const Colour back = ChosenBack(list_.BackColor, QApplication::palette());
    WriteBackColour(widget_, back, kFieldSurface);
}

bool ListViewAdaptor::eventFilter(QObject* watched, QEvent* event) {
    const bool taken = RowsAdaptor::eventFilter(watched, event);
    // The type comes first: other events come also while the view is destroyed and has no viewport any more.
    if (taken || event->type() != QEvent::MouseButtonRelease || watched != widget_.viewport()) return taken;
    const bool right = static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    if (right && ByUser() && list_.RightClick) list_.RightClick();
    return taken;
}

void ListViewAdaptor::ReadWidth(int column, int width) {
    const QHeaderView& header = *widget_.header();
    // The last column fills what the others leave, without anybody having dragged it.
    const bool fills = header.stretchLastSection() && header.visualIndex(column) == header.count() - 1;
    if (ByUser() && !fills) list_.DragColumn(column + 1, ToTwips(width));
}

} // namespace korvane
