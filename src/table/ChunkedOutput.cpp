#include "table/ChunkedOutput.h"

namespace korvane {

ChunkedOutput::ChunkedOutput(FileWriter& file)
    : file_(file), chunk_(std::make_unique_for_overwrite<char[]>(kChunk)) {}

void ChunkedOutput::Flush() {
    if (filled_ > 0) file_.Write({chunk_.get(), filled_});
    filled_ = 0;
}

void ChunkedOutput::PutPastChunk(std::string_view bytes) {
    Flush();
    if (bytes.size() > kChunk)
        file_.Write(bytes);
    else
        Put(bytes);
}

} // namespace korvane
