// Takes any bytes as the body of a DOCX file, so that they needn't be an archive, and as a whole file.

#include "DocumentTarget.h"
#include "document/docx/Docx.h"
#include "document/package/Package.h"

#include <cstdint>

namespace korvane::doc {
namespace {

constexpr std::string_view kHead =
    "<w:document xmlns:w=\"w\" xmlns:r=\"r\" xmlns:a=\"a\" xmlns:mc=\"mc\"><w:body>";

std::string FileOf(std::string_view body) {
    PackageWriter package;
    package.Add("_rels/.rels", "<R><Relationship Id=\"r1\" Type=\"x/officeDocument\" Target=\"m.xml\"/></R>");
    package.Add("_rels/m.xml.rels", "<R><Relationship Id=\"l\" Type=\"x/hyperlink\" Target=\"http://a.b\" "
                                    "TargetMode=\"External\"/></R>");
    package.Add("m.xml", std::string(kHead) + std::string(body) + "</w:body></w:document>");
    return package.Write();
}

void TryBody(std::string_view bytes) {
    Limits limits;
    limits.characters = 100'000;
    Require(IsSound(ReadDocx(bytes, limits).document), "a document that was read isn't sound");
    ReadAndWrite(
        FileOf(bytes), [&limits](std::string_view file) { return ReadDocx(file, limits); },
        [](const Document& document) { return WriteDocx(document); });
}

} // namespace
} // namespace korvane::doc

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::doc::TryBody({reinterpret_cast<const char*>(data), size});
    return 0;
}
