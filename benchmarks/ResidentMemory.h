#pragma once

namespace korvane::bench {

/// The pages of this process that are in memory, counted one by one.
long ResidentKilobytes();

} // namespace korvane::bench
