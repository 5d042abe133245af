#pragma once

#include <chrono>
#include <functional>
#include <initializer_list>

namespace korvane::e2e {

/// The longest time that a test waits for something.
inline constexpr auto kPatience = std::chrono::seconds(30);

/// A source of events. Its file descriptor becomes readable when something has happened.
class EventSource {
public:
    virtual ~EventSource() = default;
    /// The descriptor is -1 for a source that doesn't work.
    virtual int Descriptor() const = 0;
    /// Removes the events that are waiting at the descriptor.
    virtual void Drain() = 0;
};

/// Waits until `holds` returns true, and asks it again after each event of the sources. Returns false when
/// the time is up.
bool Until(const std::function<bool()>& holds, std::initializer_list<EventSource*> sources);

/// Waits until a descriptor is readable. Returns false when the time is up.
bool WaitToRead(int descriptor);

} // namespace korvane::e2e
