#include "shell/commands/SideBar.h"

#include "context/App.h"
#include "controls/KeyTable.h"
#include "controls/Label.h"
#include "platform/FileSystem.h"
#include "shell/commands/Commands.h"
#include "shell/commands/MainRoutines.h"

#include <array>
#include <vector>

namespace korvane {

namespace {

constexpr int kColumnWidth = 146;
constexpr int kRowHeight = 64;
/// The panel is this much wider than the grid in it.
constexpr int kPanelMargin = 80;

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
    };
};

SideBar::SideBar(App& app, const Place& place, RunCommand run)
    : app_(app),
      place_(place),
      run_(std::move(run)),
      bar_(place_.grid, [this](int index) { RunRow(index); }) {
    place_.grid.KeyDown = [this](KeyEvent& key) {
        if (!RunKey(Tables::kKeys, *this, key)) bar_.KeyDown(key);
    };
}

void SideBar::BuildSideBar() {
    const FileSystem& files = app_.Files();
    place_.grid.HandImage = files.Style().JoinPath(files.ProgramDir(), u"HandOpen.ico");
    std::vector<Text> captions;
    for (const SideBarRow& row : SideBarRows())
        captions.emplace_back(row.text);
    const Settings& settings = app_.Settings;
    const FontSpec font{settings.SideBarFontName, settings.SideBarFontSize, settings.SideBarFontBold != 0};
    bar_.Build(captions, kColumnWidth, kRowHeight, font);
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
    if (place_.panel.Visible) bar_.TakeFocus();
}

Twips SideBar::WidthOfStep(int step) {
    const bool known = step >= 0 && step < kWidthSteps;
    return kWidths[known ? static_cast<std::size_t>(step) : 0];
}

void SideBar::RunRow(int index) {
    run_(SideBarRows()[static_cast<std::size_t>(index)].command.calls);
}

void SideBar::SwitchFocus() {
    run_(&mnuSwitchFocus_Click);
}

} // namespace korvane
