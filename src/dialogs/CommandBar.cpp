#include "dialogs/CommandBar.h"

#include <utility>

namespace korvane {

namespace {

constexpr Col kOnlyColumn{1};

constexpr Colour kBlack{0};
constexpr Colour kWhite{0xFFFFFF};
constexpr Colour kHighlightUnderPointer{16252927};
constexpr Colour kHighlight{10327187};

} // namespace

CommandBar::CommandBar(GridBox& grid, Run run) : grid_(grid), run_(std::move(run)) {
    grid_.CellClick = [this](Row row, Col) { RunRow(row); };
    grid_.KeyDown = [this](KeyEvent& key) { KeyDown(key); };
    grid_.Hover = [this](bool over) { Hover(over); };
}

void CommandBar::Build(const std::vector<Text>& captions, int columnWidth, int rowHeight,
                       const FontSpec& font) {
    Grid& store = grid_.Store();
    store.AddCol(u"1no", u"");
    store.SetColWidth(kOnlyColumn, columnWidth);
    store.SetRowCount(Row{static_cast<int>(captions.size())});
    Row row{1};
    for (const Text& caption : captions) {
        store.SetRowHeight(row, rowHeight);
        store.SetCellValue(row, kOnlyColumn, caption);
        ++row;
    }
    if (!font.name.empty() && font.size > 0) grid_.Font = font;
    store.SetGridVisible(true);
    Hover(false);
    SelectRow(Row{1});
}

void CommandBar::TakeFocus() {
    SelectRow(grid_.Store().CurRow());
    grid_.Store().GridSetFocus();
}

void CommandBar::KeyDown(KeyEvent& key) {
    if (key.code != Key::Space && key.code != Key::Return) return;
    key.consumed = true;
    RunRow(grid_.Store().CurRow());
}

void CommandBar::RunRow(Row row) {
    if (!grid_.Store().HasRow(row)) return;
    run_(row.Number() - 1);
    SelectRow(row);
}

void CommandBar::SelectRow(Row row) {
    grid_.Store().SetCurRow(row);
    grid_.Store().SetCurCol(kOnlyColumn);
}

void CommandBar::Hover(bool over) {
    grid_.MousePointer = over ? Pointer::Hand : Pointer::Default;
    grid_.HighlightBackColor = over ? kHighlightUnderPointer : kHighlight;
    grid_.HighlightForeColor = over ? kBlack : kWhite;
}

} // namespace korvane
