#include "platform/qt/combos/TypedComboBox.h"

#include <QLineEdit>

namespace korvane {

TypedComboBox::TypedComboBox(QWidget* parent) : QComboBox(parent) {
    setLineEdit(new QLineEdit(this));
}

} // namespace korvane
