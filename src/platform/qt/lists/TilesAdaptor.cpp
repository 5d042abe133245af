#include "platform/qt/lists/TilesAdaptor.h"

#include "platform/qt/lists/TilesDelegate.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace korvane {

namespace {

/// Rows and columns share the size of the table, however small they become.
constexpr int kLeastSize = 8;

} // namespace

TilesAdaptor::TilesAdaptor(Tiles& tiles, QTableView& widget)
    : AdaptorOf(tiles, widget), model_(*new TilesModel(tiles, &widget)) {
    widget.setModel(&model_);
    widget.setItemDelegate(new TilesDelegate(&widget));
    LayOut();
    ListenToUser();
}

void TilesAdaptor::LayOut() {
    widget_.setTabKeyNavigation(false);
    widget_.setSelectionMode(QAbstractItemView::SingleSelection);
    widget_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget_.setCornerButtonEnabled(false);
    widget_.setMouseTracking(true);
    widget_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QHeaderView* header : {widget_.horizontalHeader(), widget_.verticalHeader()}) {
        header->setMinimumSectionSize(kLeastSize);
        header->setSectionResizeMode(QHeaderView::Stretch);
        header->setSectionsClickable(false);
        header->setHighlightSections(false);
    }
    widget_.verticalHeader()->hide();
}

void TilesAdaptor::ListenToUser() {
    connect(widget_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { TakeCurrent(current); });
    connect(&widget_, &QTableView::entered, this, [this](const QModelIndex& index) {
        if (Attached()) control_.PointAt(model_.TileAt(index));
    });
    connect(&widget_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (Attached()) control_.DoubleClick(model_.TileAt(index));
    });
}

void TilesAdaptor::TakeCurrent(const QModelIndex& index) {
    if (writing_ || !Attached() || !index.isValid()) return;
    control_.Select(model_.TileAt(index));
    // The view selects what it came to when this has returned. The tile may be another one.
    QMetaObject::invokeMethod(
        this, [this] { ShowCurrent(); }, Qt::QueuedConnection);
}

void TilesAdaptor::ShowCurrent() {
    if (!Attached()) return;
    const QScopedValueRollback guard(writing_, true);
    const QModelIndex index = model_.IndexOf(control_.Current());
    if (index == widget_.currentIndex() && widget_.selectionModel()->isSelected(index)) return;
    if (index.isValid()) {
        widget_.setCurrentIndex(index);
    } else {
        widget_.selectionModel()->clear();
    }
}

void TilesAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) {
        const QScopedValueRollback guard(writing_, true);
        model_.Read();
    }
    if (aspect == Aspect::Range) widget_.horizontalHeader()->setVisible(!control_.Headers.Get().empty());
    if (aspect == Aspect::Items || aspect == Aspect::Selection) ShowCurrent();
    AdaptorOf::Write(aspect);
}

void TilesAdaptor::Deafen() {
    AdaptorOf::Deafen();
    widget_.selectionModel()->disconnect(this);
    model_.Forget();
}

} // namespace korvane
