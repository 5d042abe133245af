#include "text/fields/OpenUrl.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/exchange/FieldInTransit.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"
#include "text/commands/TextCommands.h"
#include "text/fields/frmShowFieldContents.h"

namespace korvane {

void OpenUrlFromSelection(App& app, TextControl& control) {
    if (control.SelLength() <= 0) return Inform(app, u"No text selected.");
    const Text selected = control.SelText();
    Text url = FindUrl(selected).value_or(Text());
    if (url.empty() && AskYesNo(app, u"\"" + selected + u"\"\r\n\r\nIs this a valid internet URL?"))
        url = selected;
    if (url.ends_with(u'>')) url.pop_back();
    if (url.empty()) return;
    FieldInTransit& transit = app.Exchange<FieldInTransit>();
    transit.FieldLinkData = url;
    transit.FieldLabelText = u"(URL from text selection)";
    const ScopedValue readOnly(transit.ReadOnlyLink, 1, 0);
    frmShowFieldContents(app).ShowModal();
}

} // namespace korvane
