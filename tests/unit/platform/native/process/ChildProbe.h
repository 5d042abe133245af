#pragma once

#include "platform/native/SystemCalls.h"

#include <filesystem>

namespace korvane {

/// The program that carries out orders, beside the test's own.
inline std::filesystem::path ChildProbe() {
    return system_calls::ExecutablePath().parent_path() / "child_probe.exe";
}

} // namespace korvane
