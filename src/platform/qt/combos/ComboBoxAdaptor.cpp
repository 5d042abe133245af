#include "platform/qt/combos/ComboBoxAdaptor.h"

#include <QScopedValueRollback>

namespace korvane {

ComboBoxAdaptor::ComboBoxAdaptor(ComboBox& list, QComboBox& widget)
    : AdaptorOf(list, widget), model_(*new ListBoxModel(list, false, &widget)) {
    widget.setModel(&model_);
    list.SetRowListener(this);
    connect(&widget, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!writing_ && Attached()) control_.Select(index);
    });
}

ComboBoxAdaptor::~ComboBoxAdaptor() {
    if (Attached()) control_.SetRowListener(nullptr);
}

void ComboBoxAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) RowsReset();
    AdaptorOf::Write(aspect);
}

void ComboBoxAdaptor::Deafen() {
    AdaptorOf::Deafen();
    model_.Forget();
}

template <class TellT>
void ComboBoxAdaptor::Follow(TellT tell) {
    const QScopedValueRollback guard(writing_, true);
    tell();
    widget_.setCurrentIndex(control_.ListIndex());
}

void ComboBoxAdaptor::RowsReset() {
    Follow([this] { model_.ReadRows(); });
}

void ComboBoxAdaptor::RowsInserted(int first, int last) {
    Follow([&] { model_.TellInserted(first, last); });
}

void ComboBoxAdaptor::RowsRemoved(int first, int last) {
    Follow([&] { model_.TellRemoved(first, last); });
}

void ComboBoxAdaptor::CurrentChanged() {
    Follow([] {});
}

} // namespace korvane
