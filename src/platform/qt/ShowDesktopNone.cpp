#include "platform/qt/ShowDesktop.h"

namespace korvane {

void ToggleShowingDesktop() {}

} // namespace korvane
