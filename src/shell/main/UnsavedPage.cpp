#include "shell/main/UnsavedPage.h"

#include "common/number/DateTime.h"
#include "context/App.h"
#include "context/ports/TextKeeper.h"
#include "context/ports/TextWindow.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "shell/main/ButtonText.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/TableFile.h"
#include "table/TableKeeper.h"

#include <algorithm>
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
    for (std::size_t at = 0; at < kMost; ++at) {
        buttons_.push_back(std::make_unique<CommandButton>(window, "cmdUnsaved" + std::to_string(at + 1)));
        buttons_.back()->Click = [this, at] { Open(at); };
    }
    fraUnsaved_.Visible = false;
}

/// The newest first.
std::vector<UnsavedPage::Entry> UnsavedPage::Entries() {
    std::vector<Entry> entries;
    if (const auto* const tables = app_.Port<TableKeeper>()) {
        for (const UnsavedTable& table : tables->Unsaved())
            entries.push_back({table.name, table.changed, [this, table] { OpenTable(table); }});
    }
    if (const auto* const texts = app_.Port<TextKeeper>()) {
        for (const UnsavedText& text : texts->Unsaved())
            entries.push_back({text.name, text.changed, [this, text] { OpenText(text); }});
    }
    std::ranges::stable_sort(entries, std::greater(), &Entry::changed);
    return entries;
}

void UnsavedPage::Fill() {
    const std::vector<Entry> entries = Entries();
    fraUnsaved_.Visible = !entries.empty() && tabs_.TabState.CountInUse() == 0;
    for (std::size_t at = 0; at < buttons_.size(); ++at) {
        CommandButton& button = *buttons_[at];
        button.Visible = at < entries.size();
        if (at >= entries.size()) continue;
        button.Caption = ButtonText(CaptionOf(entries[at]));
        button.ToolTipText = entries[at].name;
    }
}

/// "Books.tbx, changed 23:32", with the date of another day.
Text UnsavedPage::CaptionOf(const Entry& entry) const {
    const TextView pattern = SameDay(entry.changed, app_.Clock().Now()) ? u"hh:nn" : u"yyyy-mm-dd hh:nn";
    return Text(app_.Files().Style().NamePart(entry.name)) + u", changed " +
           FormatDate(entry.changed, pattern);
}

void UnsavedPage::Open(std::size_t at) {
    const std::vector<Entry> entries = Entries();
    if (at < entries.size()) entries[at].open();
}

void UnsavedPage::OpenTable(const UnsavedTable& table) {
    auto* const keeper = app_.Port<TableKeeper>();
    if (keeper == nullptr) return;
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

void UnsavedPage::OpenText(const UnsavedText& text) {
    if (auto* const window = app_.Port<TextWindow>()) window->TextWindowShowUnsaved(text);
}

} // namespace korvane
