#include "document/editing/TextEditing.h"

#include "document/rtf/Rtf.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace korvane::doc {

namespace {

constexpr int kHalfPoints = 2;
constexpr int kMostPoints = 1638;
constexpr std::int32_t kLongest = 1'000'000;

int BaseLineOf(const CharFormat& format) {
    // Letters that a file only calls raised have no length. A third of their size is what they look like.
    return format.script == Script::Normal ? format.baseLine
                                           : static_cast<int>(format.script) * format.halfPoints * 10 / 3;
}

/// The delta with what the other one says over it.
CharDelta Joined(CharDelta delta, const CharDelta& over) {
    if (over.font) delta.font = over.font;
    TakeLooks(delta, over);
    return delta;
}

/// Where the part of the text ends that is another one now; nothing if there is none.
std::optional<Pos> EndOfChange(TextView before, TextView now) {
    const auto [first, firstNow] = std::ranges::mismatch(before, now);
    if (first == before.end() && firstNow == now.end()) return std::nullopt;
    const auto same = firstNow - now.begin();
    const auto end =
        std::mismatch(before.rbegin(), before.rend() - same, now.rbegin(), now.rend() - same).second;
    const Pos place = static_cast<Pos>(now.rend() - end);
    // The end of a paragraph is one place.
    const bool within = place > 0 && place < now.size() && now[place] == u'\n' && now[place - 1] == u'\r';
    return within ? place + 1 : place;
}

Look With(Look look, const CharDelta& delta) {
    Document scratch;
    look.font = delta.font.value_or(look.font);
    CharDelta others = delta;
    others.font.reset();
    look.format = Changed(scratch, look.format, others);
    return look;
}

} // namespace

TextEditing::TextEditing(std::unique_ptr<TextStore> store) : store_(std::move(store)) {}

Pos TextEditing::Clamped(std::int64_t position) const {
    return static_cast<Pos>(std::clamp<std::int64_t>(position, 0, static_cast<std::int64_t>(All().size())));
}

void TextEditing::NoteChange(bool moved) {
    if (moved) {
        fieldPlaces_.reset();
        start_ = std::min(start_, All().size());
        end_ = std::min(end_, All().size());
    }
    dataChanged_ = true;
    Edited();
}

void TextEditing::DropPending() {
    pending_ = {};
    emptyField_.reset();
}

void TextEditing::Select(Pos start, Pos end) {
    if (start == start_ && end == end_) return;
    if (start != start_) DropPending();
    start_ = start;
    end_ = end;
    SelectionMoved();
}

void TextEditing::SetAll(TextView text) {
    SetWhole(FromPlainText(text));
}

Document TextEditing::Whole() const {
    Document document = store_->Slice(0, All().size());
    document.page = store_->PageSetup();
    for (const FieldPlace& place : FieldPlaces()) {
        if (const auto found = fields_.find(place.field); found != fields_.end())
            document.fields.insert(*found);
    }
    return document;
}

void TextEditing::SetWhole(Document document) {
    fields_ = document.fields;
    fieldCurrent_ = 0;
    store_->Reset(std::move(document));
    start_ = end_ = 0;
    DropPending();
    NoteChange(true);
    SelectionMoved();
}

void TextEditing::SetSelStart(int start) {
    SetSelection(start, 0);
}

void TextEditing::SetSelLength(int length) {
    SetSelection(SelStart(), length);
}

void TextEditing::SetSelection(int start, int length) {
    const Pos from = Clamped(start);
    const Pos to =
        length == -1 ? All().size() : Clamped(static_cast<std::int64_t>(from) + std::max(length, 0));
    if (to > from) pending_ = {};
    Select(from, to);
}

Text TextEditing::SelText() const {
    return All().substr(start_, end_ - start_);
}

void TextEditing::SetSelText(TextView text) {
    Insert(LineHere(text, FieldFor(start_, end_)));
}

std::string TextEditing::SelTextRtf() const {
    Document slice = store_->Slice(start_, end_);
    for (const FieldPlace& place : FieldPlaces()) {
        if (const auto found = fields_.find(place.field); found != fields_.end()) slice.fields.insert(*found);
    }
    return end_ > start_ ? WriteRtf(slice, RtfExtent::Fragment) : std::string();
}

