#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Starts the browser with the addresses, which are separated by blanks, as the words of its command line.
/// They aren't quoted (kept for compatibility: urls-not-quoted). `browser` is the path of a program, and may
/// have options after it. When there is no such program, the desktop's own browser opens each address.
void StartBrowser(App& app, TextView browser, TextView urls);

} // namespace korvane
