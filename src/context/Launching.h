#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

class App;
class FileSystem;

/// Starts a program in a normal window with the words of `argument`. These aren't quoted, so a path with
/// blanks reaches the program as several words (kept for compatibility: argument-not-quoted). An argument
/// that contains a double quote anywhere loses its first and its last character, quotes or not (kept for
/// compatibility: argument-loses-outer-characters). A program that isn't there is looked for in its other
/// drive form, in "C:\TolmereSet" and at last in the program folder. The result is the task number; 0,
/// without a message, when nothing was started.
int LaunchProgram(App& app, TextView program, TextView argument = {});

/// Starts a program that is there in a normal window, without looking for it anywhere else; each argument
/// reaches it as one word.
int StartProgram(App& app, TextView program, const std::vector<Text>& arguments = {});

/// Where `LaunchProgram` finds the program. The path may not exist when it is nowhere; empty for no name.
Text FindProgram(const FileSystem& files, TextView program);

/// The argument as `LaunchProgram` takes it: without its outer characters if it holds a double quote, and
/// without outer blanks.
TextView BareArgument(TextView argument);

/// Where an Office program ("WINWORD.EXE") is: as the settings say, or in the folders that Office is
/// installed in. The result is a path that doesn't exist when it is nowhere.
Text FindOfficeProgram(const App& app, TextView name);

} // namespace korvane
