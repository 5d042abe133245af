#pragma once

#include "controls/KeyEvent.h"

class QKeyEvent;

namespace korvane {

/// The virtual key code and the mask of a key. The code is 0 for a key that has none.
KeyEvent ToKeyEvent(const QKeyEvent& event);

} // namespace korvane
