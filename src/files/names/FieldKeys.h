#pragma once

namespace korvane {

class App;
class TextBox;
struct KeyEvent;

// What the fields share in which names of files are typed.

/// Handles the keys that turn a field's text into a file name: Ctrl+U, with Shift with capitals as well.
/// Whether the key was one of them; it is consumed then.
bool ChangeCaseByKey(TextBox& field, KeyEvent& key);

/// Selects the name in a field up to its last point, which is what most often changes.
void SelectStem(TextBox& field);

/// Puts today's date into a field's name.
void AddDate(const App& app, TextBox& field);

} // namespace korvane
