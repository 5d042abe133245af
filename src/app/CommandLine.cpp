#include "app/CommandLine.h"

#include "platform/qt/base/Convert.h"

namespace korvane {

CommandLine ReadCommandLine(const QStringList& arguments) {
    CommandLine line;
    QStringList rest = arguments;
    if (rest.size() >= 2 && rest.first() == QLatin1String("--render")) {
        line.picture = rest.at(1);
        rest = rest.mid(2);
        line.dark = !rest.isEmpty() && rest.first() == QLatin1String("--dark");
        if (line.dark) rest.removeFirst();
    }
    line.path = ToText(rest.join(QLatin1Char(' ')));
    return line;
}

} // namespace korvane
