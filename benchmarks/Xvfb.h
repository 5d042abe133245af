#pragma once

#include <sys/types.h>

namespace korvane::bench {

/// A display in memory, which the environment names as long as this lives. Ends the program when there is
/// none.
class Xvfb {
public:
    Xvfb();
    Xvfb(const Xvfb&) = delete;
    Xvfb& operator=(const Xvfb&) = delete;
    ~Xvfb();

private:
    pid_t id_ = -1;
};

} // namespace korvane::bench
