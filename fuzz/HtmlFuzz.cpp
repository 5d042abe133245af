// Takes any bytes as an HTML file.

#include "DocumentTarget.h"
#include "document/html/Html.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvane::doc;
    Limits limits;
    limits.characters = 100'000;
    ReadAndWrite(
        {reinterpret_cast<const char*>(data), size},
        [&limits](std::string_view bytes) { return ReadHtml(bytes, limits); },
        [](const Document& document) { return WriteHtml(document); });
    return 0;
}
