#pragma once

#include "controls/Form.h"

#include <set>
#include <string>
#include <string_view>

namespace korvane {

// These functions compare windows with the Designer files beside them, as far as that is possible without a
// display.

/// The contents of the Designer file of a window in the folder `src/<folder>`.
std::string LookOf(std::string_view folder, const std::string& window);

/// All texts that are between a `before` and an `after`.
std::set<std::string> Between(const std::string& text, const std::string& before, const std::string& after);

/// Expects that each control has its widget and that the look contains each plain text.
void ExpectLook(const Form& form, std::string_view folder, const std::set<std::string>& plainTexts);

} // namespace korvane
