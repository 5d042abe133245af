#pragma once

namespace korvane {

class App;

/// Sets the characters that end words to the built-in ones, and the table that marks them by their codes. The
/// settings file may replace the characters afterwards, but the table keeps the built-in ones.
void SetWordRules(App& app);

} // namespace korvane
