#include "platform/qt/desktop/FontsAhead.h"

#include <fontconfig/fontconfig.h>

namespace korvane {

FontsAhead::FontsAhead() : reading_([] { FcInit(); }) {}

FontsAhead::~FontsAhead() {
    reading_.join();
}

} // namespace korvane
