#pragma once

#include "common/text/Text.h"
#include "platform/Shell.h"

#include <cstdint>

namespace korvane {

/// What a desktop without an "explorer.exe" shows for a request.
struct DesktopTarget {
    enum class Kind : std::uint8_t { Path, Home, RecycleStore };

    Kind kind = Kind::Path;
    /// The path of a file or folder. A request never names an address, even when it reads like one.
    Text path;

    bool operator==(const DesktopTarget&) const = default;
};

/// The verb makes no difference: a desktop opens a folder by exploring it.
DesktopTarget TargetOf(const OpenRequest& request);

} // namespace korvane
