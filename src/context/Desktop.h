#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Clears the desktop of windows, or brings them back.
void ShowDesktop(App& app);

/// Shows the folder in the desktop's file manager; the current directory when there is no such folder.
void ExploreFolder(App& app, TextView path);

/// Opens the desktop's file manager where it likes to start.
void RunExplorer(App& app);

void ShowRecycleBin(App& app);

} // namespace korvane
