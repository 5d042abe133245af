#include "document/plain/Plain.h"

#include <algorithm>

namespace korvane::doc {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

Text FromUtf16(std::string_view bytes, bool bigFirst) {
    Text text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned first = static_cast<unsigned char>(bytes[i]);
        const unsigned second = static_cast<unsigned char>(bytes[i + 1]);
        text += static_cast<char16_t>(bigFirst ? first << 8 | second : second << 8 | first);
    }
    return text;
}

} // namespace

Text DecodeText(std::string_view bytes, const CodePage& page) {
    if (bytes.starts_with(kUtf8Mark)) return FromUtf8(bytes.substr(kUtf8Mark.size()));
    if (bytes.starts_with(kLittleMark)) return FromUtf16(bytes.substr(kLittleMark.size()), false);
    if (bytes.starts_with(kBigMark)) return FromUtf16(bytes.substr(kBigMark.size()), true);
    return page.ToText(bytes);
}

ReadResult ReadPlain(std::string_view bytes, const CodePage& page, const Limits& limits) {
    ReadResult result;
    Text text = DecodeText(bytes.substr(0, limits.bytes), page);
    if (bytes.size() > limits.bytes || text.size() > limits.characters) result.Tell(Trouble::OverLimit);
    if (text.size() > limits.characters) text.resize(limits.characters);
    // This character would stand for a picture.
    std::ranges::replace(text, kImageCharacter, u'\uFFFD');
    result.document = FromPlainText(text);
    return result;
}

std::string WritePlain(const Document& document, const CodePage& page) {
    Text text = PlainText(document);
    std::erase(text, kImageCharacter);
    std::string bytes;
    bytes.reserve(text.size());
    for (TextView rest = text; !rest.empty();) {
        const std::size_t end = std::min(rest.find(kLineBreak), rest.size());
        page.AppendBytes(rest.substr(0, end), bytes);
        if (end == rest.size()) break;
        bytes += "\r\n";
        rest.remove_prefix(end + 1);
    }
    return bytes;
}

} // namespace korvane::doc
