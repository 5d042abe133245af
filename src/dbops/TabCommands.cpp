#include "dbops/TabCommands.h"

#include "dbops/ColumnSum.h"
#include "dbops/CopyCommands.h"
#include "dbops/frmFindReplace.h"

#include <array>

namespace korvane {

namespace {

constexpr std::array kCommands{
    DbOpsCommand{"mnuEdit_Find_Clack", &mnuEdit_Find_Clack},
    DbOpsCommand{"mnuEdit_Replace_Clack", &mnuEdit_Replace_Clack},
    DbOpsCommand{"mnuEdit_CopyCellToText_Clack", &mnuEdit_CopyCellToText_Clack},
    DbOpsCommand{"mnuEdit_CopyRowToText_Clack", &mnuEdit_CopyRowToText_Clack},
    DbOpsCommand{"mnuCopyColumn_Clack", &mnuCopyColumn_Clack},
    DbOpsCommand{"mnuCopyCheckedRows_Clack", &mnuCopyCheckedRows_Clack},
    DbOpsCommand{"mnuCopyCheckedRowsToClipb_Clack", &mnuCopyCheckedRowsToClipb_Clack},
    DbOpsCommand{"mnuCopyTableToText_Clack", &mnuCopyTableToText_Clack},
    DbOpsCommand{"mnuCopyTableToClipboard_Clack", &mnuCopyTableToClipboard_Clack},
    DbOpsCommand{"mnuCalc_Add_Clack", &mnuCalc_Add_Clack},
    DbOpsCommand{"mnuEdit_WinClip_Clack", &mnuEdit_WinClip_Clack},
};

} // namespace

std::span<const DbOpsCommand> DbOpsCommands() {
    return kCommands;
}

} // namespace korvane
