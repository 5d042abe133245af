#pragma once

#include "controls/Form.h"

class QObject;

namespace korvane {

/// Answers the end of the user's session as the closing of the main window: it asks the same questions, and
/// where the window stays, the session does. A session that lets nobody be asked leaves the window as it is.
template <class Session>
void AnswerLogOut(Session& session, Form& main) {
    if (!session.allowsInteraction()) return;
    const bool closed = main.Close();
    session.release();
    if (!closed) session.cancel();
}

/// Answers so as long as `context` lives; `main` outlives it.
void CloseAtLogOut(Form& main, QObject& context);

} // namespace korvane
