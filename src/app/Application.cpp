#include "app/Application.h"

#include "platform/qt/binder/CalmStyle.h"

#include <QIcon>
#include <exception>

namespace korvane {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("korvane"));
    // Without a display name, which the toolkit would add to the title of every window.
    setDesktopFileName(QStringLiteral("korvane"));
    setWindowIcon(QIcon(QStringLiteral(":/korvane.svg")));
    setStyle(new CalmStyle);
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        // A step that fails has no effect; the program goes on with the next one.
        qWarning("A handler failed: %s", error.what());
        return false;
    }
}

} // namespace korvane
