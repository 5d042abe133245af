#include "dbops/TabCommands.h"

#include "dbops/frmFindReplace.h"

#include <array>

namespace korvane {

namespace {

constexpr std::array kCommands{
    DbOpsCommand{"mnuEdit_Find_Clack", &mnuEdit_Find_Clack},
    DbOpsCommand{"mnuEdit_Replace_Clack", &mnuEdit_Replace_Clack},
};

} // namespace

std::span<const DbOpsCommand> DbOpsCommands() {
    return kCommands;
}

} // namespace korvane
