#include "platform/qt/look/NativeStyle.h"
#include "platform/windows/Theme.h"

#include <QGuiApplication>
#include <QStyleFactory>

namespace korvane {

/// Windows draws on a screen only, and may have been asked to draw as its first versions did.
std::unique_ptr<QStyle> NewNativeStyle() {
    const bool onScreen = QGuiApplication::platformName() == QLatin1String("windows");
    if (!onScreen || !IsThemeOn()) return nullptr;
    return std::unique_ptr<QStyle>(QStyleFactory::create(QStringLiteral("windowsvista")));
}

} // namespace korvane
