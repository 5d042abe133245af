#include "document/docx/SmallParts.h"

#include "document/docx/Elements.h"

namespace korvane::doc::docx {

namespace {

void PutList(std::string& out, std::uint32_t number, const ListTable::Levels& levels) {
    static constexpr std::string_view kFormats[] = {"none",        "bullet",     "decimal",   "lowerLetter",
                                                    "upperLetter", "lowerRoman", "upperRoman"};
    out += "<w:abstractNum";
    PutAttribute(out, "w:abstractNumId", number);
    out += '>';
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const ListMark mark = levels[level].value_or(ListMark{ListKind::Decimal});
        out += "<w:lvl";
        PutAttribute(out, "w:ilvl", static_cast<std::int64_t>(level));
        out += '>';
        PutValue(out, "w:start", mark.start);
        out += "<w:numFmt w:val=\"";
        out += kFormats[static_cast<std::size_t>(mark.kind)];
        out += "\"/><w:lvlText w:val=\"";
        if (mark.kind == ListKind::Bullet)
            out += "\xE2\x80\xA2";
        else {
            out += '%';
            PutNumber(out, static_cast<std::int64_t>(level) + 1);
            out += '.';
        }
        out += "\"/></w:lvl>";
    }
    out += "</w:abstractNum>";
}

} // namespace

std::string RelationsPart(std::string_view relations) {
    std::string out(kHead);
    out += "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    out += relations;
    return out + "</Relationships>";
}

std::string ContentTypesPart(bool withLists) {
    static constexpr std::string_view kPart = "<Override PartName=\"/word/";
    static constexpr std::string_view kType =
        " ContentType=\"application/vnd.openxmlformats-officedocument.wordprocessingml.";
    std::string out(kHead);
    out += "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
           "<Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
           "<Default Extension=\"png\" ContentType=\"image/png\"/><Default Extension=\"jpeg\" "
           "ContentType=\"image/jpeg\"/>";
    for (const std::string_view part : {"document", "styles", "settings", "numbering"}) {
        if (part == "numbering" && !withLists) continue;
        out += kPart;
        out += part;
        out += ".xml\"";
        out += kType;
        out += part == "document" ? std::string_view("document.main") : part;
        out += "+xml\"/>";
    }
    return out + "</Types>";
}

std::string StylesPart(const Document& document) {
    std::string out(kHead);
    out += "<w:styles ";
    out += kMain;
    out += "><w:docDefaults><w:rPrDefault><w:rPr>";
    PutFont(out, document.fonts[document.chars[0].font]);
    PutValue(out, "w:sz", document.chars[0].halfPoints);
    return out + "</w:rPr></w:rPrDefault><w:pPrDefault/></w:docDefaults>"
                 "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"Normal\"><w:name "
                 "w:val=\"Normal\"/></w:style>"
                 "</w:styles>";
}

std::string SettingsPart(const Document& document) {
    std::string out(kHead);
    out += "<w:settings ";
    out += kMain;
    out += '>';
    PutValue(out, "w:defaultTabStop", document.defaultTab);
    return out + "</w:settings>";
}

std::string NumberingPart(const ListTable& lists) {
    std::string out(kHead);
    out += "<w:numbering ";
    out += kMain;
    out += '>';
    for (const auto& [number, levels] : lists.Lists())
        PutList(out, number, levels);
    for (const auto& [number, levels] : lists.Lists()) {
        out += "<w:num";
        PutAttribute(out, "w:numId", number);
        out += '>';
        PutValue(out, "w:abstractNumId", number);
        out += "</w:num>";
    }
    return out + "</w:numbering>";
}

} // namespace korvane::doc::docx
