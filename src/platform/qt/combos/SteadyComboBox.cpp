#include "platform/qt/combos/SteadyComboBox.h"

#include <QStyleOptionComboBox>

namespace korvane {

namespace {

/// In characters of average width.
constexpr int kWidth = 20;

} // namespace

QSize SteadyComboBox::sizeHint() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(kWidth * fontMetrics().averageCharWidth(), fontMetrics().height() + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

} // namespace korvane
