#pragma once

#include <cstdint>

namespace korvane {

class App;
class Form;
struct KeyEvent;

/// Whether a window that is put beside another one fills the space there or keeps its width.
enum class Stretch : std::uint8_t { KeepWidth, FillSpace };

// These put a window beside the main window (the owner) and make it as high. A message says when there isn't
// enough room.

void DockLeftOf(App& app, const Form& owner, Form& window, Stretch stretch);
void DockRightOf(App& app, const Form& owner, Form& window, Stretch stretch);

/// Gives the window this share of the owner's size and centres it within the owner.
void CentreWithin(const Form& owner, Form& window, int percent);

/// Centres the window within the owner in the size that it has.
void CentreOn(const Form& owner, Form& window);

/// Docks the window by the keys that list windows share. Ctrl+L and Ctrl+R, also with Alt, fill the space;
/// with Shift the window keeps its width. Returns whether the key was one of these, which is consumed then.
bool DockByKey(App& app, const Form& owner, Form& window, KeyEvent& key);

} // namespace korvane
