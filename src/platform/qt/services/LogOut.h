#pragma once

#include "controls/Form.h"

class QObject;

namespace korvane {

/// Closes the main window when the user logs out. It asks the same questions as always, and if the window
/// stays open, logging out is cancelled. If the session doesn't allow questions, the window stays as it is.
template <class Session>
void AnswerLogOut(Session& session, Form& main) {
    if (!session.allowsInteraction()) return;
    const bool closed = main.Close();
    session.release();
    if (!closed) session.cancel();
}

/// Calls `AnswerLogOut` at each log-out while `context` lives. `main` must outlive it.
void CloseAtLogOut(Form& main, QObject& context);

} // namespace korvane
