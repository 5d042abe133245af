#include "document/docx/Elements.h"

#include "document/package/Xml.h"

#include <charconv>
#include <cmath>

namespace korvane::doc::docx {

namespace {

constexpr double kTwipsPerEighth = 2.5;

} // namespace

void PutNumber(std::string& out, std::int64_t number) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    out.append(digits, end.ptr);
}

void PutAttribute(std::string& out, std::string_view name, std::int64_t number) {
    out += ' ';
    out += name;
    out += "=\"";
    PutNumber(out, number);
    out += '"';
}

void PutValue(std::string& out, std::string_view element, std::int64_t number) {
    out += '<';
    out += element;
    PutAttribute(out, "w:val", number);
    out += "/>";
}

void PutColour(std::string& out, Colour colour) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        out += kDigits[colour.value >> shift & 15];
}

void PutShading(std::string& out, Colour colour) {
    out += "<w:shd w:val=\"clear\" w:color=\"auto\" w:fill=\"";
    PutColour(out, colour);
    out += "\"/>";
}

void PutLine(std::string& out, std::string_view element, std::string_view kind, std::int32_t width,
             std::int32_t distance) {
    out += '<';
    out += element;
    out += " w:val=\"";
    out += kind;
    out += '"';
    PutAttribute(out, "w:sz", std::lround(width / kTwipsPerEighth));
    PutAttribute(out, "w:space", distance / kTwipsPerPoint);
    out += " w:color=\"auto\"/>";
}

void PutFont(std::string& out, TextView font) {
    out += "<w:rFonts";
    for (const std::string_view attribute : {" w:ascii=\"", " w:hAnsi=\"", " w:eastAsia=\"", " w:cs=\""}) {
        out += attribute;
        PutXml(out, font);
        out += '"';
    }
    out += "/>";
}

} // namespace korvane::doc::docx
