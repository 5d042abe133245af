#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Starts a program in a normal window, with the words of `argument`, which nobody quotes: a path with blanks
/// reaches the program as several words. Of an argument that holds a double quote anywhere, the first and the
/// last character are dropped, quotes or not. A program that isn't there is looked for in its other drive
/// form, in "C:\TolmereSet" and at last in the program folder. The task number; 0, without a word, when
/// nothing was started.
int LaunchProgram(App& app, TextView program, TextView argument = {});

/// Starts a program that is there in a normal window, without looking for it anywhere else.
int StartProgram(App& app, TextView program);

/// The argument as `LaunchProgram` takes it: without its outer characters if it holds a double quote, and
/// without outer blanks.
TextView BareArgument(TextView argument);

/// Where an Office program ("WINWORD.EXE") is: as the settings say, or in the folders that Office is
/// installed in. When it is nowhere, a path that doesn't exist.
Text FindOfficeProgram(const App& app, TextView name);

} // namespace korvane
