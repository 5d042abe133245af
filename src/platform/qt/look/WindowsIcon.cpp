#include "platform/qt/base/Convert.h"
#include "platform/qt/look/DesktopIcon.h"
#include "platform/windows/FileIcons.h"

#include <QPixmap>

namespace korvane {

QIcon DesktopIcon(const QString& name) {
    QIcon icon;
    for (const IconPixels& pixels : FileIcon(ToText(name))) {
        const auto* bytes = reinterpret_cast<const uchar*>(pixels.argb.data());
        icon.addPixmap(QPixmap::fromImage(QImage(bytes, pixels.width, pixels.height, QImage::Format_ARGB32)));
    }
    return icon;
}

} // namespace korvane
