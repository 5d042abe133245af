#include "platform/native/FileAhead.h"

#include "platform/native/ReadFile.h"

#include <system_error>
#include <utility>

namespace korvane {

namespace fs = std::filesystem;

FileAhead::FileAhead(const fs::path& path) : path_(path), version_(VersionOf(path)) {
    if (!version_ || version_->size < kSmallest) return;
    reading_ = std::thread([this] {
        std::error_code ignored;
        bytes_ = ReadFile(path_, ignored);
    });
}

FileAhead::~FileAhead() {
    if (reading_.joinable()) reading_.join();
}

std::optional<FileAhead::Version> FileAhead::VersionOf(const fs::path& path) {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error) return std::nullopt;
    const fs::file_time_type written = fs::last_write_time(path, error);
    if (error) return std::nullopt;
    return Version{size, written};
}

std::optional<SharedBytes> FileAhead::Take(const fs::path& path) {
    if (path != path_) return std::nullopt;
    if (reading_.joinable()) reading_.join();
    auto bytes = std::exchange(bytes_, std::nullopt);
    if (VersionOf(path_) != version_) return std::nullopt;
    return bytes;
}

} // namespace korvane
