#pragma once

#include "common/text/Text.h"

#include <QStringList>

namespace korvane {

/// Turns pairs of a name and its patterns, all separated by bars ("Programs (*.exe)|*.exe"), into the form
/// that Qt's dialogs expect. A last name without patterns is left out.
QStringList FileNameFilters(TextView pairs);

} // namespace korvane
