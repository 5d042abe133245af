#pragma once

#include <sys/types.h>

namespace korvane::bench {

/// A display in memory. The environment names it while this object lives. The program ends when there is no
/// Xvfb.
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
