#pragma once

namespace korvane {

class App;
class TextControl;

/// Shows the address of the web in the selection, from where it can be opened. The user decides about a
/// selection without one.
void OpenUrlFromSelection(App& app, TextControl& control);

} // namespace korvane
