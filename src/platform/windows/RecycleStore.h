#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// Whether the system itself asks before it moves, and shows that it does.
enum class RecycleTalk : std::uint8_t { Silent, AsksAndShows };

/// Moves a file or a folder to the store from which the user can get it back. False when that failed, or when
/// the user stopped it.
bool MoveToRecycleStore(TextView path, RecycleTalk talk);

} // namespace korvane
