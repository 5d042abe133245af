#include "controls/text/TextControl.h"

#include "common/text/ScopedValue.h"
#include "document/store/MemoryTextStore.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr TextView kNotMade = u"1d0a";
constexpr TextView kNotLoaded = u"1d08";

/// `now` has the characters of `first` in their order, with others between them. This is the place after the
/// last of them.
int EndIn(TextView now, TextView first) {
    std::size_t at = 0;
    for (const char16_t c : first) {
        const std::size_t found = now.find(c, at);
        if (found == TextView::npos) break;
        at = found + 1;
    }
    return static_cast<int>(at);
}

/// Where the character at a place of `before` is in `now`. The beginning stays the beginning.
int PlaceIn(TextView now, TextView before, int place) {
    if (place == 0) return 0;
    const std::size_t next = static_cast<std::size_t>(place) + 1;
    const int end = EndIn(now, before.substr(0, next));
    return next > before.size() ? end : std::max(end - 1, 0);
}

} // namespace

TextControl::TextControl(Form& owner, std::string_view name)
    : Control(owner, name), TextEditing(std::make_unique<doc::MemoryTextStore>()) {}

void TextControl::Edited() {
    ++edits_;
    Notify(Aspect::Text);
    if (!spaceTyped_ && Change) Change();
}

void TextControl::SelectionMoved() {
    if (!movedByUser_) Notify(Aspect::Selection);
    if (SelChange) SelChange();
}

void TextControl::Type(TextView text) {
    if (Locked || !Enabled) return;
    TypedText typed{Text(text)};
    if (KeyPress) KeyPress(typed);
    if (typed.consumed) return;
    const bool changed = DataChanged();
    // A space that replaces a selection changes more than a space does.
    const ScopedValue space(spaceTyped_, typed.Is(u' ') && SelLength() == 0);
    if (GoesOnTyping(typed.text)) Store().JoinNext();
    SetSelText(typed.text);
    if (spaceTyped_) SetDataChanged(changed);
    run_ = KeyRun{edits_, SelStart(), typed.text};
}

/// A word is undone with the spaces after it.
bool TextControl::GoesOnTyping(TextView text) const {
    if (!run_ || run_->edits != edits_ || run_->typed.empty() || SelLength() > 0 || SelStart() != run_->at)
        return false;
    const auto single = [](TextView typed) { return typed.size() <= 2 && typed.front() >= u' '; };
    const bool newWord = run_->typed == u" " && text != u" ";
    return !text.empty() && single(text) && single(run_->typed) && !newWord;
}

void TextControl::Erase() {
    if (SelLength() == 0) return;
    if (GoesOnErasing()) Store().JoinNext();
    DeleteSelection();
    run_ = KeyRun{edits_, SelStart()};
}

/// The character is next to the place where the last one was deleted.
bool TextControl::GoesOnErasing() const {
    return run_ && run_->edits == edits_ && run_->typed.empty() &&
           (SelStart() == run_->at || SelStart() + SelLength() == run_->at);
}

void TextControl::MoveSelection(int start, int length) {
    const ScopedValue user(movedByUser_, true);
    SetSelection(start, length);
}

void TextControl::Hover(int field) {
    if (field == std::exchange(hovered_, field)) return;
    if (field == 0) {
        if (FieldLeft) FieldLeft();
    } else if (FieldEntered) {
        FieldEntered(field);
    }
}

void TextControl::Click(int field) {
    const int kind = FieldType(field);
    if (kind == static_cast<int>(doc::FieldKind::Hyperlink)) {
        if (HyperlinkClicked) HyperlinkClicked(field, kind, FieldTypeData(field));
    } else if (FieldClicked) {
        FieldClicked(field);
    }
}

bool TextControl::Fail(TextView reason) {
    if (Error) Error(Text(reason));
    return false;
}

void TextControl::Take(doc::ReadResult read) {
    for (int size = 0; size < static_cast<int>(doc::Page::kSizes); ++size) {
        const auto index = static_cast<std::size_t>(size);
        SetLoadSaveAttribute(size, read.pageGiven[index] ? read.document.page.sizes[index] : 0);
    }
    // The caller decides whether the control takes the page of the file.
    read.document.page = Store().PageSetup();
    SetWhole(std::move(read.document));
}

bool TextControl::Load(TextView path, int format) {
    if (Files == nullptr) return Fail(kNotLoaded);
    auto read = Files->Load(path, format);
    if (!read) return Fail(kNotLoaded);
    cutAtLoad_ = read->trouble == doc::Trouble::OverLimit;
    Take(std::move(*read));
    return true;
}

bool TextControl::Save(TextView path, int format) {
    const TextSaving saving = Files == nullptr ? TextSaving::NotMade : Files->Save(path, format, Whole());
    if (saving == TextSaving::Saved) return true;
    return Fail(saving == TextSaving::NotWritten ? kNotWritten : kNotMade);
}

bool TextControl::LoadFromMemory(std::string_view bytes, int format) {
    auto read = Files == nullptr ? std::nullopt : Files->Read(bytes, format);
    if (!read) return Fail(kNotLoaded);
    Take(std::move(*read));
    return true;
}

bool TextControl::LoadMoreFromMemory(std::string_view bytes, int format) {
    const Text before = All();
    const TextTop top = Scroll == nullptr ? TextTop() : Scroll->Top();
    const int start = SelStart();
    const int end = start + SelLength();
    if (!LoadFromMemory(bytes, format)) return false;
    const int from = PlaceIn(All(), before, start);
    const int to = EndIn(All(), TextView(before).substr(0, static_cast<std::size_t>(end)));
    SetSelection(from, std::max(to - from, 0));
    if (Scroll != nullptr) Scroll->SetTop({PlaceIn(All(), before, top.place), top.above});
    return true;
}

void TextControl::ShowTop() {
    if (Scroll != nullptr) Scroll->SetTop({});
}

std::string TextControl::SaveToMemory(int format) const {
    return Files == nullptr ? std::string() : Files->Written(Whole(), format).value_or(std::string());
}

int TextControl::LoadSaveAttribute(int index) const {
    const auto found = attributes_.find(index);
    if (found == attributes_.end()) return 0;
    const int* const number = std::get_if<int>(&found->second);
    return number == nullptr ? 0 : *number;
}

void TextControl::Show(TextDialog dialog) {
    if (Dialogs != nullptr) Dialogs->Show(dialog, *this);
}

} // namespace korvane
