#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Lets the user choose a program of the list, which then opens the file of the full path. The current
/// directory stays.
void OpenWithUserProgram(App& app, TextView path);

} // namespace korvane
