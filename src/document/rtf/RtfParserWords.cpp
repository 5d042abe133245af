#include "document/rtf/RtfParser.h"

#include <algorithm>
#include <cmath>

namespace korvane::doc::rtf {

namespace {

std::uint16_t HalfPoints(const Value& value) {
    return static_cast<std::uint16_t>(std::clamp(value.Or(24), 1, 3276));
}

constexpr std::int32_t kTwipsPerHalfPoint = 10;
/// A line spacing that is a multiple is counted in 240ths of a line.
constexpr double kLineParts = 240;
constexpr std::int32_t kLongest = 1'000'000;
constexpr std::size_t kMostTabs = 64;
constexpr std::size_t kListLevels = 9;
/// The width of a line whose width isn't told.
constexpr std::int32_t kPlainLine = 15;

constexpr bool CharFormat::*kFlags[] = {&CharFormat::bold, &CharFormat::italic, &CharFormat::underline,
                                        &CharFormat::strike, &CharFormat::smallCaps};

constexpr std::int32_t ParaFormat::*kLengths[] = {&ParaFormat::left, &ParaFormat::right, &ParaFormat::first,
                                                  &ParaFormat::before, &ParaFormat::after};

std::int32_t Bounded(std::int32_t length) {
    return std::clamp(length, -kLongest, kLongest);
}

/// The code page of a charset's number; nothing for a page of two bytes to a character.
std::optional<CodePage> PageOfCharset(std::int32_t charset) {
    struct Pair {
        std::int32_t charset;
        int page;
    };
    static constexpr Pair kPages[] = {{161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
                                      {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}, {128, 932},
                                      {129, 949},  {130, 1361}, {134, 936},  {136, 950}};
    const auto* const found = std::ranges::find(kPages, charset, &Pair::charset);
    return CodePage::ForNumber(found == std::end(kPages) ? 1252 : found->page);
}

ListKind KindOfNumber(std::int32_t number) {
    static constexpr ListKind kKinds[] = {ListKind::Decimal, ListKind::UpperRoman, ListKind::LowerRoman,
                                          ListKind::UpperLetter, ListKind::LowerLetter};
    if (number >= 0 && number < static_cast<std::int32_t>(std::size(kKinds))) return kKinds[number];
    return number == 23 ? ListKind::Bullet : ListKind::Decimal;
}

void InsertTab(std::vector<TabStop>& tabs, const TabStop& stop) {
    const auto place = std::ranges::lower_bound(tabs, stop.at, {}, &TabStop::at);
    if (place != tabs.end() && place->at == stop.at)
        *place = stop;
    else if (tabs.size() < kMostTabs)
        tabs.insert(place, stop);
}

} // namespace

void RtfParser::Destination(const Value&, std::int32_t target) {
    const Target wanted = static_cast<Target>(target);
    if (wanted == Target::Skip || (wanted == Target::Instruction && instructions_.empty()))
        return SkipGroup();
    state_.target = wanted;
}

void RtfParser::Character(const Value&, std::int32_t character) {
    Put(static_cast<char16_t>(character));
}

void RtfParser::Unicode(const Value& value, std::int32_t) {
    Put(static_cast<char16_t>(value.number));
    fallbackLeft_ = state_.fallbackLength;
}

void RtfParser::FallbackLength(const Value& value, std::int32_t) {
    state_.fallbackLength = std::clamp(value.Or(1), 0, 16);
}

void RtfParser::Binary(const Value& value, std::int32_t) {
    const std::size_t length = static_cast<std::size_t>(std::max(value.number, 0));
    const std::string_view bytes = bytes_.substr(at_, length);
    if (bytes.size() < length) builder_.Tell(Trouble::Damaged);
    at_ += bytes.size();
    if (state_.target == Target::Picture) pictureBytes_ += bytes;
}

void RtfParser::AnsiPage(const Value& value, std::int32_t) {
    ansi_ = CodePage::ForNumber(value.number).value_or(CodePage::Windows1252());
}

void RtfParser::DefaultFont(const Value& value, std::int32_t) {
    defaultFont_ = value.number;
}

void RtfParser::DefaultTab(const Value& value, std::int32_t) {
    builder_.Target().defaultTab = std::clamp(value.number, 1, kLongest);
}

void RtfParser::PageSize(const Value& value, std::int32_t size) {
    builder_.Target().page.sizes[static_cast<std::size_t>(size)] = std::clamp(value.number, 0, kLongest);
    result_.pageGiven[static_cast<std::size_t>(size)] = true;
}

void RtfParser::PlainText(const Value&, std::int32_t) {
    state_.look = {};
    state_.script = ScriptKind::Main;
    state_.scripts = {};
    state_.hidden = false;
    Font({true, defaultFont_}, 0);
}

void RtfParser::CharFlag(const Value& value, std::int32_t flag) {
    state_.look.*kFlags[flag] = value.On();
    lookChanged_ = true;
}

void RtfParser::NoUnderline(const Value&, std::int32_t) {
    state_.look.underline = false;
    lookChanged_ = true;
}

void RtfParser::Font(const Value& value, std::int32_t) {
    if (state_.target == Target::FontTable) {
        fontNumber_ = value.number;
        fontName_.clear();
        if (fonts_.size() < limits_.formats) fonts_[fontNumber_] = {};
        return;
    }
    const auto found = fonts_.find(value.number);
    state_.font = found == fonts_.end() ? nullptr : &found->second;
    state_.look.font = state_.font == nullptr ? std::uint16_t{0} : state_.font->font;
    lookChanged_ = true;
}

void RtfParser::Charset(const Value& value, std::int32_t) {
    if (const auto font = fonts_.find(fontNumber_);
        state_.target == Target::FontTable && font != fonts_.end())
        font->second.page = PageOfCharset(value.number);
}

void RtfParser::FontSize(const Value& value, std::int32_t) {
    state_.look.halfPoints = HalfPoints(value);
    lookChanged_ = true;
}

void RtfParser::SetScriptKind(const Value&, std::int32_t kind) {
    state_.script = static_cast<ScriptKind>(kind);
    lookChanged_ = true;
}

void RtfParser::ScriptFlag(const Value& value, std::int32_t flag) {
    constexpr std::optional<bool> ScriptLook::*kScriptFlags[] = {&ScriptLook::bold, &ScriptLook::italic};
    state_.scripts[static_cast<std::size_t>(state_.script)].*kScriptFlags[flag] = value.On();
    lookChanged_ = true;
}

/// Of East Asian fonts, some programs name one for text that isn't of that script.
void RtfParser::ScriptFont(const Value& value, std::int32_t) {
    if (state_.script != ScriptKind::RightToLeft) return;
    if (const auto found = fonts_.find(value.number); found != fonts_.end()) {
        state_.scripts[static_cast<std::size_t>(state_.script)].font = found->second.font;
        lookChanged_ = true;
    }
}

void RtfParser::ScriptSize(const Value& value, std::int32_t) {
    state_.scripts[static_cast<std::size_t>(state_.script)].halfPoints = HalfPoints(value);
    lookChanged_ = true;
}

CharFormat RtfParser::LookAtHand() const {
    CharFormat look = state_.look;
    if (state_.script == ScriptKind::Main) return look;
    const ScriptLook& own = state_.scripts[static_cast<std::size_t>(state_.script)];
    look.font = own.font.value_or(look.font);
    look.halfPoints = own.halfPoints.value_or(look.halfPoints);
    look.bold = own.bold.value_or(look.bold);
    look.italic = own.italic.value_or(look.italic);
    return look;
}

Colour RtfParser::ColourOf(const Value& value) const {
    const std::size_t index = static_cast<std::size_t>(value.number);
    return value.number < 0 || index >= colours_.size() ? kNoColour : colours_[index];
}

void RtfParser::ForeColour(const Value& value, std::int32_t) {
    state_.look.fore = ColourOf(value);
    lookChanged_ = true;
}

void RtfParser::BackColour(const Value& value, std::int32_t) {
    state_.look.back = ColourOf(value);
    lookChanged_ = true;
}

void RtfParser::Raise(const Value& value, std::int32_t direction) {
    state_.look.baseLine =
        direction * std::clamp(value.Or(6), -kLongest / 100, kLongest / 100) * kTwipsPerHalfPoint;
    lookChanged_ = true;
}

/// The group of this word is part of the raised text, so it sets what follows the group.
void RtfParser::ExactRaise(const Value& value, std::int32_t) {
    if (!groups_.empty()) groups_.back().look.baseLine = Bounded(value.number);
}

void RtfParser::RaisedMark(const Value&, std::int32_t) {
    if (!groups_.empty()) groups_.back().look.script = Script::Raised;
}

void RtfParser::SetScript(const Value&, std::int32_t script) {
    state_.look.script = static_cast<Script>(script);
    if (script == 0) state_.look.baseLine = 0;
    lookChanged_ = true;
}

void RtfParser::Hide(const Value& value, std::int32_t) {
    state_.hidden = value.On();
}

void RtfParser::ParaDefault(const Value&, std::int32_t) {
    ChangePara() = {};
    tabType_ = TabType::Left;
    borderSides_ = 0;
    cellSide_.reset();
}

void RtfParser::ParaAlignment(const Value&, std::int32_t alignment) {
    ChangePara().format.alignment = static_cast<Alignment>(alignment);
}

void RtfParser::ParaLength(const Value& value, std::int32_t length) {
    ChangePara().format.*kLengths[length] = Bounded(value.number);
}

void RtfParser::LineSpacing(const Value& value, std::int32_t) {
    ChangePara().lineSpacing = Bounded(value.number);
    ApplySpacing();
}

void RtfParser::SpacingRule(const Value& value, std::int32_t) {
    ChangePara().spacingIsMultiple = value.number != 0;
    ApplySpacing();
}

void RtfParser::ApplySpacing() {
    ParaFormat& format = para_.format;
    format.spacingExact = para_.lineSpacing < 0 ? -para_.lineSpacing : 0;
    const bool percent = para_.lineSpacing > 0 && para_.spacingIsMultiple;
    format.spacingPercent =
        percent ? static_cast<std::int32_t>(std::lround(para_.lineSpacing * 100 / kLineParts)) : 100;
}

void RtfParser::NextTabType(const Value&, std::int32_t type) {
    tabType_ = static_cast<TabType>(type);
}

void RtfParser::Tab(const Value& value, std::int32_t) {
    InsertTab(ChangePara().format.tabs, {Bounded(value.number), std::exchange(tabType_, TabType::Left)});
}

void RtfParser::BreakBefore(const Value& value, std::int32_t) {
    ChangePara().format.pageBreakBefore = value.On();
}

void RtfParser::InTable(const Value&, std::int32_t) {
    ChangePara().inTable = true;
}

void RtfParser::FrameSide(const Value&, std::int32_t sides) {
    borderSides_ = static_cast<std::uint16_t>(sides);
    cellSide_.reset();
}

/// As with the exact raise, this belongs to the paragraph around the group.
void RtfParser::FrameBits(const Value& value, std::int32_t) {
    frameAfterGroup_ = static_cast<std::uint16_t>(std::clamp(value.number, 0, 0x1FFF));
}

void RtfParser::BorderStyle(const Value&, std::int32_t style) {
    if (cellSide_) {
        std::int32_t& width = row_.Cell().border[static_cast<std::size_t>(*cellSide_)];
        width = style == 0 ? 0 : std::max(width, kPlainLine);
        return;
    }
    if (borderSides_ == 0) return;
    std::uint16_t& frame = ChangePara().format.frame;
    if (style == 0)
        frame = static_cast<std::uint16_t>(frame & ~borderSides_);
    else
        frame = static_cast<std::uint16_t>((frame & ~(kFrameSingle | kFrameDouble)) | borderSides_ | style);
}

void RtfParser::BorderWidth(const Value& value, std::int32_t) {
    const std::int32_t width = std::clamp(value.number, 0, kLongest);
    if (cellSide_) {
        std::int32_t& line = row_.Cell().border[static_cast<std::size_t>(*cellSide_)];
        if (line != 0) line = width;
    } else if (borderSides_ != 0) {
        ChangePara().format.frameWidth = width;
    }
}

void RtfParser::BorderDistance(const Value& value, std::int32_t) {
    if (!cellSide_ && borderSides_ != 0)
        ChangePara().format.frameDistance = std::clamp(value.number, 0, kLongest);
}

void RtfParser::ColourPart(const Value& value, std::int32_t shift) {
    const std::int32_t others = std::max(colour_, 0) & ~(0xFF << shift);
    colour_ = others | std::clamp(value.number, 0, 255) << shift;
}

void RtfParser::Paragraph(const Value&, std::int32_t) {
    if (state_.target != Target::Body) return;
    Prepare();
    builder_.EndParagraph(TakeParaFormat());
}

/// Most programs end the paragraph before the section themselves.
void RtfParser::Section(const Value&, std::int32_t) {
    if (!builder_.AtParagraphStart()) Paragraph({}, 0);
}

void RtfParser::NewPage(const Value&, std::int32_t) {
    if (!builder_.AtParagraphStart()) Paragraph({}, 0);
    breakNext_ = true;
}

void RtfParser::RowDefault(const Value&, std::int32_t) {
    row_ = {};
}

void RtfParser::RowLeft(const Value& value, std::int32_t) {
    row_.SetLeft(value.number);
}

void RtfParser::RowGap(const Value& value, std::int32_t sides) {
    const std::int32_t gap = std::clamp(value.number, 0, kLongest);
    if (sides != 2) row_.SetGap(Side::Left, gap);
    if (sides != 1) row_.SetGap(Side::Right, gap);
}

void RtfParser::CellEdge(const Value& value, std::int32_t) {
    row_.EndCell(value.number, limits_.columns);
    cellSide_.reset();
}

void RtfParser::CellSide(const Value&, std::int32_t side) {
    cellSide_ = static_cast<Side>(side);
}

void RtfParser::CellColour(const Value& value, std::int32_t) {
    row_.Cell().back = ColourOf(value);
}

void RtfParser::CellGap(const Value& value, std::int32_t side) {
    row_.SetCellGap(static_cast<Side>(side), std::clamp(value.number, 0, kLongest));
}

void RtfParser::RowBorder(const Value&, std::int32_t) {
    cellSide_.reset();
    borderSides_ = 0;
}

void RtfParser::Cell(const Value&, std::int32_t) {
    if (state_.target != Target::Body) return;
    Prepare();
    builder_.EndCell(TakeParaFormat());
}

void RtfParser::Row(const Value&, std::int32_t) {
    builder_.EndRow(row_.Cells());
}

void RtfParser::PictureStart(const Value&, std::int32_t) {
    state_.target = Target::Picture;
    picture_ = {};
    pictureSizes_ = {0, 0, 100, 100};
    halfByte_ = false;
}

void RtfParser::PictureKind(const Value&, std::int32_t kind) {
    picture_.kind = static_cast<ImageKind>(kind);
}

void RtfParser::PictureSize(const Value& value, std::int32_t index) {
    pictureSizes_[static_cast<std::size_t>(index)] = value.number;
}

void RtfParser::FieldGroup(const Value&, std::int32_t) {
    if (state_.isField) return;
    state_.isField = true;
    instructions_.emplace_back();
}

void RtfParser::FieldResult(const Value&, std::int32_t) {
    if (!instructions_.empty()) BeginResult();
}

void RtfParser::ParaList(const Value& value, std::int32_t) {
    if (state_.target == Target::ListTable) {
        if (overrides_.size() < limits_.formats) overrides_[value.number] = lists_[listIdentity_];
        return;
    }
    ChangePara().list = value.number;
    ApplyList(para_);
}

void RtfParser::ParaListLevel(const Value& value, std::int32_t) {
    ChangePara().level = value.number;
    ApplyList(para_);
}

void RtfParser::NewList(const Value&, std::int32_t) {
    levels_.clear();
    listIdentity_ = 0;
}

void RtfParser::NewListLevel(const Value&, std::int32_t) {
    if (levels_.size() < kListLevels) levels_.emplace_back();
}

void RtfParser::ListNumberKind(const Value& value, std::int32_t) {
    if (!levels_.empty()) levels_.back().kind = KindOfNumber(value.number);
}

void RtfParser::ListStart(const Value& value, std::int32_t) {
    if (!levels_.empty()) levels_.back().start = value.number;
}

void RtfParser::ListIdentity(const Value& value, std::int32_t) {
    listIdentity_ = value.number;
    if (!levels_.empty() && lists_.size() < limits_.formats)
        lists_[listIdentity_] = std::exchange(levels_, {});
}

void RtfParser::OldListKind(const Value&, std::int32_t kind) {
    if (state_.target == Target::OldList) oldListAfterGroup_ = static_cast<ListKind>(kind);
}

} // namespace korvane::doc::rtf
