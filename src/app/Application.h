#pragma once

#include <QApplication>

namespace korvane {

/// The application with widgets. It sets the style, the icon and the names, and catches the exceptions of
/// handlers.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace korvane