void TextEditing::SetSelTextRtf(std::string_view rtf) {
    if (rtf.empty()) return DeleteSelection();
    ReadResult read = ReadRtf(rtf);
    if (read.trouble == Trouble::WrongFormat) return;
    // A field that comes in is another one than the field of the same number that may be here.
    std::map<Index, Index> numbers;
    Index last = fields_.empty() ? 0 : fields_.rbegin()->first;
    for (const auto& [number, field] : read.document.fields) {
        numbers[number] = ++last;
        fields_[last] = field;
    }
    for (Paragraph& paragraph : read.document.paragraphs) {
        for (Run& run : paragraph.runs)
            run.field = run.field == 0 ? 0 : numbers[run.field];
    }
    Insert(read.document);
}

/// A piece of the text with the look and the format of its paragraphs.
Document TextEditing::LineLike(TextView text, const Look& look, Index field, const ParaFormat& shape) const {
    Document piece = FromPlainText(text);
    piece.fonts[0] = look.font;
    CharFormat format = look.format;
    format.font = 0;
    const Index charNumber = piece.chars.Add(format);
    const Index paraNumber = piece.paras.Add(shape);
    for (Paragraph& paragraph : piece.paragraphs) {
        paragraph.format = paraNumber;
        if (paragraph.text.empty())
            paragraph.emptyFormat = charNumber;
        else
            paragraph.runs = {{static_cast<Index>(paragraph.text.size()), charNumber, field}};
    }
    return piece;
}

void TextEditing::Insert(const Document& piece) {
    const Pos end = store_->Replace(start_, end_, piece);
    start_ = end_ = end;
    DropPending();
    NoteChange(true);
    SelectionMoved();
}

bool TextEditing::Travel(bool (TextStore::*way)()) {
    const Text before = All();
    if (!((*store_).*way)()) return false;
    if (const auto place = EndOfChange(before, All())) start_ = end_ = *place;
    DropPending();
    NoteChange(true);
    SelectionMoved();
    return true;
}

/// The look of the first character of the selection, or of what is written next.
Look TextEditing::First() const {
    return start_ == end_ ? With(store_->LookAt(start_), pending_) : LookIn(start_, end_);
}

Look TextEditing::LookIn(Pos from, Pos to) const {
    std::optional<Look> first;
    // A stretch may begin with the ends of paragraphs, so a few characters more are looked at.
    store_->Runs(from, std::min(to, from + 64), [&first](Pos, std::size_t, const Look& look) {
        if (!first) first = look;
    });
    return first ? *first : store_->LookAt(from);
}

int TextEditing::FlagOf(bool CharFormat::*flag) const {
    if (start_ == end_) return First().format.*flag ? 1 : 0;
    bool on = false;
    bool off = false;
    store_->Runs(start_, end_,
                 [&](Pos, std::size_t, const Look& look) { (look.format.*flag ? on : off) = true; });
    if (!on && !off) return First().format.*flag ? 1 : 0;
    return on && off ? kMixed : on ? 1 : 0;
}

bool TextEditing::Differs(const std::function<bool(const Look&, const Look&)>& same) const {
    std::optional<Look> first;
    bool differs = false;
    store_->Runs(start_, end_, [&](Pos, std::size_t, const Look& look) {
        if (!first) first = look;
        differs = differs || !same(*first, look);
    });
    return differs;
}

bool TextEditing::FontNameDiffers() const {
    return Differs([](const Look& one, const Look& other) { return one.font == other.font; });
}

bool TextEditing::FontSizeDiffers() const {
    return Differs(
        [](const Look& one, const Look& other) { return one.format.halfPoints == other.format.halfPoints; });
}

bool TextEditing::BaseLineDiffers() const {
    return Differs([](const Look& one, const Look& other) {
        return BaseLineOf(one.format) == BaseLineOf(other.format);
    });
}

void TextEditing::Apply(const CharDelta& delta) {
    if (start_ == end_) {
        pending_ = Joined(pending_, delta);
        SelectionMoved();
        return;
    }
    store_->Format(start_, end_, delta);
    NoteChange(false);
}

Text TextEditing::FontName() const {
    return First().font;
}

void TextEditing::SetFontName(TextView name) {
    if (!name.empty()) Apply({.font = Text(name)});
}

