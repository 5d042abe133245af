#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace korvane {

/// Runs `test` in its own process with the path of a folder in which an empty disk of this size is mounted.
/// If `test` fails there, the calling test fails too. Returns false when this user can't mount a disk.
bool RunOnSmallDisk(std::int64_t bytes, const std::function<void(const std::filesystem::path&)>& test);

} // namespace korvane
