#include "platform/qt/services/LogOut.h"

#include "platform/qt/base/FinishTyping.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace korvane {

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

} // namespace korvane
