#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Whether a file can have the name. A box shows the first character that forbids it.
bool CheckFileName(App& app, TextView name);

} // namespace korvane
