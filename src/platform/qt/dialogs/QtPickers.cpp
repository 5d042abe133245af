#include "platform/qt/dialogs/QtPickers.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/DialogParent.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>

namespace korvane {

std::optional<FontSpec> QtFontDialog::Choose(const FontSpec& present) {
    QFontDialog dialog(WithSpec(QApplication::font(), present), DialogParent());
    const QFont first = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QFont chosen = dialog.selectedFont();
    // A font that this system doesn't have is shown by another one, which isn't to take its place unasked.
    if (chosen == first) return present;
    return FontSpec{ToText(chosen.family()), chosen.pointSize(), chosen.bold()};
}

std::optional<Colour> QtColourPicker::Choose(Colour start, Extent) {
    const QColor first = start == kNoColour ? QColor(Qt::white) : ToQColor(start);
    QColorDialog dialog(first, DialogParent());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return ToColour(dialog.selectedColor());
}

} // namespace korvane
