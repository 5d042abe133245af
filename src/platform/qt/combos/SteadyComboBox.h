#pragma once

#include <QComboBox>

namespace korvane {

/// A box whose size doesn't go by its lines. A policy of `QComboBox` can ask for that too, but then the list
/// that drops down is made with the window, and not when it is needed.
class SteadyComboBox : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace korvane
