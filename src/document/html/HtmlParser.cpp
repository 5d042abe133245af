#include "document/html/HtmlParser.h"

#include "document/html/Css.h"
#include "document/html/Entities.h"
#include "document/html/Html.h"

#include <algorithm>
#include <utility>

namespace korvane::doc::html {

namespace {

constexpr std::size_t kLongestName = 32;
constexpr std::size_t kLongestAttribute = 64u << 10;
constexpr std::size_t kMostAttributes = 64;
/// A file tells its encoding within so many bytes.
constexpr std::size_t kHead = 1024;

/// Stands for the file around all elements.
constexpr Element kRoot{"", Nature::Block};

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The name in small letters; empty if it is longer than any that is known.
std::string_view Lowered(std::string_view name, std::array<char, kLongestName>& buffer) {
    if (name.size() > buffer.size()) return {};
    std::ranges::transform(name, buffer.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return {buffer.data(), name.size()};
}

/// The length of the text that is the same in every encoding and that needs no look at its characters.
std::size_t PlainLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && text[length] > ' ' && text[length] < 0x7F && text[length] != '&')
        ++length;
    return length;
}

/// The length of the text that is shown as it is: ASCII with single blanks between its words.
std::size_t ShownLength(std::string_view text, bool afterBlank) {
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const char c = text[length];
        if (c == ' ' ? afterBlank : c < ' ' || c >= 0x7F || c == '&') break;
        afterBlank = c == ' ';
    }
    return length;
}

std::optional<CodePage> PageNamed(std::string_view name) {
    if (SameWord(name.substr(0, 8), "windows-")) {
        int number = 0;
        for (const char c : name.substr(8, 4))
            number = number * 10 + (c - '0');
        return CodePage::ForNumber(number);
    }
    return SameWord(name.substr(0, 8), "iso-8859") ? std::optional(CodePage::Windows1252()) : std::nullopt;
}

} // namespace

HtmlParser::HtmlParser(std::string_view bytes, const Limits& limits)
    : bytes_(bytes.substr(0, limits.bytes)), limits_(limits), builder_(limits) {
    if (bytes.size() > limits.bytes) builder_.Tell(Trouble::OverLimit);
    stack_.reserve(limits.depth + 1);
    stack_.emplace_back().element = &kRoot;
    DetectEncoding();
}

void HtmlParser::DetectEncoding() {
    const bool little = bytes_.starts_with("\xFF\xFE");
    if (little || bytes_.starts_with("\xFE\xFF")) {
        Text text;
        for (std::size_t i = 2; i + 1 < bytes_.size(); i += 2) {
            const unsigned a = static_cast<unsigned char>(bytes_[i]);
            const unsigned b = static_cast<unsigned char>(bytes_[i + 1]);
            text += static_cast<char16_t>(little ? b << 8 | a : a << 8 | b);
        }
        utf8_ = ToUtf8(text);
        bytes_ = utf8_;
        return;
    }
    if (bytes_.starts_with("\xEF\xBB\xBF")) {
        at_ = 3;
        return;
    }
    const std::string_view head = bytes_.substr(0, kHead);
    const std::size_t charset = head.find("charset=");
    if (charset == std::string_view::npos) {
        if (!IsUtf8(bytes_)) page_ = CodePage::Windows1252();
        return;
    }
    std::string_view name = head.substr(charset + 8);
    if (name.starts_with('"') || name.starts_with('\'')) name.remove_prefix(1);
    page_ = PageNamed(name);
    if (!page_ && !SameWord(name.substr(0, 5), "utf-8")) page_ = CodePage::Windows1252();
}

ReadResult HtmlParser::Read() {
    while (at_ < bytes_.size() && !builder_.Full()) {
        if (bytes_[at_] == '<')
            ReadMarkup();
        else
            ReadText();
    }
    CloseUpTo(1);
    EndBlock();
    EndPending();
    result_.document = builder_.Finish({});
    result_.Tell(builder_.Told());
    return std::move(result_);
}

void HtmlParser::ReadText() {
    const std::size_t end = std::min(bytes_.find('<', at_), bytes_.size());
    PutText(bytes_.substr(at_, end - at_));
    at_ = end;
}

