#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

#include <span>

namespace korvane {

/// The two colours of a row.
struct RowColours {
    Colour back;
    Colour text;
    bool operator==(const RowColours&) const = default;
};

/// One of the colourings that rows can have.
struct RowColourChoice {
    /// The entry in the list, and the line beside the list that names its keys.
    TextView listText;
    TextView keyText;
    /// `kNoColour` means the background of the table.
    Colour backByDialog;
    Colour backByKey;
    Colour text;

    RowColours ByDialog(Colour tableBack) const { return {Filled(backByDialog, tableBack), text}; }
    RowColours ByKey(Colour tableBack) const { return {Filled(backByKey, tableBack), text}; }

private:
    static Colour Filled(Colour back, Colour tableBack) { return back == kNoColour ? tableBack : back; }
};

/// The nine colourings in the order of the list and of the keys' digits.
std::span<const RowColourChoice> RowColourChoices();
/// nullptr for an index, from 0, that isn't in the list.
const RowColourChoice* RowColourChoiceAt(int index);

} // namespace korvane
