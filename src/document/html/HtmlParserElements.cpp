#include "document/html/Css.h"
#include "document/html/Entities.h"
#include "document/html/HtmlParser.h"
#include "document/model/Base64.h"
#include "document/model/NameTable.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace korvane::doc::html {

namespace {

constexpr bool CharFormat::*kFlags[] = {&CharFormat::bold, &CharFormat::italic, &CharFormat::underline,
                                        &CharFormat::strike};
/// What follows a paragraph of a page that another program wrote.
constexpr std::int32_t kUsualGap = 200;
constexpr std::int32_t kListStep = 360;
constexpr std::int32_t kPixel = 15;
constexpr std::size_t kDeepestList = 8;

std::int32_t NumberOf(std::string_view value, std::int32_t otherwise) {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc{} ? std::clamp(number, -100'000, 100'000) : otherwise;
}

/// Whether a link to the address is kept: one to a web page, a mail address, a file or a place.
bool IsHarmless(TextView address) {
    const std::size_t colon = address.find(u':');
    if (colon == TextView::npos || colon < 2 || address.find_first_of(u"/\\#?") < colon) return true;
    std::string scheme;
    for (const char16_t c : address.substr(0, colon)) {
        // Browsers skip line ends and control characters there.
        if (c > u' ') scheme += static_cast<char>(c < 0x80 ? c | 0x20 : '?');
    }
    static constexpr std::string_view kSchemes[] = {"http", "https", "mailto", "file", "ftp"};
    return std::ranges::find(kSchemes, scheme) != std::end(kSchemes);
}

std::optional<ImageKind> KindOfData(std::string_view type) {
    if (type == "image/png") return ImageKind::Png;
    return type == "image/jpeg" || type == "image/jpg" ? std::optional(ImageKind::Jpeg) : std::nullopt;
}

/// The picture in a `data:` address; nothing for any other address.
std::optional<Image> DataImage(std::string_view source) {
    const std::size_t comma = source.find(',');
    if (!source.starts_with("data:") || comma == std::string_view::npos) return std::nullopt;
    const std::string_view head = source.substr(5, comma - 5);
    const std::size_t mark = head.find(';');
    const std::optional<ImageKind> kind = KindOfData(head.substr(0, mark));
    if (!kind || mark == std::string_view::npos || head.substr(mark) != ";base64") return std::nullopt;
    const std::string bytes = FromBase64(source.substr(comma + 1));
    auto shared = std::make_shared_for_overwrite<char[]>(bytes.size());
    std::ranges::copy(bytes, shared.get());
    return Image{*kind, {std::move(shared), bytes.size()}};
}

ListKind KindOfType(std::string_view type) {
    static constexpr std::pair<std::string_view, ListKind> kTypes[] = {{"a", ListKind::LowerLetter},
                                                                       {"A", ListKind::UpperLetter},
                                                                       {"i", ListKind::LowerRoman},
                                                                       {"I", ListKind::UpperRoman}};
    const auto* const found = std::ranges::find(kTypes, type, &std::pair<std::string_view, ListKind>::first);
    return found == std::end(kTypes) ? ListKind::Decimal : found->second;
}

} // namespace

void HtmlParser::Flag(std::int32_t flag) {
    Look().*kFlags[flag] = true;
}

void HtmlParser::SetScript(std::int32_t script) {
    Look().script = static_cast<Script>(script);
}

void HtmlParser::FontElement(std::int32_t) {
    static constexpr std::uint16_t kHalfPoints[] = {15, 20, 24, 27, 36, 48, 72};
    if (const Text face = FirstFont(ToUtf8(Unescaped(AttributeOf("face")))); !face.empty())
        Look().font = builder_.Target().FontNumber(face);
    if (const std::optional<Colour> colour = ColourOf(AttributeOf("color"))) Look().fore = *colour;
    if (const std::string_view size = AttributeOf("size"); !size.empty()) {
        const std::int32_t step = NumberOf(size.starts_with('+') ? size.substr(1) : size, 3);
        const std::int32_t index = size[0] == '+' || size[0] == '-' ? 3 + step : step;
        Look().halfPoints = kHalfPoints[std::clamp(index, 1, 7) - 1];
    }
}

void HtmlParser::Resize(std::int32_t percent) {
    Look().halfPoints = static_cast<std::uint16_t>(std::clamp(Look().halfPoints * percent / 100, 1, 3276));
}

void HtmlParser::FixedPitch(std::int32_t) {
    Look().font = builder_.Target().FontNumber(u"Courier New");
}

void HtmlParser::Paragraph(std::int32_t) {
    if (!own_) Para().after = kUsualGap;
}

void HtmlParser::Heading(std::int32_t level) {
    static constexpr std::uint16_t kHalfPoints[] = {48, 36, 28, 24, 20, 16};
    Look().halfPoints = kHalfPoints[level - 1];
    Look().bold = true;
    Para().before = Para().after = kUsualGap;
}

