#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;
class TextControl;

/// What the tool-tip over a field says, on one line.
Text FieldTip(const TextControl& control, int field);

/// Shows a hyperlink that was clicked. `scratch` takes its address meanwhile.
void ShowHyperlink(App& app, TextControl& control, TextControl& scratch, int field, const Text& link);

/// Edits the field at the cursor; false when the window closed without a result.
bool EditField(App& app, TextControl& control);

} // namespace korvane
