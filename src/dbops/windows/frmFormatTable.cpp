#include "dbops/windows/frmFormatTable.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/ports/ColourPicker.h"

namespace korvane {

namespace {

constexpr int kWidestBorder = 128;
constexpr int kWidestGap = 160;

/// Fills the list with the numbers from 1 on. Another number than these is none of the list.
void Fill(ComboBox& list, int last, int chosen) {
    list.Clear();
    for (int number = 1; number <= last; ++number)
        list.AddItem(NumberText(number));
    list.SetListIndex(chosen - 1);
}

/// Without a choice the number stays.
template <class Int>
void Take(const ComboBox& list, Int& number) {
    if (list.ListIndex() >= 0) number = static_cast<Int>(list.ListIndex() + 1);
}

std::int16_t Flag(std::int16_t setting) {
    return setting == 1 ? 1 : 0;
}

} // namespace

frmFormatTable::frmFormatTable(App& app)
    : Form(app.Forms(), "frmFormatTable", u"Format parameters"), app_(app) {
    Settings& settings = app_.Settings;
    cmdGetFirstLineBackColour.Click = [this, &settings] { ChooseColour(settings.TableValueA); };
    cmdGetFirstLineForeColour.Click = [this, &settings] { ChooseColour(settings.TableValueB); };
    cmdGetAlternateLinesColour.Click = [this, &settings] { ChooseColour(settings.TableValueC); };
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdProceed.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmFormatTable::Load() {
    const Settings& settings = app_.Settings;
    chkColumnToFirstRow.Value = Flag(settings.TableOptionA);
    chkTDB_FirstLineDark.Value = Flag(settings.TableOptionB);
    chkTDB_AlternateLinesGrey.Value = Flag(settings.TableOptionC);
    TableLeftMarginText.Text = NumberText(settings.TableOptionD);
    Fill(cboCellBorderWidth, kWidestBorder, settings.TableValueD);
    Fill(cboCellTextGap, kWidestGap, settings.TableOptionE);
    ShowColours();
    app_.DialogResult = 0;
}

void frmFormatTable::ShowColours() {
    lblFirstLineBackColour.BackColor = Colour{app_.Settings.TableValueA};
    lblFirstLineForeColour.BackColor = Colour{app_.Settings.TableValueB};
    lblAlternateLinesColour.BackColor = Colour{app_.Settings.TableValueC};
}

void frmFormatTable::ChooseColour(std::int32_t& colour) {
    auto* picker = app_.Port<ColourPicker>();
    if (picker == nullptr) return;
    if (const auto chosen = picker->Choose({colour}, ColourPicker::Extent::Simple)) colour = chosen->value;
    ShowColours();
}

void frmFormatTable::cmdProceed_Click() {
    Settings& settings = app_.Settings;
    settings.TableOptionA = chkColumnToFirstRow.Value;
    settings.TableOptionB = chkTDB_FirstLineDark.Value;
    settings.TableOptionC = chkTDB_AlternateLinesGrey.Value;
    ReadNumber(TextView(TableLeftMarginText.Text.Get()), settings.TableOptionD);
    Take(cboCellBorderWidth, settings.TableValueD);
    Take(cboCellTextGap, settings.TableOptionE);
    app_.DialogResult = 1;
    Close();
}

} // namespace korvane
