#include "platform/qt/adaptors/DropDownAdaptor.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/BackColour.h"

#include <QLineEdit>

namespace korvane {

DropDownAdaptor::DropDownAdaptor(DropDown& field, QComboBox& widget) : AdaptorOf(field, widget) {
    widget.setEditable(true);
    widget.setInsertPolicy(QComboBox::NoInsert);
    // What is typed isn't completed: a pattern that begins like a listed one is another one.
    widget.setCompleter(nullptr);
    connect(widget.lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { control_.Type(ToText(text)); });
    connect(&widget, &QComboBox::activated, this, [this](int index) { control_.Choose(index); });
}

void DropDownAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) WriteItems();
    if (aspect == Aspect::Text) WriteText();
    if (aspect == Aspect::Colours) WriteBackColour(widget_, control_.BackColor, kFieldSurface);
    AdaptorOf::Write(aspect);
}

void DropDownAdaptor::WriteItems() {
    widget_.clear();
    for (const Text& item : control_.Items.Get())
        widget_.addItem(ToQString(item));
    WriteText();
}

void DropDownAdaptor::WriteText() {
    const QString text = ToQString(control_.Text.Get());
    if (widget_.currentText() != text) widget_.setEditText(text);
}

void DropDownAdaptor::Deafen() {
    if (widget_.lineEdit() != nullptr) widget_.lineEdit()->disconnect(this);
    AdaptorOf::Deafen();
}

} // namespace korvane
