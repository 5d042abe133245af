#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Opens a file in what is right for the end of its name: the PDF viewer of the settings, a companion, an
/// Office program after a question, the browser, or, for a Word file, the text window. A path without a
/// folder is in `FileOpFolder`. False when the file wasn't taken, so that the caller shows it as a text; one
/// that nothing could be started for, or that the user didn't want in its Office program, counts as taken.
bool ViewFileByType(App& app, TextView path);

} // namespace korvane
