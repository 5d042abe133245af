#pragma once

#include <functional>

namespace korvane {

class App;
class TextControl;

/// The text that the windows for paragraphs change: that of the text window, or nullptr while it is closed.
TextControl* ParagraphTarget(const App& app);

/// Changes the paragraphs of the target, if there is one, in one step to undo.
void ChangeParagraphs(const App& app, const std::function<void(TextControl&)>& change);

/// Takes the indents of the paragraphs away.
void ClearIndents(TextControl& control);

void ClearTabs(TextControl& control);
/// Sets all tabs at the same distance.
void SetTabs(TextControl& control, int step);

/// True when lengths are in metric units.
bool IsMetric(const App& app);
/// Gives the ruler and the windows of the text the units of the settings.
void ApplyUnits(const App& app, TextControl& control);

} // namespace korvane
