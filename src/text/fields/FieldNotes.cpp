#include "text/fields/FieldNotes.h"

#include "controls/text/TextControl.h"
#include "document/rtf/Rtf.h"

#include <optional>

namespace korvane {

namespace {

bool IsRtf(TextView data) {
    return data.starts_with(u"{\\rtf");
}

/// Whether characters of the control differ in their looks.
bool HasFormatting(TextControl& control) {
    std::optional<doc::Look> first;
    bool differs = false;
    control.Store().Runs(0, control.All().size(), [&](doc::Pos, std::size_t, const doc::Look& look) {
        if (!first) first = look;
        differs = differs || !(*first == look);
    });
    return differs;
}

} // namespace

Text NoteText(TextView data) {
    return IsRtf(data) ? doc::PlainText(doc::ReadRtf(ToUtf8(data)).document) : Text(data);
}

void WriteNote(TextControl& control, TextView data) {
    if (IsRtf(data)) return control.SetSelTextRtf(ToUtf8(data));
    control.SetSelText(data);
}

Text NoteOf(TextControl& control) {
    if (!HasFormatting(control)) return control.All();
    control.SetSelection(0, -1);
    return FromUtf8(control.SelTextRtf());
}

} // namespace korvane
