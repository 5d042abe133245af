#include "shell/main/UnsavedPage.h"

#include "common/number/DateTime.h"
#include "context/App.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "shell/main/ButtonText.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/TableFile.h"
#include "table/TableKeeper.h"

#include <string>

namespace korvane {

namespace {

bool SameDay(const DateTime& a, const DateTime& b) {
    return a.year == b.year && a.month == b.month && a.day == b.day;
}

} // namespace

UnsavedPage::UnsavedPage(App& app, Form& window, Tabs& tabs)
    : app_(app),
      tabs_(tabs),
      fraUnsaved_(window, "fraUnsaved"),
      lblUnsaved_(window, "lblUnsaved", u"Not saved when the program ended") {
    for (std::size_t at = 0; at < kTables; ++at) {
        buttons_.push_back(std::make_unique<CommandButton>(window, "cmdUnsaved" + std::to_string(at + 1)));
        buttons_.back()->Click = [this, at] { Open(at); };
    }
    fraUnsaved_.Visible = false;
}

void UnsavedPage::Fill() {
    const auto* keeper = app_.Port<TableKeeper>();
    const std::vector<UnsavedTable> tables =
        keeper == nullptr ? std::vector<UnsavedTable>() : keeper->Unsaved();
    fraUnsaved_.Visible = !tables.empty() && tabs_.TabState.CountInUse() == 0;
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        CommandButton& button = *buttons_[at];
        button.Visible = at < tables.size();
        if (at >= tables.size()) continue;
        button.Caption = ButtonText(CaptionOf(tables[at]));
        button.ToolTipText = tables[at].name;
    }
}

/// "Books.tbx, changed 23:32", with the date of another day.
Text UnsavedPage::CaptionOf(const UnsavedTable& table) const {
    const TextView pattern = SameDay(table.changed, app_.Clock().Now()) ? u"hh:nn" : u"yyyy-mm-dd hh:nn";
    return Text(app_.Files().Style().NamePart(table.name)) + u", changed " +
           FormatDate(table.changed, pattern);
}

void UnsavedPage::Open(std::size_t at) {
    auto* keeper = app_.Port<TableKeeper>();
    if (keeper == nullptr || at >= keeper->Unsaved().size()) return;
    const UnsavedTable table = keeper->Unsaved()[at];
    tabs_.AddNewTab();
    frmMDIChild* tab = tabs_.Active();
    if (tab == nullptr) return;
    tab->Table().TxtDbFile = table.file;
    tab->Run(&ReadTableData);
    tab->Table().TxtDbFile = table.name;
    tab->Table().TableAltered = 1;
    tabs_.NameTab(*tab, table.name);
    keeper->Adopt(tab->Context(), table.number);
}

} // namespace korvane
