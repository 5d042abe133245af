#include "controls/views/Splitter.h"

namespace korvane {

void Splitter::DragTo(int position) {
    Position = position;
    if (Moved) Moved();
}

} // namespace korvane
