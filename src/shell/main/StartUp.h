#pragma once

#include "common/text/Text.h"

namespace korvane {

class TextBox;
struct MainParts;

/// The load of the main window: settings, record, place, sidebar, command line. Where a copy of the program
/// runs already, its file goes there, the window closes, and `App::SecondInstance` is 1. A file that another
/// start hands over goes into `txtCommand`.
void StartUp(const MainParts& main, TextBox& txtCommand, const Text& commandLine);

} // namespace korvane
