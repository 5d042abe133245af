#include "app/StartArguments.h"

#include "platform/qt/base/Convert.h"

namespace korvane {

StartArguments ReadStartArguments(const QStringList& arguments) {
    StartArguments start;
    QStringList rest = arguments;
    if (rest.size() >= 2 && rest.first() == QLatin1String("--render")) {
        start.picture = rest.at(1);
        rest = rest.mid(2);
        start.dark = !rest.isEmpty() && rest.first() == QLatin1String("--dark");
        if (start.dark) rest.removeFirst();
    }
    start.path = ToText(rest.join(QLatin1Char(' ')));
    return start;
}

} // namespace korvane
