#include "app/StartArguments.h"
#include "common/path/ProcessCommandLine.h"
#include "platform/qt/base/Convert.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>

namespace korvane {

/// On Windows the command line is one text. The arguments of main() have lost some of its characters.
QStringList Arguments(int, char**) {
    const Text line = FromWide(GetCommandLineW());
    return {ToQString(WithoutProgramName(line))};
}

} // namespace korvane
