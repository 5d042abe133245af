#include "platform/qt/services/QtPickers.h"

#include "platform/qt/base/Convert.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>

namespace korvane {

std::optional<FontSpec> QtFontPicker::Choose(const FontSpec& present) {
    QFontDialog dialog(WithSpec(QApplication::font(), present), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QFont chosen = dialog.selectedFont();
    return FontSpec{ToText(chosen.family()), chosen.pointSize(), chosen.bold()};
}

std::optional<Colour> QtColourPicker::Choose(Colour start, Extent) {
    const QColor first = start == kNoColour ? QColor(Qt::white) : ToQColor(start);
    QColorDialog dialog(first, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return ToColour(dialog.selectedColor());
}

} // namespace korvane
