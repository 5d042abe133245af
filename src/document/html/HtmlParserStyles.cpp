#include "document/html/Css.h"
#include "document/html/HtmlParser.h"
#include "document/model/NameTable.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace korvane::doc::html {

namespace {

constexpr std::int32_t kTwipsPerHalfPoint = 10;
constexpr std::int32_t kPlainLine = 15;
constexpr std::size_t kMostTabs = 64;
constexpr std::uint16_t kFrameBits = 0x1FFF;

constexpr std::int32_t ParaFormat::*kLengths[] = {&ParaFormat::left, &ParaFormat::right, &ParaFormat::first,
                                                  &ParaFormat::before, &ParaFormat::after};

/// Takes the next number of a list away; nothing if there is none.
std::optional<std::int32_t> TakeNumber(std::string_view& list) {
    const std::string_view word = TakeWord(list);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc{}) return std::nullopt;
    return std::clamp(number, -1'000'000, 1'000'000);
}

std::int32_t SizeOfWord(std::string_view word) {
    static constexpr std::pair<std::string_view, std::int32_t> kSizes[] = {
        {"xx-small", 14}, {"x-small", 16}, {"small", 20},   {"medium", 24},
        {"large", 28},    {"x-large", 36}, {"xx-large", 48}};
    const auto* const found =
        std::ranges::find_if(kSizes, [word](const auto& size) { return SameWord(word, size.first); });
    return found == std::end(kSizes) ? 0 : found->second;
}

} // namespace

void HtmlParser::StyleFont(std::string_view value, std::int32_t) {
    const Text name = FirstFont(value);
    if (!name.empty()) Look().font = builder_.Target().FontNumber(name);
}

void HtmlParser::StyleSize(std::string_view value, std::int32_t) {
    const std::int32_t em = Look().halfPoints * kTwipsPerHalfPoint;
    std::optional<std::int32_t> twips = LengthOf(value, em);
    if (const std::optional<std::int32_t> percent = PercentOf(value); !twips && percent)
        twips = em * std::min(*percent, 1000) / 100;
    if (const std::int32_t word = SizeOfWord(value); word > 0) twips = word * kTwipsPerHalfPoint;
    if (twips)
        Look().halfPoints =
            static_cast<std::uint16_t>(std::clamp((*twips + 5) / kTwipsPerHalfPoint, 1, 3276));
}

void HtmlParser::StyleWeight(std::string_view value, std::int32_t) {
    const std::optional<std::int32_t> number = PercentOf(value);
    Look().bold = number ? *number >= 60000 : SameWord(value, "bold") || SameWord(value, "bolder");
}

void HtmlParser::StyleSlant(std::string_view value, std::int32_t) {
    Look().italic = SameWord(value, "italic") || SameWord(value, "oblique");
}

void HtmlParser::StyleLine(std::string_view value, std::int32_t) {
    const bool none = SameWord(value, "none");
    Look().underline = !none && (Look().underline || value.find("underline") != std::string_view::npos);
    Look().strike = !none && (Look().strike || value.find("line-through") != std::string_view::npos);
}

void HtmlParser::StyleVariant(std::string_view value, std::int32_t) {
    Look().smallCaps = SameWord(value, "small-caps");
}

void HtmlParser::StyleColour(std::string_view value, std::int32_t) {
    if (const std::optional<Colour> colour = ColourOf(value)) Look().fore = *colour;
}

void HtmlParser::StyleBack(std::string_view value, std::int32_t) {
    const std::optional<Colour> colour = ColourOf(value);
    if (!colour) return;
    if (styledCell_ != nullptr)
        styledCell_->back = *colour;
    else if (State().element->nature == Nature::Inline)
        Look().back = *colour;
}

void HtmlParser::StyleRaise(std::string_view value, std::int32_t) {
    if (State().element->nature != Nature::Inline) return;
    if (SameWord(value, "super"))
        Look().script = Script::Raised;
    else if (SameWord(value, "sub"))
        Look().script = Script::Lowered;
    else
        Look().baseLine = LengthOf(value).value_or(0);
}

void HtmlParser::StyleWhiteSpace(std::string_view value, std::int32_t) {
    State().pre = SameWord(value.substr(0, 3), "pre");
}

