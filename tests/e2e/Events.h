#pragma once

#include <chrono>
#include <functional>
#include <initializer_list>

namespace korvane::e2e {

/// How long a test waits for what has to come.
inline constexpr auto kPatience = std::chrono::seconds(30);

/// Where something happens now and then, and a file descriptor becomes readable when it has.
class EventSource {
public:
    virtual ~EventSource() = default;
    /// -1 for one that doesn't work.
    virtual int Descriptor() const = 0;
    /// Takes what has happened off the descriptor.
    virtual void Drain() = 0;
};

/// Waits until `holds` does, looking again after each event of the sources; false when it doesn't in time.
bool Until(const std::function<bool()>& holds, std::initializer_list<EventSource*> sources);

/// Waits until a descriptor is readable; false when it isn't in time.
bool WaitToRead(int descriptor);

} // namespace korvane::e2e
