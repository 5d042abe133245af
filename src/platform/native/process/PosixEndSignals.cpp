#include "platform/native/process/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace korvane {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP};

/// A handler gets nothing but the number of the signal, so it finds its pipe here.
std::atomic<int> pipeOfHandler = -1;
static_assert(std::atomic<int>::is_always_lock_free);

/// Only calls that are allowed in a handler are made here.
extern "C" void TellOfSignal(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(pipeOfHandler, &byte, 1);
    errno = before;
}

void SetHandler(int signal) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    if (now.sa_handler == SIG_IGN) return;
    struct sigaction handled {};
    handled.sa_handler = TellOfSignal;
    // Somebody who asks twice doesn't want to wait.
    handled.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(signal, &handled, nullptr);
}

void TakeHandlerAway(int signal) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    if (now.sa_handler == TellOfSignal) std::signal(signal, SIG_DFL);
}

} // namespace

EndSignals::EndSignals() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    readEnd_ = ends[0];
    writeEnd_ = ends[1];
    pipeOfHandler = writeEnd_;
    for (const int signal : kSignals)
        SetHandler(signal);
}

EndSignals::~EndSignals() {
    if (readEnd_ < 0) return;
    for (const int signal : kSignals)
        TakeHandlerAway(signal);
    pipeOfHandler = -1;
    close(readEnd_);
    close(writeEnd_);
}

} // namespace korvane
