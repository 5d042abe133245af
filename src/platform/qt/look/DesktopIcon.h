#pragma once

#include <QIcon>
#include <QString>

namespace korvane {

/// The picture that the desktop has under this name; a null icon for none. Each system has a way of its own
/// to ask.
QIcon DesktopIcon(const QString& name);

} // namespace korvane
