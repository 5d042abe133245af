#pragma once

#include <stdexcept>

namespace korvane {

/// Thrown by a test where the program calls back, and caught where the test called the program.
class HandlerFailure : public std::runtime_error {
public:
    HandlerFailure() : std::runtime_error("a handler fails on purpose") {}
};

[[noreturn]] inline void FailInHandler() {
    throw HandlerFailure();
}

} // namespace korvane
