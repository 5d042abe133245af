#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Lets the desktop open the file if it only leads to another one or into the web; whether it is such a file.
bool OpenShortcut(App& app, const Text& path);

} // namespace korvane
