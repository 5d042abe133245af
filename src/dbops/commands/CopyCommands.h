#pragma once

namespace korvane {

struct TabContext;

// These copy data of a table as text.

void mnuEdit_CopyCellToText_Clack(const TabContext& tab);
void mnuEdit_CopyRowToText_Clack(const TabContext& tab);
void mnuCopyColumn_Clack(const TabContext& tab);
void mnuCopyCheckedRows_Clack(const TabContext& tab);
void mnuCopyCheckedRowsToClipb_Clack(const TabContext& tab);
void mnuCopyTableToText_Clack(const TabContext& tab);
void mnuCopyTableToClipboard_Clack(const TabContext& tab);
void mnuEdit_WinClip_Clack(const TabContext& tab);

} // namespace korvane
