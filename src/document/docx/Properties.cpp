#include "document/docx/Properties.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace korvane::doc::docx {

namespace {

constexpr int kLongest = 1'000'000;
constexpr int kTwipsPerHalfPoint = 10;
constexpr int kTwipsPerPoint = 20;
/// The width of a line is counted in eighths of a point.
constexpr double kTwipsPerEighth = 2.5;
constexpr double kLineParts = 240;
constexpr std::size_t kMostTabs = 64;

struct Marker {
    std::string_view name;
    std::int32_t colour;
};

constexpr Marker kMarkers[] = {
    {"black", 0x000000},    {"blue", 0xFF0000},       {"cyan", 0xFFFF00},      {"green", 0x00FF00},
    {"magenta", 0xFF00FF},  {"red", 0x0000FF},        {"yellow", 0x00FFFF},    {"white", 0xFFFFFF},
    {"darkBlue", 0x800000}, {"darkCyan", 0x808000},   {"darkGreen", 0x008000}, {"darkMagenta", 0x800080},
    {"darkRed", 0x000080},  {"darkYellow", 0x008080}, {"darkGray", 0x808080},  {"lightGray", 0xC0C0C0},
};

void ApplyFont(const XmlAttributes& attributes, Document& document, Look& look) {
    std::string_view name = attributes.Get("ascii");
    if (name.empty()) name = attributes.Get("hAnsi");
    if (!name.empty()) look.font = document.FontNumber(FromUtf8(name));
    const std::string_view eastAsia = attributes.Get("eastAsia");
    if (!eastAsia.empty()) look.eastAsiaFont = document.FontNumber(FromUtf8(eastAsia));
}

void ApplyScript(std::string_view value, CharFormat& look) {
    look.script = value == "superscript" ? Script::Raised
                  : value == "subscript" ? Script::Lowered
                                         : Script::Normal;
}

void ApplyIndent(const XmlAttributes& attributes, ParaFormat& format) {
    const auto set = [&](std::string_view name, std::int32_t& length, int sign = 1) {
        if (const std::optional<int> number = attributes.Number(name)) length = sign * Bounded(*number);
    };
    set("left", format.left);
    set("start", format.left);
    set("right", format.right);
    set("end", format.right);
    set("firstLine", format.first);
    set("hanging", format.first, -1);
}

void ApplySpacing(const XmlAttributes& attributes, ParaFormat& format) {
    if (const std::optional<int> before = attributes.Number("before")) format.before = Bounded(*before);
    if (const std::optional<int> after = attributes.Number("after")) format.after = Bounded(*after);
    const std::optional<int> line = attributes.Number("line");
    if (!line || *line <= 0) return;
    const std::string_view rule = attributes.Get("lineRule");
    format.spacingExact = rule == "exact" ? Bounded(*line) : 0;
    const bool percent = rule.empty() || rule == "auto";
    format.spacingPercent =
        percent ? static_cast<std::int32_t>(std::lround(Bounded(*line) * 100 / kLineParts)) : 100;
}

void ApplyAlignment(std::string_view value, ParaFormat& format) {
    if (value == "right" || value == "end")
        format.alignment = Alignment::Right;
    else if (value == "center")
        format.alignment = Alignment::Centred;
    else if (value == "both" || value == "distribute")
        format.alignment = Alignment::Justified;
    else
        format.alignment = Alignment::Left;
}

void ApplyTab(const XmlAttributes& attributes, ParaFormat& format) {
    const std::string_view kind = attributes.Get("val");
    TabStop stop{Bounded(attributes.Number("pos").value_or(0))};
    if (kind == "right" || kind == "end") stop.type = TabType::Right;
    if (kind == "center") stop.type = TabType::Centred;
    if (kind == "decimal") stop.type = TabType::Decimal;
    std::vector<TabStop>& tabs = format.tabs;
    const auto place = std::ranges::lower_bound(tabs, stop.at, {}, &TabStop::at);
    const bool there = place != tabs.end() && place->at == stop.at;
    if (kind == "clear") {
        if (there) tabs.erase(place);
    } else if (there) {
        *place = stop;
    } else if (tabs.size() < kMostTabs) {
        tabs.insert(place, stop);
    }
}

} // namespace

