#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Shows the file at hand by its type; one that no type takes as a text, after the question about large
/// files.
void ViewFileAtHand(App& app);

/// Makes the file of a full path, which is there, the one at hand and shows it.
void ViewFile(App& app, TextView path);

} // namespace korvane
