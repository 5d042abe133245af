#include "platform/qt/desktop/FontsAhead.h"

namespace korvane {

FontsAhead::FontsAhead() = default;

FontsAhead::~FontsAhead() = default;

} // namespace korvane
