#include "app/StartArguments.h"

namespace korvane {

QStringList Arguments(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

} // namespace korvane
