#include "platform/windows/Theme.h"

#include <windows.h>
#include <uxtheme.h>

namespace korvane {

bool IsThemeOn() {
    return IsThemeActive() != FALSE;
}

} // namespace korvane
