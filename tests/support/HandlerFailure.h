#pragma once

#include <stdexcept>

namespace korvane {

/// What a test throws where the program calls back, and catches where the call began.
class HandlerFailure : public std::runtime_error {
public:
    HandlerFailure() : std::runtime_error("a handler fails on purpose") {}
};

[[noreturn]] inline void FailInHandler() {
    throw HandlerFailure();
}

} // namespace korvane
