#include "tbx/base/Output.h"

#include <cerrno>

namespace korvane {

namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

} // namespace

void Output::Write(std::string_view bytes) {
    if (!works_) return;
    collected_ += bytes;
    if (collected_.size() >= kPieceSize) Flush();
}

bool Output::Flush() {
    if (works_ && !collected_.empty()) works_ = Take(collected_);
    collected_.clear();
    return works_;
}

bool StringOutput::Take(std::string_view piece) {
    bytes_ += piece;
    return true;
}

bool StreamOutput::Take(std::string_view piece) {
    errno = 0;
    const bool taken =
        std::fwrite(piece.data(), 1, piece.size(), stream_) == piece.size() && std::fflush(stream_) == 0;
    if (!taken) error_ = errno;
    return taken;
}

} // namespace korvane
