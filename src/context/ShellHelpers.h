#pragma once

#include "common/Text.h"

namespace korvane {

class App;

/// Shows the folder in the desktop's file manager; the current directory when there is no such folder.
void ExploreFolder(App& app, TextView folder);

/// Hides all windows, or shows them again.
void ShowDesktop(App& app);

/// Starts the desktop's file manager.
void RunExplorer(App& app);

} // namespace korvane
