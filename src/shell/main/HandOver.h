#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Gives the file of a second start to the copy that is running already. Nothing is given when there is no
/// such file. Sets `App::SecondInstance`. False when the running copy didn't answer, and the process has to
/// end at once.
bool HandOver(App& app, const Text& startFile);

} // namespace korvane