void HtmlParser::Preformatted(std::int32_t) {
    FixedPitch(0);
    State().pre = true;
    // The first line end after the tag isn't part of the text.
    if (bytes_.substr(at_).starts_with("\r\n"))
        at_ += 2;
    else if (bytes_.substr(at_).starts_with("\n"))
        ++at_;
}

void HtmlParser::Quotation(std::int32_t) {
    Para().left += 2 * kListStep;
    Para().right += 2 * kListStep;
}

void HtmlParser::Centre(std::int32_t) {
    Para().alignment = Alignment::Centred;
}

void HtmlParser::Body(std::int32_t) {
    if (const std::string_view page = AttributeOf("data-kv-page"); !page.empty()) ReadPage(page);
}

void HtmlParser::Break(std::int32_t) {
    PutBreak();
}

void HtmlParser::Rule(std::int32_t) {
    EndBlock();
}

void HtmlParser::Meta(std::int32_t) {
    own_ |= SameWord(AttributeOf("name"), "generator") && AttributeOf("content") == "Korvane";
}

void HtmlParser::Link(std::int32_t) {
    const std::string_view raw = AttributeOf("href");
    if (raw.empty()) return;
    const Text address = Unescaped(raw);
    if (IsHarmless(address)) State().field = builder_.NewField({FieldKind::Hyperlink, address, {}});
}

void HtmlParser::Picture(std::int32_t) {
    std::optional<Image> image = DataImage(AttributeOf("src"));
    if (!image) return;
    image->width = std::max(NumberOf(AttributeOf("width"), 0), 0) * kPixel;
    image->height = std::max(NumberOf(AttributeOf("height"), 0), 0) * kPixel;
    styledImage_ = &*image;
    ApplyStyle();
    styledImage_ = nullptr;
    BeforeContent();
    builder_.AddImage(std::move(*image));
    afterBlank_ = false;
}

void HtmlParser::List(std::int32_t kind) {
    const std::size_t level = openLists_.size();
    const std::uint32_t number = level > 0 ? openLists_.front().list : ++lists_;
    const ListKind mark =
        static_cast<ListKind>(kind) == ListKind::Bullet ? ListKind::Bullet : KindOfType(AttributeOf("type"));
    openLists_.push_back({mark, static_cast<std::uint8_t>(std::min(level, kDeepestList)),
                          NumberOf(AttributeOf("start"), 1), number});
    // The paragraphs of this program's own pages tell their indents.
    if (own_) return;
    Para().left += 2 * kListStep;
    Para().list = {};
}

void HtmlParser::CloseList(std::int32_t) {
    if (!openLists_.empty()) openLists_.pop_back();
}

void HtmlParser::ListItem(std::int32_t) {
    if (openLists_.empty() || !AttributeOf("data-kv-list").empty()) return;
    Para().list = openLists_.back();
    Para().first = -kListStep;
}

void HtmlParser::Table(std::int32_t) {
    ++tableDepth_;
    if (tableDepth_ > 1) return;
    EndPending();
    builder_.EndTable();
    tableLeft_.reset();
    rowCells_.clear();
    cellOpen_ = false;
    Para() = {};
}

void HtmlParser::CloseTable(std::int32_t) {
    if (--tableDepth_ > 0) return;
    if (cellOpen_) CloseCell(0);
    CloseRow(0);
    builder_.EndTable();
}

void HtmlParser::Row(std::int32_t) {
    if (tableDepth_ != 1) return;
    if (const std::string_view left = AttributeOf("data-kv-left"); !left.empty())
        tableLeft_ = NumberOf(left, 0);
}

void HtmlParser::CloseRow(std::int32_t) {
    if (tableDepth_ > 1) return;
    if (cellOpen_) CloseCell(0);
    if (!rowCells_.empty() && tableLeft_) rowCells_.front().left = tableLeft_;
    builder_.EndRow(std::exchange(rowCells_, {}));
}

void HtmlParser::Cell(std::int32_t heading) {
    if (tableDepth_ != 1) return;
    EndPending();
    builder_.OpenCell();
    cellOpen_ = true;
    CellFormat cell;
    cell.width *= std::clamp(NumberOf(AttributeOf("colspan"), 1), 1, 64);
    if (const std::int32_t width = NumberOf(AttributeOf("width"), 0);
        width > 0 && !AttributeOf("width").ends_with('%'))
        cell.width = width * kPixel;
    if (const std::optional<Colour> colour = ColourOf(AttributeOf("bgcolor"))) cell.back = *colour;
    if (heading != 0) {
        Look().bold = true;
        Para().alignment = Alignment::Centred;
    }
    styledCell_ = &cell;
    ApplyStyle();
    styledCell_ = nullptr;
    rowCells_.push_back(cell);
    // The style is done with, and the words of the cell aren't those of its paragraphs.
    attributes_.clear();
}

