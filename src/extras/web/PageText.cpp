#include "extras/web/PageText.h"

#include "common/text/CaseFold.h"
#include "document/model/Base64.h"

#include <algorithm>
#include <optional>

namespace korvane {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kEnd = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n\f";

bool SameWord(std::string_view text, std::string_view word) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; };
    return std::ranges::equal(text, word, {}, lower);
}

struct Attribute {
    std::string_view name;
    std::size_t at = 0;
    std::string_view value;
};

/// Goes through the tags of a page, outside of comments, scripts and styles.
class TagScanner {
public:
    explicit TagScanner(std::string_view html) : html_(html) {}

    /// The name of the next tag that opens something; nothing after the last one.
    std::optional<std::string_view> NextTag() {
        while ((at_ = html_.find('<', at_)) != kEnd) {
            ++at_;
            if (html_.substr(at_).starts_with("!--")) {
                GoAfter("-->");
                continue;
            }
            const std::string_view name = TakeUntil(" \t\r\n\f/><");
            if (!name.empty() && name.front() != '!' && name.front() != '?') return name;
        }
        at_ = html_.size();
        return std::nullopt;
    }
    /// The next attribute of the tag; nothing at its end.
    std::optional<Attribute> NextAttribute() {
        at_ = std::min(html_.find_first_not_of(" \t\r\n\f/"sv, at_), html_.size());
        if (at_ == html_.size() || html_[at_] == '>') return std::nullopt;
        Attribute attribute{TakeUntil("= \t\r\n\f/>"), 0, {}};
        SkipBlanks();
        if (at_ == html_.size() || html_[at_] != '=') {
            if (attribute.name.empty()) ++at_;
            return attribute;
        }
        ++at_;
        SkipBlanks();
        TakeValue(attribute);
        return attribute;
    }
    std::size_t At() const { return at_; }
    /// Leaves out what is in a script or a style.
    void SkipContents(std::string_view name) {
        while ((at_ = html_.find("</", at_)) != kEnd) {
            at_ += 2;
            if (SameWord(html_.substr(at_, name.size()), name)) return;
        }
        at_ = html_.size();
    }

private:
    std::string_view TakeUntil(std::string_view ends) {
        const std::size_t start = at_;
        at_ = std::min(html_.find_first_of(ends, at_), html_.size());
        return html_.substr(start, at_ - start);
    }
    void SkipBlanks() { at_ = std::min(html_.find_first_not_of(kBlanks, at_), html_.size()); }
    void GoAfter(std::string_view mark) {
        const std::size_t found = html_.find(mark, at_);
        at_ = found == kEnd ? html_.size() : found + mark.size();
    }
    void TakeValue(Attribute& attribute) {
        const char quote = at_ < html_.size() ? html_[at_] : ' ';
        const bool quoted = quote == '"' || quote == '\'';
        attribute.at = quoted ? ++at_ : at_;
        attribute.value = TakeUntil(quoted ? std::string_view(&quote, 1) : " \t\r\n\f>"sv);
        if (quoted) at_ = std::min(at_ + 1, html_.size());
    }

    std::string_view html_;
    std::size_t at_ = 0;
};

/// Calls `take` for each tag of this name that has the attribute, with the place after its name and with the
/// first of these attributes.
template <class Take>
void ForEachTag(std::string_view html, std::string_view name, std::string_view wanted, const Take& take) {
    TagScanner tags(html);
    while (const auto tag = tags.NextTag()) {
        const std::size_t afterName = tags.At();
        bool seen = false;
        while (const auto attribute = tags.NextAttribute()) {
            if (!SameWord(*tag, name) || seen || !SameWord(attribute->name, wanted)) continue;
            seen = true;
            take(afterName, *attribute);
        }
        for (const std::string_view raw : {"script"sv, "style"sv}) {
            if (SameWord(*tag, raw)) tags.SkipContents(raw);
        }
    }
}

/// The address in the value of an attribute. The only entity that is common in addresses is that of "&".
Text AddressOf(std::string_view value) {
    std::string address(value);
    constexpr std::string_view kAnd = "&amp;";
    for (std::size_t at = 0; (at = address.find(kAnd, at)) != kEnd; ++at)
        address.erase(at + 1, kAnd.size() - 1);
    return FromUtf8(address);
}

bool IsPartOfPage(std::string_view value) {
    return SameWord(value.substr(0, 5), "data:");
}

constexpr std::string_view kPngMark = "\x89PNG\r\n\x1A\n";
constexpr std::string_view kJpegMark = "\xFF\xD8\xFF";

std::string DataOf(std::string_view picture) {
    const bool png = picture.starts_with(kPngMark);
    return std::string(png ? "data:image/png;base64," : "data:image/jpeg;base64,") + doc::ToBase64(picture);
}

/// No character of it is taken for markup.
std::string Escaped(TextView text) {
    std::string escaped;
    for (const char byte : ToUtf8(text)) {
        if (byte == '<')
            escaped += "&lt;";
        else if (byte == '&')
            escaped += "&amp;";
        else if (byte == '\n')
            escaped += "<br>";
        else
            escaped += byte;
    }
    return escaped;
}

} // namespace

std::vector<PictureSource> PicturesOf(std::string_view html) {
    std::vector<PictureSource> pictures;
    ForEachTag(html, "img", "src", [&pictures](std::size_t, const Attribute& source) {
        if (source.value.empty() || IsPartOfPage(source.value)) return;
        pictures.push_back({source.at, source.value.size(), AddressOf(source.value)});
    });
    return pictures;
}

std::string WithLinkLook(std::string_view html, std::string_view style) {
    std::string page;
    std::size_t done = 0;
    ForEachTag(html, "a", "href", [&](std::size_t afterName, const Attribute&) {
        page += html.substr(done, afterName - done);
        ((page += " style=\"") += style) += '"';
        done = afterName;
    });
    page += html.substr(done);
    return page;
}

std::string WithPictures(std::string_view html, const std::map<std::size_t, std::string>& pictures,
                         const std::vector<PictureSource>& sources) {
    std::string page;
    std::size_t done = 0;
    for (const PictureSource& source : sources) {
        const auto picture = pictures.find(source.at);
        if (picture == pictures.end()) continue;
        page += html.substr(done, source.at - done);
        page += DataOf(picture->second);
        done = source.at + source.length;
    }
    page += html.substr(done);
    return page;
}

bool IsPicture(std::string_view bytes) {
    return bytes.starts_with(kPngMark) || bytes.starts_with(kJpegMark);
}

std::string PageOfPicture(std::string_view bytes) {
    return "<img src=\"" + DataOf(bytes) + "\">";
}

std::string PageOfNote(TextView title, TextView text) {
    return "<meta charset=\"utf-8\"><h2>" + Escaped(title) + "</h2><p>" + Escaped(text) + "</p>";
}

std::string WithEncoding(std::string_view html, TextView type) {
    constexpr TextView kCharset = u"charset=";
    const Text lower = ToLower(type);
    const std::size_t at = lower.find(kCharset);
    if (at == Text::npos || html.starts_with("\xEF\xBB\xBF")) return std::string(html);
    Text name = lower.substr(at + kCharset.size());
    name.resize(std::min(name.find(u';'), name.size()));
    std::erase_if(name, [](char16_t c) {
        return !(c == u'-' || c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z'));
    });
    return "<meta charset=\"" + ToUtf8(name) + "\">" + std::string(html);
}

Text BareType(TextView type) {
    return ToLower(Trim(type.substr(0, type.find(u';'))));
}

} // namespace korvane
