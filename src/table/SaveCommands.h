#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

struct TabContext;

/// `App::DialogResult` when the user, shown the outcome of the save of a closing tab, wants the tab kept.
inline constexpr std::int16_t kKeepTabOpen = 99;

/// Saves under the present name. Where there is no such file (a new table, or one deleted behind the
/// program's back) it says so and goes on as Save As.
void mnuFile_Save_Clack(const TabContext& tab);

/// Asks for a name and saves under it, as the chooser gives it. `App::DialogResult` is 1 when it saved; the
/// current directory is afterwards what it was.
void mnuFile_SaveAs_Clack(const TabContext& tab);

void mnuFile_FileInfo_Clack(const TabContext& tab);

/// Before the table gives way to another one: asks about changes that aren't on disk. Yes is Save As. Whether
/// the table may go.
bool AskToSave(const TabContext& tab);

/// Before the tab closes: asks the same. Yes is Save, whose outcome the user can refuse. Whether the tab may
/// close.
bool AskToSaveAtClosing(const TabContext& tab);

} // namespace korvane
