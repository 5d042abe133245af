#include "text/control/frmTextSearch.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

/// A selection in which it makes sense to look for what is selected.
bool IsPattern(const Text& selected) {
    return !selected.empty() && selected.size() <= 200 && selected.find(u'\r') == Text::npos;
}

} // namespace

frmTextSearch::frmTextSearch(App& app, TextControl& target, SearchUse use, TextSearch& last)
    : Form(app.Forms(), "frmTextSearch", use == SearchUse::Replace ? u"Find and replace" : u"Find"),
      app_(app),
      target_(target),
      use_(use),
      last_(last) {
    cmdFind.Click = [this] { cmdFind_Click(); };
    cmdFind.Default = true;
    cmdReplace.Click = [this] { cmdReplace_Click(); };
    cmdReplaceAll.Click = [this] { cmdReplaceAll_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmTextSearch::Load() {
    const Text selected = target_.SelText();
    txtFind.Text = IsPattern(selected) ? selected : last_.pattern;
    chkCase.Value = last_.matchCase ? 1 : 0;
    chkWords.Value = last_.wholeWords ? 1 : 0;
    (last_.up ? optUp : optDown).Value = true;
    const bool replaces = use_ == SearchUse::Replace && !target_.Locked;
    for (Control* const part : {static_cast<Control*>(&txtReplace), static_cast<Control*>(&cmdReplace),
                                static_cast<Control*>(&cmdReplaceAll)})
        part->Visible = replaces;
    txtFind.SetFocus();
    txtFind.SelectAll();
}

TextSearch frmTextSearch::Asked() {
    last_ = {txtFind.Text, chkCase.Value == 1, chkWords.Value == 1, optUp.Value};
    return last_;
}

/// Goes on at the other end of the text when there is no further place.
bool frmTextSearch::Find(const TextSearch& search) {
    const Text& text = target_.All();
    const int start = target_.SelStart();
    const int from = search.up ? start : start + target_.SelLength();
    auto found = search.Find(text, static_cast<std::size_t>(from));
    if (!found) found = search.Find(text, search.up ? text.size() : 0);
    if (found) target_.SetSelection(static_cast<int>(*found), static_cast<int>(search.pattern.size()));
    return found.has_value();
}

void frmTextSearch::TellNothing(const Text& pattern) {
    if (!pattern.empty()) Inform(app_, u"\"" + pattern + u"\"\r\n\r\nis not in the text.");
}

void frmTextSearch::cmdFind_Click() {
    const TextSearch search = Asked();
    if (!Find(search)) TellNothing(search.pattern);
}

void frmTextSearch::cmdReplace_Click() {
    const TextSearch search = Asked();
    if (search.pattern.empty()) return;
    if (search.Is(target_.SelText())) {
        const int start = target_.SelStart();
        target_.SetSelText(txtReplace.Text.Get());
        // Upwards, the search goes on before what was put in.
        if (search.up) target_.SetSelStart(start);
    }
    cmdFind_Click();
}

void frmTextSearch::cmdReplaceAll_Click() {
    const TextSearch search = Asked();
    const std::vector<std::size_t> places = search.FindAll(target_.All());
    if (places.empty()) return TellNothing(search.pattern);
    {
        const Hourglass hourglass(app_.Screen());
        const doc::Step together(target_.Store());
        // The places before the one that is replaced stay where they are.
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            target_.SetSelection(static_cast<int>(*place), static_cast<int>(search.pattern.size()));
            target_.SetSelText(txtReplace.Text.Get());
        }
    }
    Inform(app_,
           places.size() == 1 ? u"1 place replaced." : NumberText(places.size()) + u" places replaced.");
}

} // namespace korvane
