#pragma once

namespace korvane::bench {

/// The processor time of the calling thread in seconds.
double ThreadSeconds();

template <class Work>
double SecondsOf(const Work& work) {
    const double start = ThreadSeconds();
    work();
    return ThreadSeconds() - start;
}

} // namespace korvane::bench
