#include "platform/qt/look/DesktopPrefersDark.h"

#include <QSettings>

namespace korvane {

bool DesktopPrefersDark() {
    const QSettings personal(
        QStringLiteral(
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
        QSettings::NativeFormat);
    return !personal.value(QStringLiteral("AppsUseLightTheme"), true).toBool();
}

} // namespace korvane