void HtmlParser::ReadMarkup() {
    const char next = at_ + 1 < bytes_.size() ? bytes_[at_ + 1] : '\0';
    if (IsNameStart(next)) return ReadStartTag();
    if (next == '/') return ReadEndTag();
    if (next == '!' || next == '?') return SkipComment();
    PutText(bytes_.substr(at_++, 1));
}

void HtmlParser::SkipComment() {
    const bool comment = bytes_.substr(at_).starts_with("<!--");
    const std::string_view mark = comment ? "-->" : ">";
    const std::size_t end = bytes_.find(mark, at_ + (comment ? 4 : 2));
    at_ = end == std::string_view::npos ? bytes_.size() : end + mark.size();
}

void HtmlParser::ReadEndTag() {
    std::size_t end = at_ + 2;
    while (end < bytes_.size() && bytes_[end] != '>' && !IsBlank(bytes_[end]))
        ++end;
    std::array<char, kLongestName> buffer;
    const Element* const element = Elements::Find(Lowered(bytes_.substr(at_ + 2, end - at_ - 2), buffer));
    at_ = std::min(bytes_.find('>', end), bytes_.size() - 1) + 1;
    if (element == nullptr) return;
    if (element->name == "br") return Break(0);
    const bool structure = element->name == "table" || element->name == "body" || element->name == "html";
    if (structure)
        CloseOpen(element->name, {});
    else
        CloseOpen(element->name, {"table"});
}

void HtmlParser::ReadStartTag() {
    std::size_t end = at_ + 1;
    while (end < bytes_.size() && bytes_[end] != '>' && bytes_[end] != '/' && !IsBlank(bytes_[end]))
        ++end;
    std::array<char, kLongestName> buffer;
    const Element* const element = Elements::Find(Lowered(bytes_.substr(at_ + 1, end - at_ - 1), buffer));
    at_ = end;
    attributes_.clear();
    while (ReadAttribute()) {
    }
    if (element != nullptr) OpenElement(*element);
}

bool HtmlParser::ReadAttribute() {
    while (at_ < bytes_.size() && (IsBlank(bytes_[at_]) || bytes_[at_] == '/'))
        ++at_;
    if (at_ >= bytes_.size()) return false;
    if (bytes_[at_] == '>') {
        ++at_;
        return false;
    }
    const std::size_t begin = at_;
    ++at_;
    while (at_ < bytes_.size() && !IsBlank(bytes_[at_]) && bytes_[at_] != '=' && bytes_[at_] != '>' &&
           bytes_[at_] != '/')
        ++at_;
    Attribute attribute{bytes_.substr(begin, at_ - begin), {}};
    while (at_ < bytes_.size() && IsBlank(bytes_[at_]))
        ++at_;
    if (at_ < bytes_.size() && bytes_[at_] == '=') {
        ++at_;
        while (at_ < bytes_.size() && IsBlank(bytes_[at_]))
            ++at_;
        const char quote = at_ < bytes_.size() ? bytes_[at_] : '\0';
        const bool quoted = quote == '"' || quote == '\'';
        if (quoted) ++at_;
        const std::size_t end = std::min(
            quoted ? bytes_.find(quote, at_) : bytes_.find_first_of(" \t\r\n\f>", at_), bytes_.size());
        attribute.value = bytes_.substr(at_, end - at_);
        at_ = std::min(end + (quoted ? 1 : 0), bytes_.size());
    }
    if (attributes_.size() < kMostAttributes) attributes_.push_back(attribute);
    return true;
}

std::string_view HtmlParser::AttributeOf(std::string_view name) const {
    for (const Attribute& attribute : attributes_) {
        const bool picture = name == "src";
        if (SameWord(attribute.name, name) && (picture || attribute.value.size() <= kLongestAttribute))
            return attribute.value;
    }
    return {};
}

