#include "shell/main/DesktopFileViewer.h"

#include "context/App.h"
#include "platform/Shell.h"
#include "shell/settings/ProgramPicker.h"

namespace korvane {

void DesktopFileViewer::View(TextView path) {
    app_.Shell().Open({.file = Text(path)});
}

void DesktopFileViewer::OpenWith(TextView path) {
    Text program;
    if (!PickProgram(app_, u"Open with", program)) return;
    app_.Shell().Run(program, {Text(path)}, WindowState::Normal);
}

} // namespace korvane
