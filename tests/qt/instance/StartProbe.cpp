// start_probe SOCKET LOCK [PATH] [--busy]
//
// Starts like the program and prints what happens to it, one event a line. A first start reads standard
// input: "free" empties its slot, which is full at first with --busy, and it ends at the end of its input.

#include "platform/qt/instance/LocalSocketChannel.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QStringList>
#include <iostream>
#include <string>

namespace {

using korvane::LocalSocketChannel;
using korvane::Text;
using korvane::TextView;

void Say(const std::string& line) {
    std::cout << line << std::endl;
}

int RunFirst(LocalSocketChannel& channel, bool busy) {
    bool slotEmpty = !busy;
    bool asked = false;
    channel.Listen({
        [](TextView path) { Say("received " + korvane::ToUtf8(path)); },
        [&] {
            if (!asked) Say("asked");
            asked = true;
            return slotEmpty;
        },
        [] { Say("activated"); },
    });
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char order = 0;
        if (read(STDIN_FILENO, &order, 1) <= 0) QCoreApplication::quit();
        if (order == 'f') slotEmpty = true;
    });
    Say("listening");
    return QCoreApplication::exec();
}

int RunSecond(LocalSocketChannel& channel, const QString& path) {
    if (!path.isEmpty()) {
        Say(channel.FindReceiver() ? "found" : "no receiver");
        Say(channel.WaitUntilSlotEmpty() ? "empty" : "died");
        Say(channel.Deliver(path.toStdU16String()) ? "taken" : "refused");
    }
    channel.ActivateRunning();
    Say("end");
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool busy = arguments.removeOne("--busy");
    LocalSocketChannel channel(
        korvane::InstancePlace{arguments.value(0).toStdString(), arguments.value(1).toStdString()});
    const bool second = channel.PreviousInstanceRuns();
    Say(second ? "second" : "first");
    return second ? RunSecond(channel, arguments.value(2)) : RunFirst(channel, busy);
}
