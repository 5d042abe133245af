#pragma once

#include <QApplication>

namespace korvane {

/// The application with widgets. It sets the style, the icon and the names, and catches the exceptions of
/// handlers. Where the memory doesn't suffice, it tells the user.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void TellOfMemory(const QEvent& event);

    bool tells_ = false;
};

} // namespace korvane
