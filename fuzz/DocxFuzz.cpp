// Takes any bytes as the parts of a DOCX file: the body, the styles and the lists, with a form feed, which
// XML doesn't have, between them. They needn't be packed, which would take most of the time. Bytes that begin
// as an archive does are taken as a whole file too.

#include "DocumentTarget.h"
#include "document/docx/Docx.h"
#include "document/docx/DocxParts.h"

#include <array>
#include <cstdint>

namespace korvane::doc {
namespace {

constexpr std::string_view kSpaces = " xmlns:w=\"w\" xmlns:r=\"r\" xmlns:a=\"a\" xmlns:mc=\"mc\">";

std::string Element(std::string_view name, std::string_view content) {
    return '<' + std::string(name) + std::string(kSpaces) + std::string(content) + "</" + std::string(name) +
           '>';
}

PackageParts PartsOf(std::string_view bytes) {
    std::array<std::string_view, 3> pieces;
    for (std::string_view& piece : pieces) {
        piece = bytes.substr(0, bytes.find('\f'));
        bytes.remove_prefix(std::min(piece.size() + 1, bytes.size()));
    }
    return {{"_rels/.rels", "<R><Relationship Id=\"r1\" Type=\"x/officeDocument\" Target=\"m.xml\"/></R>"},
            {"_rels/m.xml.rels", "<R><Relationship Id=\"l\" Type=\"x/hyperlink\" Target=\"http://a.b\" "
                                 "TargetMode=\"External\"/>"
                                 "<Relationship Id=\"s\" Type=\"x/styles\" Target=\"s.xml\"/>"
                                 "<Relationship Id=\"n\" Type=\"x/numbering\" Target=\"n.xml\"/></R>"},
            {"m.xml", Element("w:document", "<w:body>" + std::string(pieces[0]) + "</w:body>")},
            {"s.xml", Element("w:styles", pieces[1])},
            {"n.xml", Element("w:numbering", pieces[2])}};
}

void Try(std::string_view bytes) {
    Limits limits;
    limits.characters = 100'000;
    if (bytes.starts_with("PK"))
        Require(IsSound(ReadDocx(bytes, limits).document), "a document that was read isn't sound");
    const auto read = [&limits](const PackageParts& parts) { return ReadDocxParts(parts, limits).document; };
    const Document first = read(PartsOf(bytes));
    Require(IsSound(first), "a document that was read isn't sound");
    const Document second = read(MakeDocxParts(first).Parts());
    Require(IsSound(second), "a document that was written isn't sound");
    const PackageWriter settled = MakeDocxParts(second);
    Require(MakeDocxParts(read(settled.Parts())).Parts() == settled.Parts(),
            "a document changes each time it is written");
}

} // namespace
} // namespace korvane::doc

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::doc::Try({reinterpret_cast<const char*>(data), size});
    return 0;
}
