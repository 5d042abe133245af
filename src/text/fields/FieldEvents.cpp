#include "text/fields/FieldEvents.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/FieldInTransit.h"
#include "controls/text/TextControl.h"
#include "text/fields/FieldNotes.h"
#include "text/fields/frmShowFieldContents.h"
#include "text/fields/frmViewEditField.h"

#include <algorithm>

namespace korvane {

Text FieldTip(const TextControl& control, int field) {
    const Text note = NoteText(control.FieldData(field));
    Text tip =
        u"Field No. " + NumberText(field) + u": " + (note.empty() ? control.FieldTypeData(field) : note);
    std::ranges::replace_if(
        tip, [](char16_t c) { return c == u'\r' || c == u'\n'; }, u' ');
    return tip;
}

void ShowHyperlink(App& app, TextControl& control, TextControl& scratch, int field, const Text& link) {
    FieldInTransit& transit = app.Exchange<FieldInTransit>();
    // On its way through a file the address becomes plain characters.
    scratch.SetAll(link);
    scratch.LoadFromMemory(scratch.SaveToMemory(TextFormat::Html), TextFormat::Html);
    control.SetFieldCurrent(field);
    transit.FieldLabelText = control.FieldText();
    transit.FieldNumber = static_cast<std::int16_t>(field);
    app.Settings.ViewEditOption = 1;
    frmShowFieldContents(app).ShowModal();
    control.SetFocus();
}

bool EditField(App& app, TextControl& control) {
    FieldInTransit& transit = app.Exchange<FieldInTransit>();
    control.SetFieldCurrent(control.FieldAtInputPos());
    // The cursor goes after the first character, and not before it. Kept for compatibility:
    // field-start-after.
    control.SetSelStart(control.FieldStart());
    transit.FieldLabelText = control.FieldText();
    transit.FieldLinkData = control.FieldData(control.FieldCurrent());
    transit.EditingExisting = 1;
    app.Settings.ViewEditOption = 0;
    app.DialogResult = 0;
    frmViewEditField(app, control).ShowModal();
    return app.DialogResult >= 0;
}

} // namespace korvane
