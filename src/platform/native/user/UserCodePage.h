#pragma once

#include "common/text/CodePage.h"

#include <functional>
#include <string>

namespace korvane {

/// The code page of the user's files: the system's own if it has one of single bytes, otherwise the usual one
/// for the user's language.
CodePage UserCodePage();

/// The locale for the user's texts: the first of the environment variables LC_ALL, LC_CTYPE and LANG that is
/// set. `value` returns the value of a variable, which is empty when it isn't set.
std::string TextLocale(const std::function<std::string(const char* name)>& value);

} // namespace korvane