void HtmlParser::SkipDropped(const Element& element) {
    // An end tag of the same name ends it; the same element in it is counted, unless its content isn't HTML.
    std::size_t depth = 1;
    while (at_ < bytes_.size() && depth > 0) {
        const std::size_t open = bytes_.find('<', at_);
        if (open == std::string_view::npos) {
            at_ = bytes_.size();
            return;
        }
        const bool end = open + 1 < bytes_.size() && bytes_[open + 1] == '/';
        const std::string_view name = bytes_.substr(open + (end ? 2 : 1), element.name.size());
        at_ = open + 1;
        if (!SameWord(name, element.name)) continue;
        if (end)
            --depth;
        else if (element.nature == Nature::Dropped)
            ++depth;
    }
    at_ = std::min(std::min(bytes_.find('>', at_), bytes_.size()) + 1, bytes_.size());
}

void HtmlParser::PutText(std::string_view text) {
    if (State().pre)
        PutPreserved(text);
    else
        PutSpaced(text);
}

void HtmlParser::PutSpaced(std::string_view text) {
    while (!text.empty()) {
        if (const std::size_t shown = ShownLength(text, afterBlank_); shown > 0) {
            BeforeContent();
            builder_.AddAscii(text.substr(0, shown));
            afterBlank_ = text[shown - 1] == ' ';
            text.remove_prefix(shown);
        } else if (IsBlank(text[0])) {
            text.remove_prefix(1);
            if (std::exchange(afterBlank_, true)) continue;
            BeforeContent();
            builder_.Add(u' ');
        } else {
            const std::size_t end = std::min(text.find_first_of(" \t\r\n\f"), text.size());
            PutDecoded(text.substr(0, end));
            text.remove_prefix(end);
        }
    }
}

void HtmlParser::PutPreserved(std::string_view text) {
    while (!text.empty()) {
        const auto mark =
            std::ranges::find_if(text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; });
        const std::size_t end = static_cast<std::size_t>(mark - text.begin());
        PutDecoded(text.substr(0, end));
        text.remove_prefix(end);
        if (text.empty()) return;
        if (text[0] == '\t')
            PutUnits(u"\t");
        else
            PutBreak();
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
}

void HtmlParser::PutDecoded(std::string_view text) {
    while (!text.empty()) {
        const std::size_t plain = State().pre ? std::min(text.find('&'), text.size()) : PlainLength(text);
        const std::string_view ascii = text.substr(0, plain);
        if (plain > 0 && std::ranges::all_of(ascii, [](char c) { return c >= ' ' && c < 0x7F; })) {
            BeforeContent();
            builder_.AddAscii(ascii);
            content_ = true;
            afterBlank_ = false;
            text.remove_prefix(plain);
            continue;
        }
        Text units;
        if (text[0] == '&') {
            TakeReference(text, units);
        } else {
            const std::size_t end =
                std::max<std::size_t>(1, std::min(text.find_first_of("& \t"), text.size()));
            units = page_ ? page_->ToText(text.substr(0, end)) : FromUtf8(text.substr(0, end));
            text.remove_prefix(end);
        }
        PutUnits(units);
    }
}

void HtmlParser::PutUnits(TextView units) {
    Text kept;
    for (const char16_t unit : units) {
        if (unit == kImageCharacter)
            kept += u'\uFFFD';
        else if (unit >= 0x20 || unit == u'\t')
            kept += unit;
    }
    if (kept.empty()) return;
    BeforeContent();
    builder_.Add(kept);
    content_ = true;
    afterBlank_ = false;
}

void HtmlParser::PutBreak() {
    BeforeContent();
    if (!State().pre && afterBlank_ && builder_.Last() == u' ') builder_.RemoveLast();
    builder_.Add(kLineBreak);
    content_ = true;
    afterBlank_ = true;
}

void HtmlParser::BeforeContent() {
    EndPending();
    if (tableDepth_ > 0 && !cellOpen_ && builder_.InRow()) builder_.EndRow(std::exchange(rowCells_, {}));
    builder_.SetFormat(State().look);
    builder_.SetField(State().field);
    content_ = true;
}

void HtmlParser::EndPending() {
    if (pending_) builder_.EndParagraph(*pending_);
    pending_.reset();
}

void HtmlParser::EndBlock() {
    if (!content_) return;
    // A blank and a break at the end aren't shown.
    if (!State().pre && builder_.Last() == u' ' && afterBlank_) builder_.RemoveLast();
    if (builder_.Last() == kLineBreak) builder_.RemoveLast();
    pending_ = Para();
    content_ = false;
    afterBlank_ = true;
}

