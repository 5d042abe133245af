#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace korvane {

/// The icon `:/icons/<name>.svg` in the colours of the palette, sharp at every size; a null icon when there
/// is none.
QIcon TintedIcon(const QString& name);
/// The same in one colour.
QIcon TintedIcon(const QString& name, const QColor& colour);

/// The picture of a file; where it can't be read, the icon of the name.
QIcon IconFromFile(const QString& path, const QString& otherwise);

/// Gives each tool button and action of the window the icon of its name, or of its
/// property "iconName".
void SetIcons(QWidget& window);

} // namespace korvane
