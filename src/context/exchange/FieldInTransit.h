#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// The field that the text window and the windows for fields hand to each other, and what those windows keep
/// as long as the program runs.
struct FieldInTransit {
    /// The address of a hyperlink, or the note of a text field.
    Text FieldLinkData;
    Text FieldLabelText;
    std::int16_t FieldNumber = 0;
    /// 1 while the address belongs to no field.
    std::int16_t ReadOnlyLink = 0;
    /// 1 when the editor is opened on a field that is there.
    std::int16_t EditingExisting = 0;

    Text LastFieldLabel;
    std::int16_t FieldFontBold = 0;
    /// Those of the editor of notes.
    Text FieldEditFontName;
    std::int16_t FieldEditFontSize = 0;
};

} // namespace korvane