int TextEditing::FontSize() const {
    return (FontHalfPoints() + 1) / kHalfPoints;
}

void TextEditing::SetFontSize(int points) {
    SetFontHalfPoints(std::min(points, kMostPoints) * kHalfPoints);
}

int TextEditing::FontHalfPoints() const {
    return First().format.halfPoints;
}

void TextEditing::SetFontHalfPoints(int halfPoints) {
    if (halfPoints > 0)
        Apply({.halfPoints = static_cast<std::uint16_t>(std::min(halfPoints, kMostPoints * kHalfPoints))});
}

int TextEditing::BaseLine() const {
    return BaseLineOf(First().format);
}

void TextEditing::ChangeParas(const std::function<void(ParaFormat&)>& change) {
    store_->FormatParas(start_, end_, change);
    NoteChange(false);
}

void TextEditing::SetLength(std::int32_t ParaFormat::*length, int twips) {
    ChangeParas([=](ParaFormat& format) { format.*length = std::clamp(twips, -kLongest, kLongest); });
}

void TextEditing::SetAlignment(int alignment) {
    if (alignment < 0 || alignment > static_cast<int>(doc::Alignment::Justified)) return;
    ChangeParas([=](ParaFormat& format) { format.alignment = static_cast<doc::Alignment>(alignment); });
}

void TextEditing::SetLineSpacing(int percent) {
    if (percent <= 0) return;
    ChangeParas([=](ParaFormat& format) {
        format.spacingPercent = std::min(percent, 10'000);
        format.spacingExact = 0;
    });
}

void TextEditing::SetLineSpacingT(int twips) {
    if (twips <= 0) return;
    ChangeParas([=](ParaFormat& format) {
        format.spacingExact = std::min(twips, kLongest);
        format.spacingPercent = 100;
    });
}

void TextEditing::SetFrameStyle(int bits) {
    ChangeParas([=](ParaFormat& format) { format.frame = static_cast<std::uint16_t>(bits & 0x1FFF); });
}

int TextEditing::TabPos() const {
    const std::vector<TabStop> tabs = Para().tabs;
    const std::size_t current = static_cast<std::size_t>(tabCurrent_);
    return tabCurrent_ >= 1 && current <= tabs.size() ? tabs[current - 1].at : 0;
}

int TextEditing::TabType() const {
    const std::vector<TabStop> tabs = Para().tabs;
    const std::size_t current = static_cast<std::size_t>(tabCurrent_);
    return tabCurrent_ >= 1 && current <= tabs.size() ? static_cast<int>(tabs[current - 1].type)
                                                      : static_cast<int>(doc::TabType::Left);
}

void TextEditing::ChangeTab(const std::function<void(std::vector<TabStop>&, std::size_t)>& change) {
    if (tabCurrent_ < 1 || tabCurrent_ > kTabs) return;
    ChangeParas([&](ParaFormat& format) { change(format.tabs, static_cast<std::size_t>(tabCurrent_ - 1)); });
}

void TextEditing::SetTabPos(int twips) {
    ChangeTab([=](std::vector<TabStop>& tabs, std::size_t current) {
        const bool there = current < tabs.size();
        TabStop stop = there ? tabs[current] : TabStop{};
        if (there) tabs.erase(tabs.begin() + static_cast<std::ptrdiff_t>(current));
        if (twips <= 0) return;
        stop.at = std::min(twips, kLongest);
        const auto place = std::ranges::lower_bound(tabs, stop.at, {}, &TabStop::at);
        if (place != tabs.end() && place->at == stop.at)
            *place = stop;
        else
            tabs.insert(place, stop);
    });
}

void TextEditing::SetTabType(int type) {
    if (type < static_cast<int>(doc::TabType::Left) || type > static_cast<int>(doc::TabType::Decimal)) return;
    ChangeTab([=](std::vector<TabStop>& tabs, std::size_t current) {
        if (current < tabs.size()) tabs[current].type = static_cast<doc::TabType>(type);
    });
}

void TextEditing::SetPageSize(Page::Size size, int twips) {
    Page page = store_->PageSetup();
    page[size] = std::clamp(twips, 0, kLongest);
    if (page == store_->PageSetup()) return;
    store_->SetPageSetup(page);
    NoteChange(false);
}

} // namespace korvane::doc
