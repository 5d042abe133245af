#include "platform/qt/desktop/ShowingDesktop.h"

namespace korvane {

void ToggleShowingDesktop() {}

} // namespace korvane
