#include "platform/qt/look/DesktopIcon.h"

namespace korvane {

QIcon DesktopIcon(const QString& name) {
    return QIcon::hasThemeIcon(name) ? QIcon::fromTheme(name) : QIcon();
}

} // namespace korvane