void HtmlParser::CloseCell(std::int32_t) {
    if (tableDepth_ != 1 || !cellOpen_) return;
    builder_.EndCell(pending_ ? *pending_ : Para());
    pending_.reset();
    cellOpen_ = false;
}

namespace {

using P = HtmlParser;
using N = Nature;

constexpr std::int32_t kRaised = static_cast<std::int32_t>(Script::Raised);
constexpr std::int32_t kLowered = static_cast<std::int32_t>(Script::Lowered);
constexpr std::int32_t kBullets = static_cast<std::int32_t>(ListKind::Bullet);
constexpr std::int32_t kNumbers = static_cast<std::int32_t>(ListKind::Decimal);

} // namespace

/// The rows of the elements, which the parser lets name its routines. Elements that aren't here only have
/// their content shown.
struct ElementTable {
    static constexpr Element kRows[] = {
        {"b", N::Inline, &P::Flag, 0},
        {"strong", N::Inline, &P::Flag, 0},
        {"i", N::Inline, &P::Flag, 1},
        {"em", N::Inline, &P::Flag, 1},
        {"cite", N::Inline, &P::Flag, 1},
        {"var", N::Inline, &P::Flag, 1},
        {"u", N::Inline, &P::Flag, 2},
        {"ins", N::Inline, &P::Flag, 2},
        {"s", N::Inline, &P::Flag, 3},
        {"strike", N::Inline, &P::Flag, 3},
        {"del", N::Inline, &P::Flag, 3},
        {"sup", N::Inline, &P::SetScript, kRaised},
        {"sub", N::Inline, &P::SetScript, kLowered},
        {"font", N::Inline, &P::FontElement},
        {"big", N::Inline, &P::Resize, 120},
        {"small", N::Inline, &P::Resize, 83},
        {"tt", N::Inline, &P::FixedPitch},
        {"code", N::Inline, &P::FixedPitch},
        {"kbd", N::Inline, &P::FixedPitch},
        {"samp", N::Inline, &P::FixedPitch},
        {"span", N::Inline},
        {"a", N::Inline, &P::Link},
        {"br", N::Void, &P::Break},
        {"hr", N::Void, &P::Rule},
        {"img", N::Void, &P::Picture},
        {"meta", N::Void, &P::Meta},
        {"link", N::Void},
        {"base", N::Void},
        {"input", N::Void},
        {"col", N::Void},
        {"wbr", N::Void},
        {"p", N::Block, &P::Paragraph},
        {"div", N::Block},
        {"html", N::Block},
        {"body", N::Block, &P::Body},
        {"h1", N::Block, &P::Heading, 1},
        {"h2", N::Block, &P::Heading, 2},
        {"h3", N::Block, &P::Heading, 3},
        {"h4", N::Block, &P::Heading, 4},
        {"h5", N::Block, &P::Heading, 5},
        {"h6", N::Block, &P::Heading, 6},
        {"pre", N::Block, &P::Preformatted},
        {"blockquote", N::Block, &P::Quotation},
        {"center", N::Block, &P::Centre},
        {"address", N::Block, &P::Flag, 1},
        {"section", N::Block},
        {"article", N::Block},
        {"header", N::Block},
        {"footer", N::Block},
        {"nav", N::Block},
        {"main", N::Block},
        {"aside", N::Block},
        {"figure", N::Block},
        {"form", N::Block},
        {"fieldset", N::Block},
        {"dl", N::Block},
        {"dt", N::Block},
        {"dd", N::Block, &P::Quotation},
        {"option", N::Block},
        {"ul", N::Block, &P::List, kBullets, &P::CloseList},
        {"ol", N::Block, &P::List, kNumbers, &P::CloseList},
        {"li", N::Block, &P::ListItem},
        {"table", N::Block, &P::Table, 0, &P::CloseTable},
        {"caption", N::Block},
        {"tr", N::Block, &P::Row, 0, &P::CloseRow},
        {"td", N::Block, &P::Cell, 0, &P::CloseCell},
        {"th", N::Block, &P::Cell, 1, &P::CloseCell},
        {"head", N::Inline},
        {"title", N::Raw},
        {"script", N::Raw},
        {"style", N::Raw},
        {"textarea", N::Raw},
        {"noscript", N::Raw},
        {"xmp", N::Raw},
        {"iframe", N::Dropped},
        {"object", N::Dropped},
        {"svg", N::Dropped},
        {"math", N::Dropped},
        {"template", N::Dropped},
        {"audio", N::Dropped},
        {"video", N::Dropped},
    };
};

const Element* Elements::Find(std::string_view name) {
    return NameTable<ElementTable::kRows>::Find(name);
}

} // namespace korvane::doc::html
