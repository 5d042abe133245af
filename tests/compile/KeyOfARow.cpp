#include "controls/KeyTable.h"

namespace korvane {

constexpr KeyRow<int> kRow{WORD, 1};

} // namespace korvane
