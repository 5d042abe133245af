#pragma once

#include <cstdio>
#include <cstdlib>

namespace korvane {

/// Ends the run with a finding when `holds` is false.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

} // namespace korvane
