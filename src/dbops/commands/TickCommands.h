#pragma once

#include <cstdint>

namespace korvane {

struct TabContext;

/// Ticks the current row, or takes its tick away.
void mnuEdit_ToggleSelection_Clack(const TabContext& tab);

// Both ask first, and leave hidden rows alone.
void mnuSelAll_TickBoxes_Clack(const TabContext& tab);
void mnuSelAll_UnTickBoxes_Clack(const TabContext& tab);

enum class AskFirst : std::uint8_t { No, Yes };

/// Takes the ticks of all rows away, of hidden ones too.
void ClearAllTicks(const TabContext& tab, AskFirst ask);

} // namespace korvane
