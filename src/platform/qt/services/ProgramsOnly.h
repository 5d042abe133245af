#pragma once

#include "common/text/Text.h"

class QFileDialog;

namespace korvane {

/// Where a program is told by its right to run and not by its name, makes a dialog that is to offer "*.exe"
/// offer the files with that right. Any other patterns leave it as it is.
void OfferProgramsFor(TextView patterns, QFileDialog& dialog);

} // namespace korvane
