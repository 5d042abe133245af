#pragma once

namespace korvane {

struct TabContext;

// Each turns a font flag round in every cell of the current row, in each by itself, so that a row of which
// some cells have it stays mixed.
void MakeEmailItalic(const TabContext& tab);
void MakeEmailBold(const TabContext& tab);
void MakeEmailStrikethru(const TabContext& tab);

} // namespace korvane
