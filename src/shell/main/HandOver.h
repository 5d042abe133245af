#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;
class FileSystem;
class InstanceChannel;

/// Gives the file of a second start to the copy that is running already. Nothing is given when there is no
/// such file. Sets `App::SecondInstance`. False when the running copy didn't answer, and the process has to
/// end at once.
bool HandOver(App& app, const Text& startFile);

/// The whole second start, before anything of a window is made. False when the user has to be told something.
/// Then the start goes on as usual, which tells it.
bool HandOverUnseen(FileSystem& files, InstanceChannel& running, TextView commandLine);

} // namespace korvane
