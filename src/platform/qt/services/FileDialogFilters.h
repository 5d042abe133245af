#pragma once

#include "common/text/Text.h"

#include <QString>
#include <QStringList>

namespace korvane {

/// Turns patterns separated by semicolons ("*.tbx;*.txt") into the form that Qt's dialogs expect. "*.*" means
/// all files, even those without a dot in their names, and so does an empty list.
QString FilePatterns(TextView patterns);

/// Turns pairs of a name and its patterns, all separated by bars ("Programs (*.exe)|*.exe"), into the form
/// that Qt's dialogs expect. A last name without patterns is left out.
QStringList FileNameFilters(TextView pairs);

} // namespace korvane
