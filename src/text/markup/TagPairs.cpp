#include "text/markup/TagPairs.h"

#include "context/App.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"
#include "text/markup/MarkupTags.h"
#include "text/markup/frmHTMLCodes.h"

namespace korvane {

namespace {

int StartOf(const TextBox& box) {
    return box.SelStart;
}
int LengthOf(const TextBox& box) {
    return box.SelLength;
}
void PutCursor(TextBox& box, int at) {
    box.SelStart = at;
    box.SelLength = 0;
}
int StartOf(const TextControl& control) {
    return control.SelStart();
}
int LengthOf(const TextControl& control) {
    return control.SelLength();
}
void PutCursor(TextControl& control, int at) {
    control.SetSelStart(at);
}

template <class ControlT>
void PutRound(ControlT& control, const TagPair& tags) {
    const int start = StartOf(control);
    const int length = LengthOf(control);
    PutCursor(control, start + length);
    control.SetSelText(tags.HtmlTagClose);
    PutCursor(control, start);
    control.SetSelText(tags.HtmlTagOpen);
}

/// The user chooses a pair; false when there is nothing to be done with it.
template <class ControlT>
bool Choose(App& app, const ControlT& control, TagPair& tags) {
    frmHTMLCodes window(app);
    if (ShowForResult(app, window) != 1 || LengthOf(control) < 1) return false;
    tags = GetTagPair(app.Settings.HtmlOptionA);
    return true;
}

} // namespace

void InsertTagPair(App& app, TextControl& control) {
    TagPair tags;
    if (Choose(app, control, tags)) {
        const doc::Step together(control.Store());
        PutRound(control, tags);
    }
    control.SetFocus();
}

TagPairs::TagPairs(App& app) : app_(app) {
    app_.SetPort<MarkupPicker>(this);
}

TagPairs::~TagPairs() {
    if (app_.Port<MarkupPicker>() == this) app_.SetPort<MarkupPicker>(nullptr);
}

void TagPairs::InsertTagPair(TextBox& target) {
    TagPair tags;
    if (Choose(app_, target, tags)) PutRound(target, tags);
    target.SetFocus();
}

} // namespace korvane
