#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Shows the folder in the desktop's file manager.
void Explore(App& app, const Text& folder);

} // namespace korvane
