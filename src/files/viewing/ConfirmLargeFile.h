#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Asks whether a file of more than a million bytes is to be viewed; a smaller one is, without a question.
bool ConfirmLargeFile(App& app, TextView path);

} // namespace korvane
