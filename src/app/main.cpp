#include "app/Application.h"
#include "app/CommandLine.h"
#include "app/Program.h"
#include "app/SystemParts.h"
#include "app/Unattended.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/services/QtMessageBoxes.h"

namespace korvane {
namespace {

/// A picture is taken beside whatever runs, and nobody is there to answer a box.
int Render(const CommandLine& line) {
    if (line.dark) Application::setPalette(DarkPalette());
    const auto system = OwnSystemParts();
    NoOtherCopy nobody;
    PrintedMessages messages;
    return Program(*system, nobody, messages).Render(line.path, line.picture);
}

int Run(const CommandLine& line) {
    FollowDesktopPalette();
    const auto system = OwnSystemParts();
    QtMessageBoxes messages;
    return Program(*system, system->Channel(), messages).Run(line.path);
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    using namespace korvane;
    const CommandLine line = ReadCommandLine(Arguments(argc, argv));
    // The toolkit sees no argument, lest it take the file's name for an option of its own.
    int own = 1;
    const Application application(own, argv);
    return line.picture.isEmpty() ? Run(line) : Render(line);
}
