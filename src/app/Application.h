#pragma once

#include <QApplication>

namespace korvane {

/// The process with widgets: its style, icon and names, and the edge at which an exception of a handler ends.
class Application : public QApplication {
public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace korvane
