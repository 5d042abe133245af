#include "app/Application.h"
#include "app/Program.h"
#include "app/StartArguments.h"
#include "app/SystemParts.h"
#include "app/Unattended.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/services/QtMessageBoxes.h"

namespace korvane {
namespace {

/// A picture is taken beside whatever runs, and nobody is there to answer a box.
int Render(const StartArguments& start) {
    if (start.dark) Application::setPalette(DarkPalette());
    const auto system = OwnSystemParts();
    NoOtherCopy nobody;
    PrintedMessages messages;
    return Program(*system, nobody, messages).Render(start.path, start.picture);
}

int Run(const StartArguments& start) {
    FollowDesktopPalette();
    const auto system = OwnSystemParts();
    QtMessageBoxes messages;
    return Program(*system, system->Channel(), messages).Run(start.path);
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    using namespace korvane;
    const StartArguments start = ReadStartArguments(Arguments(argc, argv));
    // The toolkit sees no argument, lest it take the file's name for an option of its own.
    int own = 1;
    const Application application(own, argv);
    return start.picture.isEmpty() ? Run(start) : Render(start);
}
