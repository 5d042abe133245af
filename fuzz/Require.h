#pragma once

#include <cstdio>
#include <cstdlib>

namespace korvane {

/// Ends the run with a finding when `holds` isn't so.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

} // namespace korvane
