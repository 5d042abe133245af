#pragma once

#include "common/text/Text.h"
#include "platform/Shell.h"

#include <cstdint>

namespace korvane {

/// What a desktop without an "explorer.exe" shows for a request.
struct DesktopTarget {
    enum class Kind : std::uint8_t { Path, Home, RecycleStore };

    Kind kind = Kind::Path;
    /// Of a file or folder, never an address: what a request names is a file even when it reads like one.
    Text path;

    bool operator==(const DesktopTarget&) const = default;
};

/// The verb makes no difference: a desktop opens a folder by exploring it.
DesktopTarget TargetOf(const OpenRequest& request);

} // namespace korvane