int Bounded(int length) {
    return std::clamp(length, -kLongest, kLongest);
}

bool IsOn(const XmlAttributes& attributes) {
    const std::string_view value = attributes.Get("val");
    return value != "0" && value != "false" && value != "off" && value != "none";
}

Colour ColourOf(std::string_view value) {
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number, 16);
    if (error != std::errc{} || value.size() != 6 || end != value.data() + 6) return kNoColour;
    return {static_cast<std::int32_t>((number & 0xFF) << 16 | (number & 0xFF00) | number >> 16)};
}

int LineWidth(const XmlAttributes& attributes) {
    const std::string_view kind = attributes.Get("val");
    if (kind.empty() || kind == "nil" || kind == "none") return 0;
    const int eighths = std::clamp(attributes.Number("sz").value_or(4), 0, 1000);
    return static_cast<int>(std::lround(eighths * kTwipsPerEighth));
}

void ApplyToLook(std::string_view element, const XmlAttributes& attributes, Document& document, Look& look) {
    const std::string_view value = attributes.Get("val");
    if (element == "rFonts")
        ApplyFont(attributes, document, look);
    else if (element == "sz")
        look.halfPoints =
            static_cast<std::uint16_t>(std::clamp(attributes.Number("val").value_or(24), 1, 3276));
    else if (element == "b")
        look.bold = IsOn(attributes);
    else if (element == "i")
        look.italic = IsOn(attributes);
    else if (element == "u")
        look.underline = IsOn(attributes);
    else if (element == "strike" || element == "dstrike")
        look.strike = IsOn(attributes);
    else if (element == "smallCaps" || element == "caps")
        look.smallCaps = IsOn(attributes);
    else if (element == "color")
        look.fore = ColourOf(value);
    else if (element == "shd")
        look.back = ColourOf(attributes.Get("fill"));
    else if (element == "position")
        look.baseLine = std::clamp(attributes.Number("val").value_or(0), -3000, 3000) * kTwipsPerHalfPoint;
    else if (element == "vertAlign")
        ApplyScript(value, look);
    else if (element == "highlight") {
        const auto* const marker = std::ranges::find(kMarkers, value, &Marker::name);
        look.back = marker == std::end(kMarkers) ? kNoColour : Colour{marker->colour};
    }
}

void ApplyToPara(std::string_view element, const XmlAttributes& attributes, ParaState& para) {
    if (element == "jc")
        ApplyAlignment(attributes.Get("val"), para.format);
    else if (element == "ind")
        ApplyIndent(attributes, para.format);
    else if (element == "spacing")
        ApplySpacing(attributes, para.format);
    else if (element == "tab")
        ApplyTab(attributes, para.format);
    else if (element == "pageBreakBefore")
        para.format.pageBreakBefore = IsOn(attributes);
    else if (element == "ilvl")
        para.level = attributes.Number("val").value_or(0);
    else if (element == "numId")
        para.list = attributes.Number("val").value_or(0);
}

void ApplyFrameSide(std::string_view element, const XmlAttributes& attributes, ParaFormat& format) {
    static constexpr std::pair<std::string_view, std::uint16_t> kSides[] = {
        {"left", kFrameLeft}, {"start", kFrameLeft},    {"right", kFrameRight},      {"end", kFrameRight},
        {"top", kFrameTop},   {"bottom", kFrameBottom}, {"between", kFrameConnected}};
    const auto* const side =
        std::ranges::find(kSides, element, &std::pair<std::string_view, std::uint16_t>::first);
    const int width = LineWidth(attributes);
    if (side == std::end(kSides) || width == 0) return;
    const std::uint16_t style = attributes.Get("val") == "double" ? kFrameDouble : kFrameSingle;
    format.frame =
        static_cast<std::uint16_t>((format.frame & ~(kFrameSingle | kFrameDouble)) | side->second | style);
    format.frameWidth = width;
    format.frameDistance = std::clamp(attributes.Number("space").value_or(0), 0, 1000) * kTwipsPerPoint;
}

StoredProperty::StoredProperty(std::string_view element, const XmlAttributes& attributes)
    : element_(element) {
    attributes.ForEach([this](const char* name, const char* value) {
        parts_.emplace_back(name);
        parts_.emplace_back(value);
    });
}

} // namespace korvane::doc::docx
