#include "dbops/commands/RowLookCommands.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/RowColourMemory.h"
#include "context/ports/ColourPicker.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/rules/RowColours.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmRowColour.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "platform/Screen.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

Colour TableBack(const TableModel& table) {
    return table.TableBackColour.value_or(Colour{0});
}

void SetRowColours(TableModel& table, Row row, const RowColours& colours) {
    Grid& grid = table.GridStore();
    grid.SetRowBackColor(row, colours.back);
    grid.SetRowForeColor(row, colours.text);
    table.TableAltered = 1;
}

RowColours ChosenColours(const App& app) {
    return {Colour{app.Settings.ColourChoiceB}, Colour{app.Settings.ColourChoiceA}};
}

/// Only the current row is coloured, though the dialog speaks of the checked items. Kept for compatibility:
/// colour-for-current-row.
void ColourCurrentRow(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const GridHidden hidden(grid);
    SetRowColours(tab.table, grid.CurRow(), ChosenColours(tab.app));
}

/// Ticks every row that has these colours, and returns how many there are.
int TickRowsOfColours(Grid& grid, const RowColours& colours) {
    const GridHidden hidden(grid);
    const GridUpdate update(grid);
    return CountRows(grid, [&](Row row) {
        const RowColours own{grid.CellBackColor(row, Col{1}), grid.CellForeColor(row, Col{1})};
        if (own == colours) grid.SetCellCheck(row, 1);
        return own == colours;
    });
}

void SelectByColours(const TabContext& tab) {
    if (tab.app.Exchange<RowColourMemory>().RemoveChecksAtStart == 1) ClearAllTicks(tab, AskFirst::No);
    const int selected = TickRowsOfColours(tab.table.GridStore(), ChosenColours(tab.app));
    tab.table.TableAltered = 1;
    Inform(tab.app, u"[ " + NumberText(selected) + u" ] items selected.");
}

/// Shows the rows for which `wanted(Row)` is true, hides the others, and returns how many are shown.
/// `TableAltered` stays as it is. Kept for compatibility: filters-are-no-change.
template <class Wanted>
int ShowRows(Grid& grid, const Wanted& wanted) {
    const GridUpdate update(grid);
    return CountRows(grid, [&](Row row) {
        const bool visible = wanted(row);
        grid.SetRowVisible(row, visible);
        return visible;
    });
}

void FilterToAttribute(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const CellFlag flag = tab.app.Exchange<RowColourMemory>().RowAttribute;
    const int shown = ShowRows(grid, [&](Row row) { return grid.CellFontFlag(row, Col{1}, flag); });
    Inform(tab.app, u"[ " + NumberText(shown) + u" ] items with chosen attribute.");
}

void RemoveFilter(const TabContext& tab) {
    const int shown = ShowRows(tab.table.GridStore(), [](Row) { return true; });
    Inform(tab.app, u"[ " + NumberText(shown) + u" ] rows made visible again.");
}

void RunRowColourCommand(const TabContext& tab, std::int16_t result) {
    switch (result) {
    case frmRowColour::kSetColour:
        ColourCurrentRow(tab);
        break;
    case frmRowColour::kSelectByColour:
        SelectByColours(tab);
        break;
    case frmRowColour::kFilter:
        FilterToAttribute(tab);
        break;
    case frmRowColour::kRemoveFilter:
        RemoveFilter(tab);
        break;
    default:
        break;
    }
}

} // namespace

void ColourCurrentRowByKey(const TabContext& tab, int index) {
    const RowColourChoice* choice = RowColourChoiceAt(index);
    if (choice == nullptr) return;
    SetRowColours(tab.table, tab.table.GridStore().CurRow(), choice->ByKey(TableBack(tab.table)));
}

void mnuFormat_RowColour_Clack(const TabContext& tab) {
    frmRowColour form(tab, TableBack(tab.table));
    const std::int16_t result = ShowForResult(tab.app, form);
    {
        const Hourglass hourglass(tab.app.Screen());
        RunRowColourCommand(tab, result);
    }
    tab.table.GridStore().GridSetFocus();
}

void mnuFormat_BColor_Clack(const TabContext& tab) {
    auto* colourPicker = tab.app.Port<ColourPicker>();
    if (colourPicker == nullptr) return;
    const auto chosen = colourPicker->Choose(TableBack(tab.table), ColourPicker::Extent::Full);
    // Pure black counts as no choice. Kept for compatibility: background-never-black.
    if (!chosen || *chosen == Colour{0}) return;
    Grid& grid = tab.table.GridStore();
    tab.table.TableBackColour = *chosen;
    grid.SetGridBackColor(*chosen);
    grid.GridRefresh();
    grid.GridSetFocus();
    tab.table.TableAltered = 1;
}

} // namespace korvane