void HtmlParser::StyleAlign(std::string_view value, std::int32_t) {
    static constexpr std::pair<std::string_view, Alignment> kWords[] = {
        {"left", Alignment::Left}, {"start", Alignment::Left},     {"right", Alignment::Right},
        {"end", Alignment::Right}, {"center", Alignment::Centred}, {"justify", Alignment::Justified}};
    if (State().element->nature != Nature::Block || State().element->name == "table") return;
    for (const auto& [word, alignment] : kWords) {
        if (SameWord(value, word)) Para().alignment = alignment;
    }
}

void HtmlParser::StyleLength(std::string_view value, std::int32_t length) {
    const std::optional<std::int32_t> twips = LengthOf(value, Look().halfPoints * kTwipsPerHalfPoint);
    if (!twips || State().element->nature != Nature::Block) return;
    if (State().element->name == "table") {
        if (length == 0) tableLeft_ = *twips;
    } else if (styledCell_ == nullptr) {
        Para().*kLengths[length] = *twips;
    }
}

void HtmlParser::StyleMargin(std::string_view value, std::int32_t) {
    std::string_view words[4];
    std::size_t count = 0;
    while (count < 4 && !(words[count] = TakeWord(value)).empty())
        ++count;
    if (count == 0) return;
    // The sides come from the top clockwise, and one that isn't told is as the one across.
    const std::string_view right = count > 1 ? words[1] : words[0];
    StyleLength(words[0], 3);
    StyleLength(right, 1);
    StyleLength(count > 2 ? words[2] : words[0], 4);
    StyleLength(count > 3 ? words[3] : right, 0);
}

void HtmlParser::StyleSpacing(std::string_view value, std::int32_t) {
    if (State().element->nature != Nature::Block) return;
    if (const std::optional<std::int32_t> percent = PercentOf(value); percent && *percent > 0) {
        Para().spacingPercent = *percent;
        Para().spacingExact = 0;
    } else if (const std::optional<std::int32_t> exact =
                   LengthOf(value, Look().halfPoints * kTwipsPerHalfPoint);
               exact && *exact > 0) {
        Para().spacingPercent = 100;
        Para().spacingExact = *exact;
    }
}

void HtmlParser::StyleBorder(std::string_view value, std::int32_t sides) {
    std::int32_t width = kPlainLine;
    std::uint16_t style = 0;
    for (std::string_view word = TakeWord(value); !word.empty(); word = TakeWord(value)) {
        if (const std::optional<std::int32_t> length = LengthOf(word))
            width = std::max(*length, 0);
        else if (SameWord(word, "double"))
            style = kFrameDouble;
        else if (SameWord(word, "solid") || SameWord(word, "dashed") || SameWord(word, "dotted"))
            style = kFrameSingle;
    }
    if (styledCell_ != nullptr) {
        for (std::size_t side = 0; side < styledCell_->border.size(); ++side) {
            if ((sides >> side & 1) != 0) styledCell_->border[side] = style == 0 ? 0 : width;
        }
    } else if (style != 0 && width > 0 && State().element->nature == Nature::Block &&
               State().element->name != "table") {
        Para().frame =
            static_cast<std::uint16_t>((Para().frame & ~(kFrameSingle | kFrameDouble)) | sides | style);
        Para().frameWidth = width;
    }
}

void HtmlParser::StylePadding(std::string_view value, std::int32_t sides) {
    const std::optional<std::int32_t> length = LengthOf(TakeWord(value));
    if (!length || *length < 0) return;
    if (styledCell_ == nullptr) {
        if (Para().frame != 0) Para().frameDistance = *length;
        return;
    }
    if ((sides & kFrameLeft) != 0) styledCell_->gapLeft = *length;
    if ((sides & kFrameRight) != 0) styledCell_->gapRight = *length;
}

void HtmlParser::StyleWidth(std::string_view value, std::int32_t) {
    const std::optional<std::int32_t> length = LengthOf(value);
    if (!length || *length < 0) return;
    if (styledCell_ != nullptr) styledCell_->width = *length;
    if (styledImage_ != nullptr) styledImage_->width = *length;
}

void HtmlParser::StyleHeight(std::string_view value, std::int32_t) {
    const std::optional<std::int32_t> length = LengthOf(value);
    if (length && *length >= 0 && styledImage_ != nullptr) styledImage_->height = *length;
}

