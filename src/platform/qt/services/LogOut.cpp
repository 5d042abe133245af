#include "platform/qt/services/LogOut.h"

#include "platform/qt/base/FinishTyping.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace korvane {

namespace {

/// Qt would close the windows at this event, and they would ask about changes.
class QuitFilter final : public QObject {
public:
    QuitFilter(const std::function<void()>& end, QObject& parent) : QObject(&parent), end_(end) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != qGuiApp || event->type() != QEvent::Quit) return false;
        end_();
        return true;
    }

private:
    std::function<void()> end_;
};

} // namespace

void CloseAtLogOut(Form& main, const std::function<void()>& unasked, QObject& context) {
    // The connection is direct, because the session expects the answer before the signal's handler returns.
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &context,
        [&main, unasked](QSessionManager& session) {
            FinishTyping();
            AnswerLogOut(session, main, unasked);
        },
        Qt::DirectConnection);
}

void EndWithSession(const std::function<void()>& end, QObject& context) {
    qGuiApp->installEventFilter(new QuitFilter(end, context));
}

} // namespace korvane
