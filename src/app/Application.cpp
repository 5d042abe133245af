#include "app/Application.h"

#include "platform/qt/binder/CalmStyle.h"

#include <QIcon>
#include <exception>
#include <new>

namespace korvane {

namespace {

/// Ready pictures: a drawing in SVG would have to be read and drawn in each size before the first window
/// comes.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int width : {16, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/korvane-%1.png").arg(width));
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
