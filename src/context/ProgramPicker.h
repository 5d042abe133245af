#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Lets the user choose a program in the file chooser and puts its path in `location`; false, with
/// everything as it was, when none is chosen. The current directory stays.
bool PickProgram(App& app, TextView title, Text& location);

} // namespace korvane
