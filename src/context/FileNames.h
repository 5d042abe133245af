#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Whether the name can be a file's. A box tells the first character that forbids it.
bool CheckFileName(App& app, TextView name);

} // namespace korvane
