#pragma once

#include <QComboBox>

namespace korvane {

/// A box with a field in which the user can type. A `QComboBox` that is told to have a field makes its list
/// at once, which takes longer than all the rest of it; this one makes its list when it opens.
class TypedComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit TypedComboBox(QWidget* parent = nullptr);
};

} // namespace korvane
