#include "text/markup/MarkupConversion.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"
#include "text/markup/MarkupTags.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr int kSilentLineHeight = 320;
/// How much smaller raised and lowered characters become.
constexpr int kSmallerScript = 2;

void Erase(TextControl& control, int start, TextView tag) {
    control.SetSelection(start, static_cast<int>(tag.size()));
    control.SetSelText({});
}

/// Gives the selection the look that both conversions give for the tag; false for a heading.
bool ApplyPlainLook(TextControl& control, TagLook look, int baseline) {
    switch (look) {
    case TagLook::Italic:
        control.SetFontItalic(1);
        return true;
    case TagLook::Bold:
        control.SetFontBold(1);
        return true;
    case TagLook::Underline:
        control.SetFontUnderline(1);
        return true;
    case TagLook::Strikethru:
        control.SetFontStrikethru(1);
        return true;
    case TagLook::Raised:
        control.SetBaseLine(baseline);
        return true;
    case TagLook::Lowered:
        control.SetBaseLine(-baseline);
        return true;
    case TagLook::Heading:
        break;
    }
    return false;
}

/// The tag whose opening or closing part is at the place (counted from 0); nullptr for none.
const MarkupTag* TagAt(TextView text, std::size_t place, TextView MarkupTag::*part) {
    const auto found = std::ranges::find_if(
        MarkupTags(), [=](const MarkupTag& tag) { return text.substr(place).starts_with(tag.*part); });
    return found == MarkupTags().end() ? nullptr : &*found;
}

/// The pass over the whole text.
class DirectPass {
public:
    DirectPass(TextControl& control, int baseline) : control_(control), baseline_(baseline) {}

    void Run() {
        const std::size_t length = control_.All().size();
        // The text gets shorter, but the next character is always one further on.
        for (std::size_t place = 0; place < length; ++place) {
            const Text& text = control_.All();
            if (place >= text.size()) return;
            if (text[place] != u'<') continue;
            const bool closes = place + 1 < text.size() && text[place + 1] == u'/';
            const auto part = closes ? &MarkupTag::closing : &MarkupTag::opening;
            const MarkupTag* const tag = TagAt(text, place, part);
            if (tag == nullptr) continue;
            closes ? Close(*tag, static_cast<int>(place)) : Open(*tag, static_cast<int>(place));
        }
    }

private:
    void Open(const MarkupTag& tag, int place) {
        control_.SetSelection(place, static_cast<int>(tag.opening.size()));
        size_ = control_.FontSize();
        control_.SetSelText({});
        start_ = control_.SelStart();
    }

    void Close(const MarkupTag& tag, int place) {
        Erase(control_, place, tag.closing);
        control_.SetSelection(start_, place - start_);
        if (ApplyPlainLook(control_, tag.look, baseline_)) return;
        // The font and the weight of the settings don't count here. Kept for compatibility:
        // heading-settings-by-tag-only.
        control_.SetFontBold(1);
        control_.SetFontSize(size_ + tag.larger);
    }

    TextControl& control_;
    int baseline_;
    /// Where the last opening tag was, and the size of its characters.
    int start_ = 0;
    int size_ = 0;
};

/// The passes for single tags.
class TagPass {
public:
    TagPass(App& app, TextControl& control, bool confirm) : app_(app), control_(control), confirm_(confirm) {}

    void Run(const MarkupTag& tag) {
        control_.SetSelection(0, -1);
        std::size_t from = 1;
        while (const auto next = Convert(tag, from))
            from = *next;
    }

    int Conversions() const { return conversions_; }

private:
    /// Converts the next place and tells where the one after it is looked for; nothing at the end.
    std::optional<std::size_t> Convert(const MarkupTag& tag, std::size_t from) {
        const std::size_t opening = InStr(control_.All(), tag.opening, from);
        if (opening == 0) return std::nullopt;
        const std::size_t closing = InStr(control_.All(), tag.closing, opening + 1);
        if (closing == 0) return std::nullopt;
        control_.SetSelection(static_cast<int>(opening) - 1, static_cast<int>(closing - opening));
        if (confirm_) {
            const Answer answer = app_.Messages().Show(
                {u"Convert this instance?", MessageIcon::Question, MessageButtons::YesNoCancel});
            // This ends the pass of one tag alone. Kept for compatibility: cancel-ends-one-tag.
            if (answer == Answer::Cancel) return std::nullopt;
            if (answer == Answer::No) return closing + tag.closing.size();
        }
        Apply(tag);
        Erase(control_, static_cast<int>(closing) - 1, tag.closing);
        Erase(control_, static_cast<int>(opening) - 1, tag.opening);
        ++conversions_;
        const std::size_t erased = tag.opening.size() + tag.closing.size();
        return closing > erased ? closing - erased : 1;
    }

    void Apply(const MarkupTag& tag) {
        const bool script = tag.look == TagLook::Raised || tag.look == TagLook::Lowered;
        if (script) control_.SetFontSize(control_.FontSize() - kSmallerScript);
        if (ApplyPlainLook(control_, tag.look, app_.Settings.MarkupOption)) return;
        control_.SetFontSize(control_.FontSize() + tag.larger);
        control_.SetFontBold(app_.Settings.HtmlOptionB);
        control_.SetFontName(app_.Settings.HtmlText);
    }

    App& app_;
    TextControl& control_;
    bool confirm_;
    int conversions_ = 0;
};

/// The tags that are to be converted; nothing when the user cancels.
std::optional<std::span<const MarkupTag>> AskForTags(App& app, int selected) {
    const Answer answer = app.Messages().Show(
        {u"Do conversion for all instances of markup?\r\n\r\n(otherwise just selected markup item)",
         MessageIcon::Question, MessageButtons::YesNoCancel});
    if (answer == Answer::Cancel) return std::nullopt;
    if (answer == Answer::Yes) return MarkupTags();
    const bool known = selected >= 0 && static_cast<std::size_t>(selected) < MarkupTags().size();
    return MarkupTags().subspan(known ? static_cast<std::size_t>(selected) : 0, known ? 1 : 0);
}

} // namespace

void ConvertMarkupDirect(App& app, TextControl& control) {
    if (control.SelLength() < 1) {
        Inform(app, u"No text selected.");
        return control.SetFocus();
    }
    const int start = control.SelStart();
    if (AskYesNo(app, u"Convert HTML codes to formatting attributes?")) {
        const Hourglass hourglass(app.Screen());
        const doc::Step together(control.Store());
        DirectPass(control, app.Settings.MarkupOption).Run();
    }
    control.SetSelStart(start);
    control.SetFocus();
}

void ConvertMarkupByTag(App& app, TextControl& control, bool confirm, int selected, MarkupMode mode) {
    const bool asked = mode == MarkupMode::Asked;
    const auto tags = asked ? AskForTags(app, selected) : std::optional(MarkupTags());
    if (!tags) return;
    control.Visible = false;
    TagPass pass(app, control, confirm);
    {
        const doc::Step together(control.Store());
        for (const MarkupTag& tag : *tags)
            pass.Run(tag);
        if (!asked) {
            control.SetSelection(0, -1);
            control.SetLineSpacingT(kSilentLineHeight);
        }
    }
    control.SetSelStart(0);
    if (asked) Inform(app, u"Number of conversions: " + NumberText(pass.Conversions()));
    control.Visible = true;
}

} // namespace korvane
