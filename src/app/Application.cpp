#include "app/Application.h"

#include "platform/qt/binder/CalmStyle.h"

#include <QIcon>
#include <QResource>
#include <exception>
#include <new>

namespace korvane {

namespace {

/// The pictures are ready pixels. To draw them from SVG, or to look for a reader of PNG, holds up the first
/// window.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int width : {16, 32, 48, 64, 128}) {
        const QByteArray pixels =
            QResource(QStringLiteral(":/korvane-%1.bgra").arg(width)).uncompressedData();
        const auto* bytes = reinterpret_cast<const uchar*>(pixels.constData());
        icon.addPixmap(QPixmap::fromImage(QImage(bytes, width, width, QImage::Format_ARGB32)));
    }
    return icon;
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("korvane"));
    // No display name is set, because Qt would add it to the title of every window.
    setDesktopFileName(QStringLiteral("korvane"));
    setWindowIcon(ProgramIcon());
    setStyle(new CalmStyle);
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        qWarning("A command was given up: there isn't enough memory");
        return false;
    } catch (const std::exception& error) {
        // The command that failed has no effect, and the program goes on.
        qWarning("A handler failed: %s", error.what());
        return false;
    }
}

} // namespace korvane
