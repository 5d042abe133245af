#include "app/Application.h"
#include "app/OwnFiles.h"
#include "app/Program.h"
#include "app/StartArguments.h"
#include "app/SystemParts.h"
#include "app/Unattended.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/services/QtMessageBoxes.h"
#include "shell/main/HandOver.h"

#include <memory>
#include <utility>

namespace korvane {
namespace {

/// Makes a picture. Other running copies don't matter for it, and message boxes are printed because nobody is
/// there to answer them.
int Render(const StartArguments& start, std::unique_ptr<SystemParts> system) {
    if (start.dark) Application::setPalette(DarkPalette());
    NoOtherCopy nobody;
    PrintedMessages messages;
    return Program(*system, nobody, messages).Render(start.path, start.picture);
}

int Run(const StartArguments& start, std::unique_ptr<SystemParts> system) {
    FollowDesktopPalette();
    QtMessageBoxes messages;
    return Program(*system, system->Channel(), messages).Run(start.path);
}

/// Most second starts end here, before the toolkit is started.
bool IsHandedOver(const StartArguments& start, SystemParts& system) {
    NativeFileSystem files = OwnFiles();
    return start.picture.isEmpty() && HandOverUnseen(files, system.Channel(), start.path);
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    using namespace korvane;
    const StartArguments start = ReadStartArguments(Arguments(argc, argv));
    auto system = OwnSystemParts();
    if (IsHandedOver(start, *system)) return 0;
    // Qt doesn't get the arguments, because it could take the name of the file for one of its own options.
    int own = 1;
    const Application application(own, argv);
    return start.picture.isEmpty() ? Run(start, std::move(system)) : Render(start, std::move(system));
}
