#pragma once

#include "platform/Shell.h"

namespace korvane {

/// Moves a file or a folder to the recycle bin, from which the user can get it back. Returns false when this
/// fails or when the user stops it.
bool MoveToRecycleStore(TextView path, RecycleTalk talk);

} // namespace korvane
