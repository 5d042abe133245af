#pragma once

#include "common/text/Text.h"

class QFileDialog;

namespace korvane {

/// Makes a dialog for "*.exe" offer the files with the permission to execute, on systems where this
/// permission and not the name makes a program. A dialog with other patterns isn't changed.
void OfferProgramsFor(TextView patterns, QFileDialog& dialog);

} // namespace korvane
