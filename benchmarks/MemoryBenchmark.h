#pragma once

#include <string>

namespace korvane::bench {

/// Loads the file and prints by how many bytes the resident memory grows. It must run in a process of its
/// own.
int PrintResidentGrowth(const std::string& path);

/// The option for this. The path of the file comes after it.
inline constexpr const char* kResidentGrowthOption = "--resident-growth";

} // namespace korvane::bench
