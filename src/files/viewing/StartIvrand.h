#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Starts the companion Ivrand, which isn't looked for as the others are, with a folder and minimised. Where
/// it isn't installed a box says so; without drives the desktop's file manager shows the folder instead.
void StartIvrand(App& app, TextView folder);

} // namespace korvane
