#include "shell/commands/SideBar.h"

#include "shell/commands/Commands.h"

#include <array>

namespace korvane {

namespace {

constexpr Col kOnlyColumn{1};
constexpr int kColumnWidth = 146;
constexpr int kRowHeight = 64;

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

SideBar::SideBar(GridBox& grid, RunCommand run) : grid_(grid), run_(std::move(run)) {
    grid_.CellClick = [this](Row row, Col) { RunRow(row); };
    grid_.KeyDown = [this](KeyEvent& key) { KeyDown(key); };
    grid_.Hover = [this](bool over) { Hover(over); };
}

void SideBar::BuildSideBar(const FontSpec& font) {
    Grid& store = grid_.Store();
    store.AddCol(u"1no", u"");
    store.SetColWidth(kOnlyColumn, kColumnWidth);
    store.SetRowCount(Row{static_cast<int>(SideBarRows().size())});
    Row row{1};
    for (const SideBarRow& entry : SideBarRows()) {
        store.SetRowHeight(row, kRowHeight);
        store.SetCellValue(row, kOnlyColumn, entry.text);
        ++row;
    }
    if (!font.name.empty() && font.size > 0) grid_.Font = font;
    store.SetGridVisible(true);
    Hover(false);
    SelectRow(Row{1});
}

void SideBar::TakeFocus() {
    SelectRow(grid_.Store().CurRow());
    grid_.Store().GridSetFocus();
}

Twips SideBar::WidthOfStep(int step) {
    const bool known = step >= 0 && step < kWidthSteps;
    return kWidths[known ? static_cast<std::size_t>(step) : 0];
}

void SideBar::RunRow(Row row) {
    if (!grid_.Store().HasRow(row)) return;
    run_(SideBarRows()[static_cast<std::size_t>(row.Number() - 1)].command);
    SelectRow(row);
}

void SideBar::SelectRow(Row row) {
    grid_.Store().SetCurRow(row);
    grid_.Store().SetCurCol(kOnlyColumn);
}

void SideBar::KeyDown(KeyEvent& key) {
    if (key.Is('S', Mask::Ctrl | Mask::Alt) || key.Is('X', Mask::Alt)) {
        key.consumed = true;
        run_("mnuSwitchFocus");
    } else if (key.code == Key::Space || key.code == Key::Return) {
        key.consumed = true;
        RunRow(grid_.Store().CurRow());
    }
}

void SideBar::Hover(bool over) {
    grid_.MousePointer = over ? Pointer::Hand : Pointer::Default;
    grid_.HighlightBackColor = over ? kHighlightUnderPointer : kHighlight;
    grid_.HighlightForeColor = over ? kBlack : kWhite;
}

} // namespace korvane
