#pragma once

#include "common/text/Text.h"

namespace korvane {

/// What is laid out of a name or a line. A hostile file has names of megabytes, and laying one out would stop
/// the program for a long time.
inline constexpr std::size_t kMostShown = 1000;
inline TextView Shown(TextView text) {
    return Left(text, kMostShown);
}

} // namespace korvane
