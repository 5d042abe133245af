#include "app/Application.h"

#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/dialogs/QtMessageBoxes.h"

#include <QIcon>
#include <QResource>
#include <QTimer>
#include <chrono>
#include <exception>
#include <initializer_list>
#include <new>

namespace korvane {

namespace {

constexpr std::chrono::seconds kIconsLater{1};

/// The pictures are ready pixels. To draw them from SVG, or to look for a reader of PNG, holds up the first
/// window.
QIcon ProgramIcon(std::initializer_list<int> widths) {
    QIcon icon;
    for (const int width : widths) {
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
    // The window system takes several ms for the larger pictures, and shows only small ones at first.
    setWindowIcon(ProgramIcon({16, 32}));
    QTimer::singleShot(kIconsLater, this, [] { setWindowIcon(ProgramIcon({16, 32, 48, 64, 128})); });
    setStyle(new CalmStyle);
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        qWarning("A command was given up: there isn't enough memory");
        TellOfMemory(*event);
        return false;
    } catch (const std::exception& error) {
        // The command that failed has no effect, and the program goes on.
        qWarning("A handler failed: %s", error.what());
        return false;
    }
}

/// A window that can't be painted isn't told of, because it would be painted again under each message. A
/// message that fails itself isn't tried again.
void Application::TellOfMemory(const QEvent& event) {
    if (tells_ || event.type() == QEvent::Paint) return;
    tells_ = true;
    const auto tell = [this] {
        QtMessageBoxes().Show({u"There isn't enough memory for this.\r\n\r\nThe command was given up.",
                               MessageIcon::Exclamation});
        tells_ = false;
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace korvane
