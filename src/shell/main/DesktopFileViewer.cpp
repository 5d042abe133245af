#include "shell/main/DesktopFileViewer.h"

#include "context/App.h"
#include "platform/Shell.h"

namespace korvane {

void DesktopFileViewer::View(TextView path) {
    if (!path.empty()) app_.Shell().Open({.file = Text(path)});
}

} // namespace korvane
