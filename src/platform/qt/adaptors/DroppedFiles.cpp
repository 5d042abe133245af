#include "platform/qt/adaptors/DroppedFiles.h"

#include "platform/qt/base/Convert.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace korvane {

std::vector<Text> LocalFiles(const QMimeData& dragged) {
    std::vector<Text> files;
    for (const QUrl& url : dragged.urls()) {
        // The address of a folder may end in a separator.
        const QString path = QDir::cleanPath(url.toLocalFile());
        if (url.isLocalFile()) files.push_back(ToText(QDir::toNativeSeparators(path)));
    }
    return files;
}

void AcceptFiles(QEvent& drag) {
    auto& event = static_cast<QDropEvent&>(drag);
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(!LocalFiles(*event.mimeData()).empty());
}

} // namespace korvane
