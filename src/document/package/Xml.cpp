#include "document/package/Xml.h"

#include "common/text/Text.h"

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>

namespace korvane::doc {

namespace {

constexpr int kDeepest = 256;

std::string_view Local(std::string_view name) {
    return name.substr(name.rfind(':') + 1);
}

/// One reading.
struct Reading {
    const XmlHandlers& handlers;
    XML_Parser parser;
    int depth = 0;
    XmlOutcome outcome = XmlOutcome::Whole;

    void Stop(XmlOutcome why) {
        outcome = why;
        XML_StopParser(parser, XML_FALSE);
    }
};

Reading& ReadingOf(void* user) {
    return *static_cast<Reading*>(user);
}

void XMLCALL Open(void* user, const char* name, const char** attributes) {
    Reading& reading = ReadingOf(user);
    if (++reading.depth > kDeepest) return reading.Stop(XmlOutcome::TooDeep);
    if (reading.handlers.full()) return reading.Stop(XmlOutcome::Whole);
    reading.handlers.open(Local(name), XmlAttributes(attributes));
}

void XMLCALL Close(void* user, const char* name) {
    Reading& reading = ReadingOf(user);
    --reading.depth;
    reading.handlers.close(Local(name));
}

void XMLCALL Characters(void* user, const char* text, int length) {
    ReadingOf(user).handlers.text({text, static_cast<std::size_t>(length)});
}

void XMLCALL Doctype(void* user, const char*, const char*, const char*, int) {
    ReadingOf(user).Stop(XmlOutcome::Forbidden);
}

} // namespace

std::optional<std::string_view> XmlAttributes::Find(std::string_view name) const {
    for (const char** pair = pairs_; *pair != nullptr; pair += 2) {
        if (Local(pair[0]) == name) return pair[1];
    }
    return std::nullopt;
}

std::optional<int> XmlAttributes::Number(std::string_view name) const {
    const std::string_view value = Get(name);
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc{} ? std::optional(number) : std::nullopt;
}

XmlOutcome ReadXml(std::string_view bytes, const XmlHandlers& handlers) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              &XML_ParserFree);
    if (!parser) return XmlOutcome::Damaged;
    Reading reading{handlers, parser.get()};
    XML_SetUserData(parser.get(), &reading);
    XML_SetElementHandler(parser.get(), Open, Close);
    XML_SetCharacterDataHandler(parser.get(), Characters);
    XML_SetStartDoctypeDeclHandler(parser.get(), Doctype);
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return XmlOutcome::Damaged;
    const XML_Status status = XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
    if (reading.outcome != XmlOutcome::Whole) return reading.outcome;
    const bool stopped = status == XML_STATUS_ERROR && XML_GetErrorCode(parser.get()) == XML_ERROR_ABORTED;
    return status == XML_STATUS_OK || stopped ? XmlOutcome::Whole : XmlOutcome::Damaged;
}

void PutXml(std::string& out, std::u16string_view text) {
    const auto plain = [](char16_t c) {
        return c >= 0x20 && c < 0x7F && c != u'&' && c != u'<' && c != u'>' && c != u'"';
    };
    while (!text.empty()) {
        const auto end = std::ranges::find_if_not(text, plain);
        out.append(text.begin(), end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
        if (text.empty()) return;
        const auto ascii = std::ranges::find_if(text, [](char16_t c) { return c < 0x7F || c >= 0xFFFE; });
        const std::size_t length = static_cast<std::size_t>(ascii - text.begin());
        if (length > 0)
            out += ToUtf8(text.substr(0, length));
        else if (text[0] == u'&')
            out += "&amp;";
        else if (text[0] == u'<')
            out += "&lt;";
        else if (text[0] == u'>')
            out += "&gt;";
        else if (text[0] == u'"')
            out += "&quot;";
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
}

} // namespace korvane::doc
