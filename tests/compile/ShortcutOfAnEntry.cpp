#include "controls/Menu.h"

namespace korvane {

constexpr MenuEntry kEntry{1, "mnuFile_Open", u"&Open", WORD};

} // namespace korvane
