#include "table/ChunkedOutput.h"

namespace korvane {

ChunkedOutput::ChunkedOutput(FileWriter& file, std::size_t chunkSize)
    : file_(file), chunkSize_(chunkSize), chunk_(std::make_unique_for_overwrite<char[]>(chunkSize)) {}

void ChunkedOutput::Flush() {
    if (filled_ > 0) file_.Write({chunk_.get(), filled_});
    filled_ = 0;
}

void ChunkedOutput::PutPastChunk(std::string_view bytes) {
    Flush();
    if (bytes.size() > chunkSize_)
        file_.Write(bytes);
    else
        Put(bytes);
}

} // namespace korvane
