#include "app/Application.h"
#include "app/Program.h"
#include "app/StartArguments.h"
#include "app/SystemParts.h"
#include "app/Unattended.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/services/QtMessageBoxes.h"

namespace korvane {
namespace {

/// Makes a picture. Other running copies don't matter for it, and message boxes are printed because nobody is
/// there to answer them.
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
    // Qt doesn't get the arguments, because it could take the name of the file for one of its own options.
    int own = 1;
    const Application application(own, argv);
    return start.picture.isEmpty() ? Run(start) : Render(start);
}
