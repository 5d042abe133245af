#pragma once

namespace korvane {

struct TabContext;

// Each of these flips a font flag in every cell of the current row by itself, so that a row in which only
// some cells have the flag stays mixed.
void MakeEmailItalic(const TabContext& tab);
void MakeEmailBold(const TabContext& tab);
void MakeEmailStrikethru(const TabContext& tab);

} // namespace korvane
