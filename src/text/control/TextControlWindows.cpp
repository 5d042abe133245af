#include "text/control/TextControlWindows.h"

#include "context/App.h"
#include "controls/text/TextControl.h"
#include "text/control/frmTextInsertTable.h"
#include "text/control/frmTextList.h"
#include "text/control/frmTextPage.h"
#include "text/control/frmTextParagraph.h"
#include "text/control/frmTextSearch.h"
#include "text/control/frmTextTable.h"
#include "text/control/frmTextTabs.h"

namespace korvane {

TextControlWindows::TextControlWindows(App& app) : app_(app) {
    app_.SetPort<TextDialogs>(this);
}

TextControlWindows::~TextControlWindows() {
    if (app_.Port<TextDialogs>() == this) app_.SetPort<TextDialogs>(nullptr);
}

void TextControlWindows::Show(TextDialog dialog, TextControl& control) {
    const auto show = [](auto&& window) { window.ShowModal(); };
    switch (dialog) {
    case TextDialog::Find:
        show(frmTextSearch(app_, control, SearchUse::Find, search_));
        break;
    case TextDialog::Replace:
        show(frmTextSearch(app_, control, SearchUse::Replace, search_));
        break;
    case TextDialog::Paragraph:
        show(frmTextParagraph(app_, control));
        break;
    case TextDialog::List:
        show(frmTextList(app_, control));
        break;
    case TextDialog::Page:
        show(frmTextPage(app_, control));
        break;
    case TextDialog::Tabs:
        show(frmTextTabs(app_, control));
        break;
    case TextDialog::InsertTable:
        show(frmTextInsertTable(app_, control));
        break;
    case TextDialog::Table:
        show(frmTextTable(app_, control));
        break;
    }
    control.SetFocus();
}

} // namespace korvane
