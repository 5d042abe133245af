#include "e2e/Events.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <vector>

namespace korvane::e2e {

namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsTo(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    return static_cast<int>(std::max(left, std::chrono::milliseconds(0)).count());
}

/// Returns false when the time is up.
bool WaitToReadOne(std::vector<pollfd>& descriptors, Clock::time_point end) {
    int ready = 0;
    do {
        ready = poll(descriptors.data(), descriptors.size(), MillisecondsTo(end));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

bool Until(const std::function<bool()>& holds, std::initializer_list<EventSource*> sources) {
    const auto end = Clock::now() + kPatience;
    std::vector<pollfd> descriptors;
    for (const EventSource* source : sources)
        descriptors.push_back({source->Descriptor(), POLLIN, 0});
    for (;;) {
        // The sources are emptied before `holds` is called, so that anything that happens after the call ends
        // the wait.
        for (EventSource* source : sources)
            source->Drain();
        if (holds()) return true;
        if (!WaitToReadOne(descriptors, end)) return false;
    }
}

bool WaitToRead(int descriptor) {
    std::vector<pollfd> descriptors{{descriptor, POLLIN, 0}};
    return WaitToReadOne(descriptors, Clock::now() + kPatience);
}

} // namespace korvane::e2e
