#include "platform/qt/lists/RowIcons.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/DesktopIcon.h"
#include "platform/qt/look/Icons.h"

namespace korvane {

namespace {

QIcon MakeIcon(const QString& name) {
    const QIcon own = TintedIcon(name);
    if (!own.isNull()) return own;
    const QIcon desktops = DesktopIcon(name);
    return desktops.isNull() ? IconFromFile(name, {}) : desktops;
}

} // namespace

const QIcon& RowIcons::Icon(TextView name) {
    const QString key = ToQString(name);
    auto found = icons_.find(key);
    if (found == icons_.end()) found = icons_.insert(key, MakeIcon(key));
    return *found;
}

} // namespace korvane
