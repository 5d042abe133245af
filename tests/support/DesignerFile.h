#pragma once

#include "controls/Form.h"

#include <set>
#include <string>
#include <string_view>

namespace korvane {

// Compares windows with the Designer files beside them, as far as that is possible without a display.

/// The Designer file of a window of the folder `src/<folder>`.
std::string LookOf(std::string_view folder, const std::string& window);

/// The texts between `before` and `after`, in all places.
std::set<std::string> Between(const std::string& text, const std::string& before, const std::string& after);

/// Expects that each control has its widget and that the file has each plain text.
void ExpectLook(const Form& form, std::string_view folder, const std::set<std::string>& plainTexts);

} // namespace korvane
