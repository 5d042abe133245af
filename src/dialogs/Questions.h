#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class App;
class Form;

/// Which of its two buttons Return presses.
enum class YesNoDefault : std::uint8_t { Yes, No };

/// Asks a question with the buttons Yes and No, and returns whether the answer was Yes.
bool AskYesNo(App& app, const Text& question, YesNoDefault preset = YesNoDefault::Yes);

// Boxes with an OK button alone.

/// Tells the result of a command.
void Inform(App& app, const Text& text);
/// Tells what the user has to do otherwise.
void Warn(App& app, const Text& text);
/// Tells what failed.
void TellError(App& app, const Text& text);

/// Shows the window modally and returns the `DialogResult` that it leaves, or 0 when it leaves none.
std::int16_t ShowForResult(App& app, Form& form);

} // namespace korvane
