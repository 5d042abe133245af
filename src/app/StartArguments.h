#pragma once

#include "common/text/Text.h"

#include <QString>
#include <QStringList>

namespace korvane {

/// What the program was started with.
struct StartArguments {
    /// All that isn't an option, joined with one blank: it counts as one path.
    Text path;
    /// `--render FILE`: where the picture of the main window goes; empty for a usual start.
    QString picture;
    /// `--dark`, with `--render` only.
    bool dark = false;
};

/// What was typed behind the program's name: its words, or all of it where the system hands it over so.
QStringList Arguments(int argc, char** argv);
/// Options count only in front, so that a file may have any name behind them.
StartArguments ReadStartArguments(const QStringList& arguments);

} // namespace korvane
