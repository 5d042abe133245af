#pragma once

namespace korvane {

struct TabContext;

/// Asks for the rows and a file name, writes the table into a new workbook of the spreadsheet application,
/// saves it as `.xls` and leaves the application open with it. Says nothing when that doesn't work.
void mnuExport_Excel_Clack(const TabContext& tab);

} // namespace korvane
