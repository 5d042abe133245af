#include "app/Start.h"

#include "app/Application.h"
#include "app/OwnFiles.h"
#include "app/Program.h"
#include "app/StartArguments.h"
#include "app/SystemParts.h"
#include "app/Unattended.h"
#include "platform/qt/desktop/FontsAhead.h"
#include "platform/qt/dialogs/QtMessageBoxes.h"
#include "platform/qt/look/Palettes.h"
#include "shell/main/HandOver.h"

#include <utility>

namespace korvane {
namespace {

/// Makes a picture. Other running copies don't matter for it, and message boxes are printed because nobody is
/// there to answer them.
int Render(const StartArguments& start, SystemParts& system, NativeFileSystem files) {
    if (start.dark) Application::setPalette(DarkPalette());
    NoOtherCopy nobody;
    PrintedMessages messages;
    return Program(system, std::move(files), nobody, messages).Render(start.path, start.picture);
}

int Run(const StartArguments& start, SystemParts& system, NativeFileSystem files) {
    FollowDesktopPalette();
    QtMessageBoxes messages;
    return Program(system, std::move(files), system.Channel(), messages).Run(start.path);
}

/// Most second starts end here, before the toolkit is started.
bool IsHandedOver(const StartArguments& start, SystemParts& system, FileSystem& files) {
    return start.picture.isEmpty() && HandOverUnseen(files, system.Channel(), start.path);
}

} // namespace

int Start(int argc, char** argv, const std::function<void()>& begun) {
    const StartArguments start = ReadStartArguments(Arguments(argc, argv));
    const auto system = OwnSystemParts();
    NativeFileSystem files = OwnFiles();
    if (IsHandedOver(start, *system, files)) return 0;
    const FontsAhead fonts;
    // The file is read while Qt starts.
    if (!start.path.empty()) files.ReadAhead(start.path);
    // Qt doesn't get the arguments, because it could take the name of the file for one of its own options.
    int own = 1;
    const Application application(own, argv);
    if (begun) begun();
    return start.picture.isEmpty() ? Run(start, *system, std::move(files))
                                   : Render(start, *system, std::move(files));
}

} // namespace korvane
