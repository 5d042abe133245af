#include "platform/qt/lists/ListBoxAdaptor.h"

#include "platform/qt/lists/ListBoxModel.h"
#include "platform/qt/look/BackColour.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/look/DenseLines.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QtMath>

namespace korvane {

namespace {

/// Faces are of different heights. This share of the list's own leaves room for most of them.
constexpr int kFaceHeight = 150;

/// The height of a line in a text that is laid out in the widget's font.
int LineHeight(const QWidget& widget) {
    return qCeil(QFontMetricsF(widget.fontMetrics()).lineSpacing());
}

} // namespace

ListBoxAdaptor::ListBoxAdaptor(ListBox& list, QListView& widget)
    : ListBoxAdaptor(list, widget, *new ListBoxModel(list, widget.property("checkBoxes").toBool(), &widget)) {
}

ListBoxAdaptor::ListBoxAdaptor(ListBox& list, QListView& widget, ListBoxModel& model)
    : RowsAdaptor(list, widget, model), list_(list), widget_(widget), model_(model) {
    widget.setUniformItemSizes(true);
    if (widget.property(kDenseLines).toBool()) model.SetRowHeight(LineHeight(widget));
}

void ListBoxAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Colours)
        WriteBackColour(widget_, ChosenBack(list_.BackColor, QApplication::palette()), kFieldSurface);
    RowsAdaptor::Write(aspect);
    if (aspect != Aspect::Font || !list_.NamesFonts) return;
    model_.SetBaseFont(widget_.font());
    model_.SetRowHeight(widget_.fontMetrics().height() * kFaceHeight / 100);
}

bool ListBoxAdaptor::TakesSeveral() const {
    return widget_.selectionMode() == QAbstractItemView::MultiSelection ||
           widget_.selectionMode() == QAbstractItemView::ExtendedSelection;
}

bool ListBoxAdaptor::Picked(int row) const {
    return TakesSeveral() ? list_.Selected(row) : row == list_.ListIndex();
}

void ListBoxAdaptor::Pick(int row, bool picked) {
    if (TakesSeveral()) list_.SetSelected(row, picked);
}

} // namespace korvane
