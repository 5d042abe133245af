#include "dbops/commands/TabCommands.h"

#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/ColumnSum.h"
#include "dbops/commands/CopyCommands.h"
#include "dbops/commands/ExcelExport.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/rules/UndoCommands.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmViewCell.h"

#include <array>

namespace korvane {

namespace {

/// The row colour key of this index.
template <int index>
void RowColour(const TabContext& tab) {
    ColourCurrentRowByKey(tab, index);
}

constexpr std::array kCommands{
    DbOpsCommand{"mnuEdit_AddOneRow_Clack", &mnuEdit_AddOneRow_Clack},
    DbOpsCommand{"mnuEdit_AddRows_Clack", &mnuEdit_AddRows_Clack},
    DbOpsCommand{"mnuRowDown_Clack", &mnuRowDown_Clack},
    DbOpsCommand{"mnuRowUp_Clack", &mnuRowUp_Clack},
    DbOpsCommand{"mnuEdit_Delete_Clack", &mnuEdit_Delete_Clack},
    DbOpsCommand{"mnuDel_CheckedRows_Clack", &mnuDel_CheckedRows_Clack},
    DbOpsCommand{"mnuEdit_SetRowHeight_Clack", &mnuEdit_SetRowHeight_Clack},
    DbOpsCommand{"mnuEdit_ColumnName_Clack", &mnuEdit_ColumnName_Clack},
    DbOpsCommand{"mnuEdit_InsertColumn_Clack", &mnuEdit_InsertColumn_Clack},
    DbOpsCommand{"mnuEdit_DeleteColumn_Clack", &mnuEdit_DeleteColumn_Clack},
    DbOpsCommand{"MnuEdit_RefreshColumnWidths_Clack", &MnuEdit_RefreshColumnWidths_Clack},
    DbOpsCommand{"mnuEdit_Font_Clack", &mnuEdit_Font_Clack},
    DbOpsCommand{"mnuEdit_ToggleSelection_Clack", &mnuEdit_ToggleSelection_Clack},
    DbOpsCommand{"mnuSelAll_TickBoxes_Clack", &mnuSelAll_TickBoxes_Clack},
    DbOpsCommand{"mnuSelAll_UnTickBoxes_Clack", &mnuSelAll_UnTickBoxes_Clack},
    DbOpsCommand{"mnuFormat_RowColour_Clack", &mnuFormat_RowColour_Clack},
    DbOpsCommand{"mnuFormat_BColor_Clack", &mnuFormat_BColor_Clack},
    DbOpsCommand{"MakeEmailBold", &MakeEmailBold},
    DbOpsCommand{"MakeEmailItalic", &MakeEmailItalic},
    DbOpsCommand{"MakeEmailStrikethru", &MakeEmailStrikethru},
    DbOpsCommand{"RowColour0", &RowColour<0>},
    DbOpsCommand{"RowColour1", &RowColour<1>},
    DbOpsCommand{"RowColour2", &RowColour<2>},
    DbOpsCommand{"RowColour3", &RowColour<3>},
    DbOpsCommand{"RowColour4", &RowColour<4>},
    DbOpsCommand{"RowColour5", &RowColour<5>},
    DbOpsCommand{"RowColour6", &RowColour<6>},
    DbOpsCommand{"RowColour7", &RowColour<7>},
    DbOpsCommand{"RowColour8", &RowColour<8>},
    DbOpsCommand{"mnuEdit_Find_Clack", &mnuEdit_Find_Clack},
    DbOpsCommand{"mnuEdit_Replace_Clack", &mnuEdit_Replace_Clack},
    DbOpsCommand{"mnuEdit_EditCell_Clack", &mnuEdit_EditCell_Clack},
    DbOpsCommand{"mnuEdit_CopyCellToText_Clack", &mnuEdit_CopyCellToText_Clack},
    DbOpsCommand{"mnuEdit_CopyRowToText_Clack", &mnuEdit_CopyRowToText_Clack},
    DbOpsCommand{"mnuCopyColumn_Clack", &mnuCopyColumn_Clack},
    DbOpsCommand{"mnuCopyCheckedRows_Clack", &mnuCopyCheckedRows_Clack},
    DbOpsCommand{"mnuCopyCheckedRowsToClipb_Clack", &mnuCopyCheckedRowsToClipb_Clack},
    DbOpsCommand{"mnuCopyTableToText_Clack", &mnuCopyTableToText_Clack},
    DbOpsCommand{"mnuCopyTableToClipboard_Clack", &mnuCopyTableToClipboard_Clack},
    DbOpsCommand{"mnuCalc_Add_Clack", &mnuCalc_Add_Clack},
    DbOpsCommand{"mnuEdit_WinClip_Clack", &mnuEdit_WinClip_Clack},
    DbOpsCommand{"mnuExport_Excel_Clack", &mnuExport_Excel_Clack},
    DbOpsCommand{"UndoEdit", &UndoEdit},
    DbOpsCommand{"RedoEdit", &RedoEdit},
};

} // namespace

std::span<const DbOpsCommand> DbOpsCommands() {
    return kCommands;
}

} // namespace korvane
