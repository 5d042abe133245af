#pragma once

#include <cstdint>

namespace korvane {

class App;
class Form;
struct KeyEvent;

/// Whether a window that is put beside another one fills the space there or keeps its width.
enum class Stretch : std::uint8_t { KeepWidth, FillSpace };

// Put a window beside the main window (the owner), as high as that; a box says so where there isn't room.

void DockLeftOf(App& app, const Form& owner, Form& window, Stretch stretch);
void DockRightOf(App& app, const Form& owner, Form& window, Stretch stretch);

/// Docks by the keys that list windows share: Ctrl+L and Ctrl+R, with Alt as well, to fill the space, with
/// Shift to keep the width. Whether the key was one of these; it is consumed then.
bool DockByKey(App& app, const Form& owner, Form& window, KeyEvent& key);

} // namespace korvane
