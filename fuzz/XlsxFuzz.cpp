// Takes any bytes as the rows of a sheet, so that they needn't be an archive, as the shared texts, and as a
// whole file.

#include "Require.h"
#include "document/package/Package.h"
#include "document/xlsx/Xlsx.h"

#include <cstdint>
#include <string>

namespace korvane::doc {
namespace {

std::string FileOf(std::string_view rows, std::string_view texts) {
    PackageWriter package;
    package.Add("_rels/.rels", "<R><Relationship Id=\"r1\" Type=\"x/officeDocument\" Target=\"w.xml\"/></R>");
    package.Add("_rels/w.xml.rels", "<R><Relationship Id=\"s\" Type=\"x/worksheet\" Target=\"s.xml\"/>"
                                    "<Relationship Id=\"t\" Type=\"x/sharedStrings\" Target=\"t.xml\"/></R>");
    package.Add("w.xml", "<workbook xmlns:r=\"r\"><sheet name=\"one\" r:id=\"s\"/></workbook>");
    package.Add("s.xml", "<worksheet>" + std::string(rows) + "</worksheet>");
    package.Add("t.xml", "<sst>" + std::string(texts) + "</sst>");
    return package.Write();
}

void Try(std::string_view bytes) {
    Limits limits;
    limits.characters = 100'000;
    limits.cells = 10'000;
    const auto check = [&limits](std::string_view file) {
        Require(IsSound(ReadXlsx(file, limits).document), "a document that was read isn't sound");
    };
    check(bytes);
    check(FileOf(bytes, "<si><t>text</t></si>"));
    check(FileOf("<row><c t=\"s\"><v>0</v></c></row>", bytes));
}

} // namespace
} // namespace korvane::doc

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::doc::Try({reinterpret_cast<const char*>(data), size});
    return 0;
}
