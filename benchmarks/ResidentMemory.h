#pragma once

namespace korvane::bench {

/// The pages of this process that are in memory, counted one by one.
long ResidentKilobytes();

/// From here on the most is kept that is in memory at one time.
void BeginPeak();
long PeakKilobytes();

} // namespace korvane::bench
