#include "dbops/windows/frmRowColour.h"

#include "context/App.h"
#include "context/exchange/RowColourMemory.h"
#include "dbops/rules/RowColours.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/rules/UndoCommands.h"
#include "grid/Grid.h"

namespace korvane {

frmRowColour::frmRowColour(const TabContext& tab, Colour tableBack)
    : Form(tab.app.Forms(), "frmRowColour", u"Set colour for checked items in list"),
      tab_(tab),
      tableBack_(tableBack) {
    Text1.Locked = true;
    RememberChoices();
    ConnectButtons();
}

void frmRowColour::ConnectButtons() {
    const auto acceptColour = [this] {
        TakeColours();
        CloseWith(kSetColour);
    };
    cmdAccept.Click = acceptColour;
    lstColourOptions.DblClick = acceptColour;
    cmdSelect.Click = [this] {
        TakeColours();
        CloseWith(kSelectByColour);
    };
    cmdFilterToAttribute.Click = [this] { CloseWith(kFilter); };
    cmdRemoveFilter.Click = [this] { CloseWith(kRemoveFilter); };
    const auto edit = [this](void (*command)(const TabContext&)) {
        return [this, command] {
            command(tab_);
            EndEdit(tab_);
        };
    };
    cmdItalic.Click = edit(&MakeEmailItalic);
    cmdBold.Click = edit(&MakeEmailBold);
    cmdStrikethrough.Click = edit(&MakeEmailStrikethru);
    cmdCancel.Click = [this] { CloseWith(0); };
    cmdAccept.Default = true;
    cmdCancel.Cancel = true;
}

void frmRowColour::Load() {
    RowColourMemory& memory = tab_.app.Exchange<RowColourMemory>();
    Text keys;
    for (const RowColourChoice& choice : RowColourChoices()) {
        lstColourOptions.AddItem(choice.listText);
        const RowColours colours = choice.ByDialog(tableBack_);
        lstColourOptions.SetSample(lstColourOptions.ListCount() - 1, colours.back, colours.text);
        if (!keys.empty()) keys += kCrLf;
        keys += choice.keyText;
    }
    Text1.Text = keys;
    lstColourOptions.SetListIndex(memory.RowColourIndex);
    chkRemoveChecksAtstart.Value = memory.RemoveChecksAtStart;
    optAttribute[static_cast<std::size_t>(memory.RowAttribute)].Value = true;
}

void frmRowColour::RememberChoices() {
    RowColourMemory& memory = tab_.app.Exchange<RowColourMemory>();
    lstColourOptions.Click = [this, &memory] {
        memory.RowColourIndex = static_cast<std::int16_t>(lstColourOptions.ListIndex());
    };
    chkRemoveChecksAtstart.Click = [this, &memory] {
        memory.RemoveChecksAtStart = chkRemoveChecksAtstart.Value;
    };
    for (std::size_t i = 0; i < optAttribute.size(); ++i)
        optAttribute[i].Click = [&memory, i] { memory.RowAttribute = static_cast<CellFlag>(i); };
}

void frmRowColour::TakeColours() {
    const RowColourChoice* choice = RowColourChoiceAt(lstColourOptions.ListIndex());
    if (choice == nullptr) return;
    const RowColours colours = choice->ByDialog(tableBack_);
    tab_.app.Settings.ColourChoiceB = colours.back.value;
    tab_.app.Settings.ColourChoiceA = colours.text.value;
}

void frmRowColour::CloseWith(std::int16_t result) {
    tab_.app.DialogResult = result;
    Close();
}

} // namespace korvane
