#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Hides all windows, or brings them back.
void ShowDesktop(App& app);

/// Shows the folder in the desktop's file manager; the current directory when there is no such folder.
void ExploreFolder(App& app, TextView path);

/// Opens the desktop's file manager in a place of its own choice.
void RunExplorer(App& app);

void ShowRecycleBin(App& app);

} // namespace korvane
