#include "platform/ChunkedOutput.h"

namespace korvane {

ChunkedOutput::ChunkedOutput(FileWriter& file, std::size_t chunkSize)
    : file_(file), chunkSize_(chunkSize), chunk_(std::make_unique_for_overwrite<char[]>(chunkSize)) {}

bool ChunkedOutput::Flush() {
    if (filled_ > 0) HandOver({chunk_.get(), filled_});
    filled_ = 0;
    return complete_;
}

void ChunkedOutput::PutPastChunk(std::string_view bytes) {
    Flush();
    if (bytes.size() > chunkSize_)
        HandOver(bytes);
    else
        Put(bytes);
}

} // namespace korvane
