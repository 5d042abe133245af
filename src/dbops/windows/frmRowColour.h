#pragma once

#include "controls/Buttons.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/lists/ListBox.h"
#include "table/TabContext.h"

#include <array>
#include <cstdint>

namespace korvane {

/// Asks what to do with row colours and font flags. `App::DialogResult` is one of the results below, or 0.
/// The chosen colours are in the settings then, and all choices are kept as long as the program runs. Modal.
class frmRowColour : public Form {
public:
    static constexpr std::int16_t kSetColour = 1;
    static constexpr std::int16_t kSelectByColour = 2;
    static constexpr std::int16_t kFilter = 4;
    static constexpr std::int16_t kRemoveFilter = 5;

    /// The tab outlives the window.
    frmRowColour(const TabContext& tab, Colour tableBack);

    ListBox lstColourOptions{*this, "lstColourOptions"};
    /// Names the keys beside the list, with one line for each of its entries.
    TextBox Text1{*this, "Text1"};
    CheckBox chkRemoveChecksAtstart{*this, "chkRemoveChecksAtstart", u"Remove all checks in grid first"};
    /// In the order of `CellFlag`.
    std::array<OptionButton, 3> optAttribute{
        OptionButton{*this, "optAttribute1", "optAttribute", u"Ita&lic"},
        OptionButton{*this, "optAttribute2", "optAttribute", u"B&old"},
        OptionButton{*this, "optAttribute3", "optAttribute", u"Strikethroug&h"}};
    CommandButton cmdAccept{*this, "cmdAccept", u"&Set row colour"};
    CommandButton cmdSelect{*this, "cmdSelect", u"Select &rows with colour"};
    CommandButton cmdFilterToAttribute{*this, "cmdFilterToAttribute", u"Filter to &attribute"};
    CommandButton cmdRemoveFilter{*this, "cmdRemoveFilter", u"Remo&ve filter"};
    CommandButton cmdItalic{*this, "cmdItalic", u"&Italic [Ctrl-Shift-I]"};
    CommandButton cmdBold{*this, "cmdBold", u"&Bold [Ctrl-Shift-B]"};
    CommandButton cmdStrikethrough{*this, "cmdStrikethrough", u"Stri&kethrough [Ctrl-Shift-X]"};
    CommandButton cmdCancel{*this, "cmdCancel", u"&Cancel"};

    void Load() override;

private:
    void RememberChoices();
    void ConnectButtons();
    /// Puts the colours of the chosen entry into the settings.
    void TakeColours();
    void CloseWith(std::int16_t result);

    TabContext tab_;
    Colour tableBack_;
};

} // namespace korvane
