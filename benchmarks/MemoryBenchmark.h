#pragma once

#include <string>

namespace korvane::bench {

/// In a process of its own: prints the bytes that a load of the file adds to the resident memory.
int PrintResidentGrowth(const std::string& path);

/// The option that asks for this, followed by the path.
inline constexpr const char* kResidentGrowthOption = "--resident-growth";

} // namespace korvane::bench
