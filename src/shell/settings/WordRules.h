#pragma once

namespace korvane {

class App;

/// The built-in characters that end words, and the table of them by their codes. The settings file may
/// replace the characters afterwards; the table follows the built-in ones at each start.
void SetWordRules(App& app);

} // namespace korvane
