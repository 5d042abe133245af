#include "text/control/frmTextTable.h"

#include "context/App.h"
#include "context/ports/ColourPicker.h"
#include "controls/text/TextControl.h"

#include <algorithm>

namespace korvane {

namespace {

/// In the order of the list.
enum Extent : int { kWholeTable, kRow, kColumn, kCell };
constexpr TextView kExtents[] = {u"Table", u"Row", u"Column", u"Cell"};
constexpr Colour kWhite{0xFFFFFF};

} // namespace

frmTextTable::frmTextTable(App& app, TextControl& target)
    : ControlForm(app, target, "frmTextTable", u"Table attributes") {
    cmdBack.Click = [this] { cmdBack_Click(); };
    cmdNoBack.Click = [this] { ShowBack(kNoColour); };
}

void frmTextTable::Load() {
    for (const TextView extent : kExtents)
        cboExtent.AddItem(extent);
    cboExtent.SetListIndex(kWholeTable);
    here_ = Target().CellAtInputPos();
    const auto cellHere = [this](int column) {
        return Target()
            .FormatOfCell(static_cast<int>(here_.table), static_cast<int>(here_.row), column)
            .value_or(doc::CellFormat{});
    };
    shown_ = cellHere(static_cast<int>(here_.column));
    txtWidth.ShowLength(shown_.width, Unit());
    txtLeft.ShowLength(cellHere(1).left.value_or(0), Unit());
    txtGapLeft.ShowLength(shown_.gapLeft, Unit());
    txtGapRight.ShowLength(shown_.gapRight, Unit());
    txtBorder.ShowLength(std::ranges::max(shown_.border), LengthUnit::Points);
    ShowBack(shown_.back);
    cboExtent.SetFocus();
}

void frmTextTable::ShowBack(Colour colour) {
    back_ = colour;
    lblBack.BackColor = colour;
    lblBack.Caption = colour == kNoColour ? u"None" : u"";
}

void frmTextTable::cmdBack_Click() {
    auto* const picker = Context().Port<ColourPicker>();
    if (picker == nullptr) return;
    const auto chosen = picker->Choose(back_ == kNoColour ? kWhite : back_, ColourPicker::Extent::Simple);
    if (chosen) ShowBack(*chosen);
}

bool frmTextTable::TakesRow(int row) const {
    const int extent = cboExtent.ListIndex();
    return extent == kWholeTable || extent == kColumn || row == static_cast<int>(here_.row);
}

bool frmTextTable::TakesColumn(int column) const {
    const int extent = cboExtent.ListIndex();
    return extent == kWholeTable || extent == kRow || column == static_cast<int>(here_.column);
}

void frmTextTable::Change(doc::CellFormat& cell) const {
    const auto take = [](const LengthBox& box, std::int32_t& target, int least) {
        if (const auto length = box.NewLength()) target = std::max(*length, least);
    };
    take(txtWidth, cell.width, 1);
    take(txtGapLeft, cell.gapLeft, 0);
    take(txtGapRight, cell.gapRight, 0);
    if (const auto border = txtBorder.NewLength()) cell.border.fill(std::max(*border, 0));
    if (back_ != shown_.back) cell.back = back_;
}

bool frmTextTable::Accept() {
    const auto left = txtLeft.NewLength();
    doc::CellFormat after = shown_;
    Change(after);
    if (after == shown_ && !left) return true;
    Target().FormatCells(static_cast<int>(here_.table), [&](int row, int column, doc::CellFormat& cell) {
        if (!TakesRow(row)) return;
        // A row begins where its first cell does.
        if (left && column == 1) cell.left = *left;
        if (TakesColumn(column)) Change(cell);
    });
    return true;
}

} // namespace korvane
