#include "text/control/frmTextTabs.h"

#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"

#include <algorithm>

namespace korvane {

namespace {

/// In the order of `doc::TabType`, which counts from 1.
constexpr TextView kTypes[] = {u"Left tab", u"Right tab", u"Centered tab", u"Decimal tab"};

constexpr int IndexOf(doc::TabType type) {
    return static_cast<int>(type) - 1;
}

} // namespace

frmTextTabs::frmTextTabs(App& app, TextControl& target) : ControlForm(app, target, "frmTextTabs", u"Tabs") {
    lstTabs.Click = [this] { lstTabs_Click(); };
    cmdSet.Click = [this] { cmdSet_Click(); };
    cmdDelete.Click = [this] { cmdDelete_Click(); };
    cmdDeleteAll.Click = [this] { cmdDeleteAll_Click(); };
}

void frmTextTabs::Load() {
    for (const TextView type : kTypes)
        cboType.AddItem(type);
    cboType.SetListIndex(0);
    tabs_ = Target().ParagraphFormat().tabs;
    ShowTabs(tabs_.empty() ? -1 : 0);
    txtPosition.SetFocus();
}

void frmTextTabs::ShowTabs(int current) {
    lstTabs.Clear();
    for (const doc::TabStop& tab : tabs_)
        lstTabs.AddItem(LengthText(tab.at, Unit()) + u"   " +
                        Text(kTypes[static_cast<std::size_t>(IndexOf(tab.type))]));
    lstTabs.SetListIndex(std::min(current, lstTabs.ListCount() - 1));
    cmdDelete.Enabled = lstTabs.ListIndex() >= 0;
    cmdDeleteAll.Enabled = !tabs_.empty();
}

void frmTextTabs::lstTabs_Click() {
    cmdDelete.Enabled = lstTabs.ListIndex() >= 0;
    if (lstTabs.ListIndex() < 0) return;
    const doc::TabStop& tab = tabs_[static_cast<std::size_t>(lstTabs.ListIndex())];
    txtPosition.ShowLength(tab.at, Unit());
    cboType.SetListIndex(IndexOf(tab.type));
}

void frmTextTabs::cmdSet_Click() {
    const int at = txtPosition.Length().value_or(0);
    if (at <= 0) return Warn(Context(), u"A tab needs a distance from the margin.");
    auto place = std::ranges::lower_bound(tabs_, at, {}, &doc::TabStop::at);
    if (place == tabs_.end() || place->at != at) {
        if (tabs_.size() >= TextControl::kTabs) return Warn(Context(), u"A paragraph has at most 14 tabs.");
        place = tabs_.insert(place, doc::TabStop{at});
    }
    place->type = static_cast<doc::TabType>(cboType.ListIndex() + 1);
    altered_ = true;
    ShowTabs(static_cast<int>(place - tabs_.begin()));
    txtPosition.SetFocus();
    txtPosition.SelectAll();
}

void frmTextTabs::cmdDelete_Click() {
    const int current = lstTabs.ListIndex();
    if (current < 0) return;
    tabs_.erase(tabs_.begin() + current);
    altered_ = true;
    ShowTabs(current);
}

void frmTextTabs::cmdDeleteAll_Click() {
    tabs_.clear();
    altered_ = true;
    ShowTabs(-1);
}

bool frmTextTabs::Accept() {
    // A tab that was typed and not set yet is meant too.
    if (txtPosition.NewLength().value_or(0) > 0) cmdSet_Click();
    if (altered_) Target().FormatParagraphs([this](doc::ParaFormat& format) { format.tabs = tabs_; });
    return true;
}

} // namespace korvane
