#pragma once

#include "common/text/Text.h"

namespace korvane {

/// Whether a file can't be loaded as a table or a text, by the end of its name: it is viewed instead.
bool IsNonTextFile(TextView path);

/// Whether a file only leads to another one, or to a place in the web: the desktop opens it.
bool IsShortcutFile(TextView path);

} // namespace korvane
