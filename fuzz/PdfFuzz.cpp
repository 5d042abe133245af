// Takes any bytes as what another program makes of a PDF file.

#include "Require.h"
#include "document/pdf/Pdf.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvane;
    const doc::ReadResult read = doc::ReadPdfXml({reinterpret_cast<const char*>(data), size});
    Require(doc::IsSound(read.document), "a document that was read isn't sound");
    return 0;
}