void HtmlParser::OpenElement(const Element& element) {
    if (element.nature == Nature::Raw || element.nature == Nature::Dropped) return SkipDropped(element);
    if (element.nature == Nature::Void) {
        if (element.open != nullptr) (this->*element.open)(element.argument);
        return;
    }
    if (element.nature == Nature::Block) {
        CloseImplied(element.name);
        EndBlock();
    }
    if (stack_.size() > limits_.depth) return builder_.Tell(Trouble::OverLimit);
    stack_.push_back(State());
    if (element.nature == Nature::Block) paras_.push_back(Para());
    State().element = &element;
    if (element.open != nullptr) (this->*element.open)(element.argument);
    ApplyCommonAttributes();
}

/// Ends the elements whose end tags may be left out before this one.
void HtmlParser::CloseImplied(std::string_view opened) {
    CloseOpen("p", {"table", "td", "th", "li", "div"});
    if (opened == "li") CloseOpen("li", {"ul", "ol", "table"});
    if (opened != "td" && opened != "th" && opened != "tr") return;
    CloseOpen("td", {"table"});
    CloseOpen("th", {"table"});
    if (opened == "tr") CloseOpen("tr", {"table"});
}

void HtmlParser::CloseTop() {
    const Element& element = *State().element;
    if (element.nature == Nature::Block) EndBlock();
    if (element.close != nullptr) (this->*element.close)(element.argument);
    if (element.nature == Nature::Block) paras_.pop_back();
    stack_.pop_back();
}

void HtmlParser::CloseUpTo(std::size_t index) {
    while (stack_.size() > index)
        CloseTop();
}

void HtmlParser::CloseOpen(std::string_view name, std::initializer_list<std::string_view> barriers) {
    for (std::size_t i = stack_.size() - 1; i > 0; --i) {
        const std::string_view open = stack_[i].element->name;
        if (open == name) return CloseUpTo(i);
        if (std::ranges::find(barriers, open) != barriers.end()) return;
    }
}

void HtmlParser::ApplyCommonAttributes() {
    if (attributes_.empty()) return;
    ApplyStyle();
    if (const std::string_view align = AttributeOf("align"); !align.empty()) StyleAlign(align, 0);
    if (const std::string_view tabs = AttributeOf("data-kv-tabs"); !tabs.empty()) ReadTabs(tabs);
    if (const std::string_view frame = AttributeOf("data-kv-frame"); !frame.empty()) ReadFrame(frame);
    if (const std::string_view mark = AttributeOf("data-kv-list"); !mark.empty()) ReadListMark(mark);
}

void HtmlParser::ApplyStyle() {
    const std::string_view raw = AttributeOf("style");
    if (raw.empty()) return;
    const bool onlyLook = State().element->nature == Nature::Inline && styledImage_ == nullptr;
    if (onlyLook)
        ApplyInlineStyle(raw);
    else
        ApplyStyle(raw);
}

void HtmlParser::ApplyInlineStyle(std::string_view raw) {
    for (const StyledLook& styled : styled_) {
        if (styled.style == raw && styled.before == Look()) {
            Look() = styled.after;
            return;
        }
    }
    const bool pre = State().pre;
    const CharFormat before = Look();
    ApplyStyle(raw);
    if (State().pre != pre) return;
    styled_[nextStyled_] = {raw, before, Look()};
    nextStyled_ = (nextStyled_ + 1) % styled_.size();
}

void HtmlParser::ApplyStyle(std::string_view raw) {
    std::string unescaped;
    if (raw.find('&') != std::string_view::npos) unescaped = ToUtf8(Unescaped(raw));
    std::string_view style = unescaped.empty() ? raw : std::string_view(unescaped);
    std::string_view property;
    std::string_view value;
    while (TakeDeclaration(style, property, value)) {
        std::array<char, kLongestName> buffer;
        if (const Styles::Row* const row = Styles::Find(Lowered(property, buffer)))
            (this->*row->handler)(value, row->argument);
    }
}

} // namespace korvane::doc::html

namespace korvane::doc {

ReadResult ReadHtml(std::string_view bytes, const Limits& limits) {
    return html::HtmlParser(bytes, limits).Read();
}

} // namespace korvane::doc
