#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class App;

/// The programs that go with this one.
enum class Companion : std::uint8_t {
    Abrill,     ///< calculator
    Dunmark,    ///< text tool
    Nimbrel,    ///< plays sounds
    Tessaly,    ///< shows pictures
    Lorrit,     ///< lists folders
    Wexley,     ///< clipboard viewer
    TolmereSet, ///< the other tools
    Ostrel,     ///< finds text
    Veldan,     ///< finds files
};

/// Starts a companion as `LaunchProgram` does. Its argument is one file or folder, or nothing. When it can't
/// be started, the desktop's own program for texts, sounds, pictures, folders or sums takes its place; the
/// others fail without a message.
void LaunchCompanion(App& app, Companion companion, TextView argument = {});

/// Does the same without anything in its place. False when it can't be started.
bool StartCompanion(App& app, Companion companion, TextView argument = {});

void LaunchLorrit(App& app, TextView folder);
void LaunchDunmark(App& app, TextView file);

} // namespace korvane
