#include "document/pdf/Pdf.h"

#include "document/model/Builder.h"
#include "document/package/Xml.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace korvane::doc {

namespace {

// The program tells lengths in dots, of which a point has one and a half.
constexpr int kTwipsInThreeDots = 40;
constexpr int kHalfPointsInThreeDots = 4;
/// Texts whose tops differ by no more than this are in one line.
constexpr int kSameLine = 3;
constexpr int kLongest = 100'000;

std::int32_t Twips(int dots) {
    return std::clamp(dots, 0, kLongest) * kTwipsInThreeDots / 3;
}

/// "#rrggbb"; nothing for anything else.
std::optional<Colour> ColourOf(std::string_view text) {
    if (text.size() != 7 || text[0] != '#') return std::nullopt;
    const auto number =
        static_cast<std::int32_t>(std::strtol(std::string(text.substr(1)).c_str(), nullptr, 16));
    return Colour{(number & 0xFF) << 16 | (number & 0xFF00) | (number >> 16 & 0xFF)};
}

/// The text without its document type, which names a file that isn't needed.
std::string WithoutType(std::string_view bytes) {
    const std::size_t begin = bytes.find("<!DOCTYPE");
    const std::size_t end = begin == std::string_view::npos ? begin : bytes.find('>', begin);
    std::string rest(bytes);
    if (end != std::string_view::npos && bytes.substr(begin, end - begin).find('[') == std::string_view::npos)
        rest.erase(begin, end - begin + 1);
    return rest;
}

class PdfReader {
public:
    explicit PdfReader(const Limits& limits) : builder_(limits) {}

    ReadResult Read(std::string_view bytes) {
        XmlHandlers handlers;
        handlers.open = [this](std::string_view name, const XmlAttributes& attributes) {
            Open(name, attributes);
        };
        handlers.close = [this](std::string_view name) { Close(name); };
        handlers.text = [this](std::string_view utf8) {
            if (inText_) builder_.Add(FromUtf8(utf8));
        };
        handlers.full = [this] { return builder_.Full(); };
        const XmlOutcome outcome = ReadXml(WithoutType(bytes), handlers);
        if (outcome != XmlOutcome::Whole) builder_.Tell(found_ ? Trouble::Damaged : Trouble::WrongFormat);
        if (!found_) builder_.Tell(Trouble::WrongFormat);
        EndLine();
        result_.Tell(builder_.Told());
        const Page page = builder_.Target().page;
        result_.document = builder_.Finish({});
        result_.document.page = page;
        return std::move(result_);
    }

private:
    void Open(std::string_view name, const XmlAttributes& attributes) {
        if (name == "pdf2xml") found_ = true;
        if (name == "page") OpenPage(attributes);
        if (name == "fontspec") AddFont(attributes);
        if (name == "text") OpenText(attributes);
        if (name == "b") look_.bold = true;
        if (name == "i") look_.italic = true;
        if (name == "a") OpenLink(attributes.Get("href"));
        if (inText_) builder_.SetFormat(look_);
    }

    void Close(std::string_view name) {
        if (name == "text") inText_ = false;
        if (name == "b") look_.bold = false;
        if (name == "i") look_.italic = false;
        if (name == "a") builder_.SetField(0);
        if (name == "page") EndLine();
        builder_.SetFormat(look_);
    }

    void OpenPage(const XmlAttributes& attributes) {
        newPage_ = pages_++ > 0;
        if (pages_ > 1) return;
        const std::pair<Page::Size, std::string_view> kSizes[] = {{Page::Width, "width"},
                                                                  {Page::Height, "height"}};
        for (const auto& [size, name] : kSizes) {
            const std::int32_t twips = Twips(attributes.Number(name).value_or(0));
            if (twips <= 0) continue;
            builder_.Target().page[size] = twips;
            result_.pageGiven[size] = true;
        }
    }

    void AddFont(const XmlAttributes& attributes) {
        CharFormat font;
        const int size = std::clamp(attributes.Number("size").value_or(0), 0, 4000);
        if (size > 0)
            font.halfPoints = static_cast<std::uint16_t>(std::max(size * kHalfPointsInThreeDots / 3, 2));
        font.fore = ColourOf(attributes.Get("color")).value_or(font.fore);
        const std::string_view family = attributes.Get("family");
        // A part of a font has its own tag in front: "ABCDEF+Name".
        const std::string_view name = family.substr(family.find('+') + 1);
        if (!name.empty()) font.font = builder_.Target().FontNumber(FromUtf8(name));
        fonts_[std::string(attributes.Get("id"))] = font;
    }

    void OpenText(const XmlAttributes& attributes) {
        const int top = attributes.Number("top").value_or(0);
        if (lineOpen_ && std::abs(top - top_) > kSameLine) EndLine();
        if (lineOpen_ && !builder_.AtParagraphStart() && builder_.Last() != u' ') builder_.Add(u' ');
        top_ = top;
        lineOpen_ = true;
        inText_ = true;
        const auto font = fonts_.find(std::string(attributes.Get("font")));
        look_ = font == fonts_.end() ? CharFormat{} : font->second;
    }

    void OpenLink(std::string_view address) {
        if (!inText_ || address.empty()) return;
        builder_.SetField(builder_.NewField({FieldKind::Hyperlink, FromUtf8(address), {}}));
    }

    void EndLine() {
        if (!lineOpen_) return;
        ParaFormat format;
        format.pageBreakBefore = std::exchange(newPage_, false);
        builder_.EndParagraph(format);
        lineOpen_ = false;
    }

    Builder builder_;
    ReadResult result_;
    CharFormat look_{};
    std::map<std::string, CharFormat> fonts_;
    int pages_ = 0;
    int top_ = 0;
    bool found_ = false;
    bool inText_ = false;
    bool lineOpen_ = false;
    bool newPage_ = false;
};

} // namespace

ReadResult ReadPdfXml(std::string_view bytes, const Limits& limits) {
    return PdfReader(limits).Read(bytes);
}

} // namespace korvane::doc
