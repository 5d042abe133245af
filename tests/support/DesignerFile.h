#pragma once

#include "controls/Form.h"

#include <set>
#include <string>
#include <string_view>

namespace korvane {

// Holds windows against the Designer files beside them, as far as that goes without a display.

/// The Designer file of a window of the folder `src/<folder>`.
std::string LookOf(std::string_view folder, const std::string& window);

/// The texts between `before` and `after`, wherever they stand.
std::set<std::string> Between(const std::string& text, const std::string& before, const std::string& after);

/// Expects that each control has its widget and that each plain text stands in the look.
void ExpectLook(const Form& form, std::string_view folder, const std::set<std::string>& plainTexts);

} // namespace korvane
