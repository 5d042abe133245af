#pragma once

#include "common/text/Text.h"

#include <QString>
#include <QStringList>

namespace korvane {

/// The arguments with which the program was started.
struct StartArguments {
    /// All arguments that aren't options, joined with blanks. They count as one path.
    Text path;
    /// The file for a picture of the main window (`--render FILE`). It is empty for a normal start.
    QString picture;
    /// Whether the picture shows a dark window (`--dark`, only after `--render`).
    bool dark = false;
};

/// The words after the program's name, or the whole text after it on a system that doesn't split it.
QStringList Arguments(int argc, char** argv);
/// Options are recognised only at the beginning. After them a file may have any name.
StartArguments ReadStartArguments(const QStringList& arguments);

} // namespace korvane
