#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// Whether Windows asks the user before it moves something, and shows what it does.
enum class RecycleTalk : std::uint8_t { Silent, AsksAndShows };

/// Moves a file or a folder to the recycle bin, from which the user can get it back. Returns false when this
/// fails or when the user stops it.
bool MoveToRecycleStore(TextView path, RecycleTalk talk);

} // namespace korvane