void HtmlParser::StyleBreak(std::string_view value, std::int32_t) {
    if (State().element->nature == Nature::Block)
        Para().pageBreakBefore = SameWord(value, "always") || SameWord(value, "page");
}

void HtmlParser::ReadPage(std::string_view value) {
    for (std::size_t i = 0; i < Page::kSizes; ++i) {
        const std::optional<std::int32_t> size = TakeNumber(value);
        if (!size) return;
        builder_.Target().page.sizes[i] = std::max(*size, 0);
        result_.pageGiven[i] = true;
    }
    if (const std::optional<std::int32_t> tab = TakeNumber(value))
        builder_.Target().defaultTab = std::max(*tab, 1);
}

void HtmlParser::ReadTabs(std::string_view value) {
    static constexpr std::string_view kTypes = "lrcd";
    std::vector<TabStop>& tabs = Para().tabs;
    tabs.clear();
    for (std::string_view word = TakeWord(value); !word.empty() && tabs.size() < kMostTabs;
         word = TakeWord(value)) {
        const std::size_t type = kTypes.find(word.back());
        const std::optional<std::int32_t> at = TakeNumber(word);
        if (!at || type == std::string_view::npos || (!tabs.empty() && tabs.back().at >= *at)) continue;
        tabs.push_back({*at, static_cast<TabType>(type + 1)});
    }
}

void HtmlParser::ReadFrame(std::string_view value) {
    Para().frame = static_cast<std::uint16_t>(TakeNumber(value).value_or(0) & kFrameBits);
    Para().frameWidth = std::max(TakeNumber(value).value_or(0), 0);
    Para().frameDistance = std::max(TakeNumber(value).value_or(0), 0);
}

void HtmlParser::ReadListMark(std::string_view value) {
    const std::int32_t kind = std::clamp(TakeNumber(value).value_or(0), 0, 6);
    const std::int32_t level = std::clamp(TakeNumber(value).value_or(0), 0, 8);
    const std::int32_t start = TakeNumber(value).value_or(1);
    const std::int32_t list = std::max(TakeNumber(value).value_or(0), 0);
    Para().list = {};
    if (kind != 0)
        Para().list = {static_cast<ListKind>(kind), static_cast<std::uint8_t>(level), start,
                       static_cast<std::uint32_t>(list)};
}

namespace {

using P = HtmlParser;

} // namespace

/// The rows of the properties, which the parser lets name its routines.
struct StyleTable {
    static constexpr Styles::Row kRows[] = {
        {"font-family", &P::StyleFont},
        {"font-size", &P::StyleSize},
        {"font-weight", &P::StyleWeight},
        {"font-style", &P::StyleSlant},
        {"text-decoration", &P::StyleLine},
        {"text-decoration-line", &P::StyleLine},
        {"font-variant", &P::StyleVariant},
        {"color", &P::StyleColour},
        {"background-color", &P::StyleBack},
        {"background", &P::StyleBack},
        {"vertical-align", &P::StyleRaise},
        {"white-space", &P::StyleWhiteSpace},
        {"text-align", &P::StyleAlign},
        {"margin", &P::StyleMargin},
        {"margin-left", &P::StyleLength, 0},
        {"margin-right", &P::StyleLength, 1},
        {"text-indent", &P::StyleLength, 2},
        {"margin-top", &P::StyleLength, 3},
        {"margin-bottom", &P::StyleLength, 4},
        {"line-height", &P::StyleSpacing},
        {"border", &P::StyleBorder, kFrameSides},
        {"border-left", &P::StyleBorder, kFrameLeft},
        {"border-right", &P::StyleBorder, kFrameRight},
        {"border-top", &P::StyleBorder, kFrameTop},
        {"border-bottom", &P::StyleBorder, kFrameBottom},
        {"padding", &P::StylePadding, kFrameSides},
        {"padding-left", &P::StylePadding, kFrameLeft},
        {"padding-right", &P::StylePadding, kFrameRight},
        {"width", &P::StyleWidth},
        {"height", &P::StyleHeight},
        {"page-break-before", &P::StyleBreak},
        {"break-before", &P::StyleBreak},
    };
};

const Styles::Row* Styles::Find(std::string_view name) {
    return NameTable<StyleTable::kRows>::Find(name);
}

} // namespace korvane::doc::html
