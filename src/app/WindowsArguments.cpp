#include "app/StartArguments.h"
#include "platform/qt/base/Convert.h"
#include "platform/windows/ProcessCommandLine.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>

namespace korvane {

/// Here what was typed comes in one piece, with characters that the arguments of main() have lost.
QStringList Arguments(int, char**) {
    const Text line = FromWide(GetCommandLineW());
    return {ToQString(WithoutProgramName(line))};
}

} // namespace korvane
