#pragma once

#include "common/Units.h"
#include "platform/Screen.h"

namespace korvane {

class Form;

/// Puts a window whose stored place is `place` (all or part of it may be 0) where it is seen, and gives
/// `place` the new values where it had to become smaller. The window already has the place; `owner` is the
/// main window.
void FitWindowToWorkArea(const Rect& workArea, const Form& owner, Form& window, Rect& place);

} // namespace korvane
