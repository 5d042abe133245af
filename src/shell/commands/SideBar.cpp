#include "shell/commands/SideBar.h"

#include "context/App.h"
#include "controls/KeyTable.h"
#include "controls/Label.h"
#include "platform/FileSystem.h"
#include "shell/commands/Commands.h"
#include "shell/commands/MainRoutines.h"

#include <array>

namespace korvane {

namespace {

constexpr Col kOnlyColumn{1};
constexpr int kColumnWidth = 146;
constexpr int kRowHeight = 64;
/// The panel is this much wider than the grid in it.
constexpr int kPanelMargin = 80;

constexpr Colour kBlack{0};
constexpr Colour kWhite{0xFFFFFF};
constexpr Colour kHighlightUnderPointer{16252927};
constexpr Colour kHighlight{10327187};

constexpr std::array<Twips, SideBar::kWidthSteps> kWidths{Twips{kColumnWidth * kTwipsPerPixel},
                                                          Twips{2000},
                                                          Twips{2150},
                                                          Twips{2300},
                                                          Twips{2450},
                                                          Twips{2600},
                                                          Twips{2750},
                                                          Twips{2900}};

} // namespace

struct SideBar::Tables {
    static constexpr WindowKey<SideBar> kKeys[] = {
        {"Ctrl+Alt+S", &SideBar::SwitchFocus},
        {"Alt+X", &SideBar::SwitchFocus},
        {"Any+Space", &SideBar::RunCurrentRow},
        {"Any+Return", &SideBar::RunCurrentRow},
    };
};

SideBar::SideBar(App& app, const Place& place, RunCommand run)
    : app_(app), place_(place), run_(std::move(run)) {
    place_.grid.CellClick = [this](Row row, Col) { RunRow(row); };
    place_.grid.KeyDown = KeysOf(*this, Tables::kKeys);
    place_.grid.Hover = [this](bool over) { Hover(over); };
}

void SideBar::BuildSideBar() {
    const FileSystem& files = app_.Files();
    place_.grid.HandImage = files.Style().JoinPath(files.ProgramDir(), u"HandOpen.ico");
    Grid& store = place_.grid.Store();
    store.AddCol(u"1no", u"");
    store.SetColWidth(kOnlyColumn, kColumnWidth);
    store.SetRowCount(Row{static_cast<int>(SideBarRows().size())});
    Row row{1};
    for (const SideBarRow& entry : SideBarRows()) {
        store.SetRowHeight(row, kRowHeight);
        store.SetCellValue(row, kOnlyColumn, entry.text);
        ++row;
    }
    const Settings& settings = app_.Settings;
    if (!settings.SideBarFontName.empty() && settings.SideBarFontSize > 0) {
        place_.grid.Font =
            FontSpec{settings.SideBarFontName, settings.SideBarFontSize, settings.SideBarFontBold != 0};
    }
    store.SetGridVisible(true);
    Hover(false);
    SelectRow(Row{1});
}

void SideBar::Arrange() {
    place_.panel.Visible = app_.Settings.SideBarVisible == 1;
    if (place_.panel.Visible) SetWidth(WidthOfStep(app_.Settings.SideBarWidthStep));
}

void SideBar::NextWidth() {
    std::int16_t& step = app_.Settings.SideBarWidthStep;
    step = static_cast<std::int16_t>(step >= kWidthSteps - 1 ? 0 : step + 1);
    SetWidth(WidthOfStep(step));
    Arrange();
}

void SideBar::SetWidth(Twips width) {
    place_.grid.Width = width;
    place_.heading.Width = width;
    place_.panel.Width = width + kPanelMargin;
}

void SideBar::TakeFocus() {
    if (!place_.panel.Visible) return;
    SelectRow(place_.grid.Store().CurRow());
    place_.grid.Store().GridSetFocus();
}

Twips SideBar::WidthOfStep(int step) {
    const bool known = step >= 0 && step < kWidthSteps;
    return kWidths[known ? static_cast<std::size_t>(step) : 0];
}

void SideBar::RunRow(Row row) {
    if (!place_.grid.Store().HasRow(row)) return;
    run_(SideBarRows()[static_cast<std::size_t>(row.Number() - 1)].command.calls);
    SelectRow(row);
}

void SideBar::RunCurrentRow() {
    RunRow(place_.grid.Store().CurRow());
}

void SideBar::SelectRow(Row row) {
    place_.grid.Store().SetCurRow(row);
    place_.grid.Store().SetCurCol(kOnlyColumn);
}

void SideBar::SwitchFocus() {
    run_(&mnuSwitchFocus_Click);
}

void SideBar::Hover(bool over) {
    place_.grid.MousePointer = over ? Pointer::Hand : Pointer::Default;
    place_.grid.HighlightBackColor = over ? kHighlightUnderPointer : kHighlight;
    place_.grid.HighlightForeColor = over ? kBlack : kWhite;
}

} // namespace korvane
