#include "platform/qt/services/LogOut.h"

#include "platform/qt/base/FinishTyping.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace korvane {

void CloseAtLogOut(Form& main, QObject& context) {
    // At once: the session waits for the answer within the signal.
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &context,
        [&main](QSessionManager& session) {
            FinishTyping();
            AnswerLogOut(session, main);
        },
        Qt::DirectConnection);
}

} // namespace korvane
