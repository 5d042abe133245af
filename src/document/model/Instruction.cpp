#include "document/model/Instruction.h"

#include "common/text/CaseFold.h"
#include "document/model/Base64.h"

#include <algorithm>
#include <vector>

namespace korvane::doc {

namespace {

constexpr TextView kLink = u"HYPERLINK";
constexpr TextView kAddin = u"ADDIN";
constexpr TextView kNote = u"KORVANE.NOTE";
/// The version of a note's instruction.
constexpr TextView kNoteVersion = u"1";
/// In place of a text of a note that is empty.
constexpr TextView kNothing = u"-";

struct Part {
    Text text;
    bool quoted = false;
};

/// Takes a part in quotes, in which a backslash keeps a quote or a backslash.
Text TakeQuoted(TextView& rest) {
    Text text;
    rest.remove_prefix(1);
    while (!rest.empty() && rest[0] != u'"') {
        const bool kept = rest.size() > 1 && rest[0] == u'\\' && (rest[1] == u'"' || rest[1] == u'\\');
        text += rest[kept ? 1 : 0];
        rest.remove_prefix(kept ? 2 : 1);
    }
    if (!rest.empty()) rest.remove_prefix(1);
    return text;
}

std::vector<Part> Split(TextView rest) {
    std::vector<Part> parts;
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\r\n"), rest.size()));
        if (rest.empty()) return parts;
        if (rest[0] == u'"') {
            parts.push_back({TakeQuoted(rest), true});
            continue;
        }
        const std::size_t end = std::min(rest.find_first_of(u" \t\r\n\""), rest.size());
        parts.push_back({Text(rest.substr(0, end))});
        rest.remove_prefix(end);
    }
}

/// The address: the first part that is no switch. `\l` names a place in it, and other switches have texts
/// that aren't shown.
Field ReadLink(const std::vector<Part>& parts) {
    Field field{FieldKind::Hyperlink};
    for (std::size_t i = 1; i < parts.size(); ++i) {
        const Part& part = parts[i];
        if (part.quoted || !part.text.starts_with(u'\\')) {
            if (field.typeData.empty()) field.typeData = part.text;
            continue;
        }
        const bool hasText =
            i + 1 < parts.size() && (part.text == u"\\l" || part.text == u"\\o" || part.text == u"\\t");
        if (!hasText) continue;
        ++i;
        if (part.text == u"\\l") field.typeData += u'#' + parts[i].text;
    }
    return field;
}

Text Decode(const std::vector<Part>& parts, std::size_t i) {
    return i < parts.size() ? FromUtf8(FromBase64(ToUtf8(parts[i].text))) : Text();
}

Text Encode(TextView text) {
    return text.empty() ? Text(kNothing) : FromAscii(ToBase64(ToUtf8(text)));
}

Text Quoted(TextView text) {
    Text quoted = u"\"";
    for (const char16_t c : text) {
        if (c == u'"' || c == u'\\') quoted += u'\\';
        quoted += c;
    }
    return quoted + u'"';
}

bool Is(const Part& part, TextView word) {
    return EqualIgnoringCase(part.text, word);
}

} // namespace

std::optional<Field> ReadInstruction(TextView instruction) {
    const std::vector<Part> parts = Split(instruction);
    if (parts.empty()) return std::nullopt;
    if (Is(parts[0], kLink)) return ReadLink(parts);
    if (parts.size() > 2 && Is(parts[0], kAddin) && Is(parts[1], kNote) && parts[2].text == kNoteVersion)
        return Field{FieldKind::Note, Decode(parts, 4), Decode(parts, 3)};
    return std::nullopt;
}

Text WriteInstruction(const Field& field) {
    if (field.kind == FieldKind::Note)
        return Text(kAddin) + u' ' + Text(kNote) + u' ' + Text(kNoteVersion) + u' ' + Encode(field.data) +
               u' ' + Encode(field.typeData);
    const TextView address = field.typeData;
    if (address.size() > 1 && address.starts_with(u'#'))
        return Text(kLink) + u" \\l " + Quoted(address.substr(1));
    return Text(kLink) + u' ' + Quoted(address);
}

} // namespace korvane::doc
