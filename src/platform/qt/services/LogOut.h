#pragma once

#include "controls/Form.h"

#include <functional>

class QObject;

namespace korvane {

/// Closes the main window when the user logs out. It asks the same questions as always, and if the window
/// stays open, logging out is cancelled. If the session doesn't allow questions, `unasked` is called instead.
template <class Session, class Unasked>
void AnswerLogOut(Session& session, Form& main, const Unasked& unasked) {
    if (!session.allowsInteraction()) {
        unasked();
        return;
    }
    const bool closed = main.Close();
    session.release();
    if (!closed) session.cancel();
}

/// Calls `AnswerLogOut` at each log-out while `context` lives. `main` must outlive it.
void CloseAtLogOut(Form& main, const std::function<void()>& unasked, QObject& context);

/// Calls `end` when the session ends the program after all have answered, while `context` lives. Then nobody
/// is left who could be asked.
void EndWithSession(const std::function<void()>& end, QObject& context);

} // namespace korvane
