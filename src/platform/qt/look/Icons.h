#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace korvane {

/// The icon `:/icons/<name>.svg` in the colours of the palette. It is sharp at every size. The result is a
/// null icon when there is no such file.
QIcon TintedIcon(const QString& name);
/// The same in one colour.
QIcon TintedIcon(const QString& name, const QColor& colour);

/// The picture in a file, or the icon called `otherwise` if the file can't be read.
QIcon IconFromFile(const QString& path, const QString& otherwise);

/// Gives each tool button and action of the window the icon of its own name, or of the name in its property
/// "iconName".
void SetIcons(QWidget& window);

} // namespace korvane
