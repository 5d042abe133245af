#pragma once

#include "platform/FileSystem.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace korvane {

/// Collects what is written to a file, so that the system is called once for many small pieces. What the file
/// doesn't take is lost.
class ChunkedOutput {
public:
    // This is small enough to stay in the processor's cache until it is written.
    static constexpr std::size_t kUsualChunk = std::size_t{256} * 1024;

    explicit ChunkedOutput(FileWriter& file, std::size_t chunkSize = kUsualChunk);

    void Put(std::string_view bytes) {
        if (bytes.size() > chunkSize_ - filled_) return PutPastChunk(bytes);
        bytes.copy(chunk_.get() + filled_, bytes.size());
        filled_ += bytes.size();
    }
    /// Writes what is collected. This has to be called at the end. False when the file has lost anything so
    /// far.
    bool Flush();

private:
    void PutPastChunk(std::string_view bytes);
    void HandOver(std::string_view bytes) { complete_ = file_.Write(bytes) && complete_; }

    FileWriter& file_;
    std::size_t chunkSize_;
    std::unique_ptr<char[]> chunk_;
    std::size_t filled_ = 0;
    bool complete_ = true;
};

} // namespace korvane
