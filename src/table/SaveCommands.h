#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

struct TabContext;

/// `App::DialogResult` when the user, who was shown the result of saving a closing tab, wants to keep the
/// tab.
inline constexpr std::int16_t kKeepTabOpen = 99;

/// Saves under the present name. When there is no such file, because the table is new or its file was
/// deleted, it says so and goes on as Save As.
void mnuFile_Save_Clack(const TabContext& tab);

/// Asks for a name and saves under it, as the chooser gives it. `App::DialogResult` is 1 when it saved; the
/// current directory is afterwards what it was.
void mnuFile_SaveAs_Clack(const TabContext& tab);

void mnuFile_FileInfo_Clack(const TabContext& tab);

/// Asks about changes that aren't on disk before another table takes the place of this one. Yes means Save
/// As. Returns whether the table may go.
bool AskToSave(const TabContext& tab);

/// Asks the same before the tab closes. Yes means Save, and the user can keep the tab after a look at the
/// result. Returns whether the tab may close.
bool AskToSaveAtClosing(const TabContext& tab);

} // namespace korvane
