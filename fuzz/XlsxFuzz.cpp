// Takes any bytes as a whole file, and as the shared texts and the rows of a sheet, so that they needn't be
// an archive.

#include "Require.h"
#include "document/xlsx/Sheet.h"
#include "document/xlsx/Xlsx.h"

#include <cstdint>

namespace korvane::doc {
namespace {

void Try(std::string_view bytes) {
    Limits limits;
    limits.characters = 100'000;
    limits.cells = 500;
    Require(IsSound(ReadXlsx(bytes, limits).document), "a document that was read isn't sound");
    Builder builder(limits);
    const std::vector<Text> texts = xlsx::ReadSharedTexts(bytes, limits);
    xlsx::PutSheet(builder, u"name", xlsx::ReadSheet(bytes, texts, limits));
    Require(IsSound(builder.Finish({})), "a sheet makes a document that isn't sound");
}

} // namespace
} // namespace korvane::doc

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::doc::Try({reinterpret_cast<const char*>(data), size});
    return 0;
}
