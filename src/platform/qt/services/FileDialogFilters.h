#pragma once

#include "common/text/Text.h"

#include <QString>
#include <QStringList>

namespace korvane {

/// Patterns separated by semicolons ("*.tbx;*.txt") as the dialogs of the toolkit want them. "*.*" means all
/// files, also those without a point in their name, and so does no pattern at all.
QString FilePatterns(TextView patterns);

/// Pairs of a name and its patterns, all separated by bars ("Programs (*.exe)|*.exe"), as the dialogs want
/// them. A name without patterns behind the last pair is left out.
QStringList FileNameFilters(TextView pairs);

} // namespace korvane
