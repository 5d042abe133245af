#pragma once

#include "common/text/Text.h"

#include <QString>
#include <QStringList>

namespace korvane {

/// The arguments with which the program was started.
struct StartArguments {
    /// All arguments that aren't options, joined with blanks. They count as one path.
    Text path;
    /// `--render FILE`: where the picture of the main window goes; empty for a usual start.
    QString picture;
    /// `--dark`, with `--render` only.
    bool dark = false;
};

/// What was typed behind the program's name: its words, or all of it where the system hands it over so.
QStringList Arguments(int argc, char** argv);
/// Options are recognised only at the beginning. After them a file may have any name.
StartArguments ReadStartArguments(const QStringList& arguments);

} // namespace korvane
