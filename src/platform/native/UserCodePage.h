#pragma once

#include "common/text/CodePage.h"

#include <functional>
#include <string>

namespace korvane {

/// The code page in which the user's files stand: the system's own where it has one of single bytes,
/// otherwise that of the user's language.
CodePage UserCodePage();

/// The locale that rules the user's texts, out of the variables of the environment: the first one set of
/// LC_ALL, LC_CTYPE and LANG. `value` gives an empty text for one that isn't set.
std::string TextLocale(const std::function<std::string(const char* name)>& value);

} // namespace korvane
