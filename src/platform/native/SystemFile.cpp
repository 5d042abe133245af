#include "platform/native/SystemFile.h"

#include <cerrno>
#include <utility>

namespace korvane {

namespace fs = std::filesystem;

std::error_code LastSystemError() {
    return {errno, std::generic_category()};
}

SystemFile::SystemFile(int file, std::error_code& error) : file_(file) {
    error = IsOpen() ? std::error_code() : LastSystemError();
}

SystemFile SystemFile::OpenToRead(const fs::path& path, std::error_code& error) {
    return {system_calls::OpenToRead(path), error};
}

SystemFile SystemFile::OpenToWrite(const fs::path& path,
                                   const std::optional<system_calls::FileRights>& rights,
                                   std::error_code& error) {
    return {system_calls::OpenToWrite(path, rights), error};
}

SystemFile SystemFile::CreateNew(const fs::path& path, const std::optional<system_calls::FileRights>& rights,
                                 std::error_code& error) {
    return {system_calls::CreateNew(path, rights), error};
}

SystemFile SystemFile::OpenPlainToRead(const fs::path& path, std::error_code& error) {
    return {system_calls::OpenPlainToRead(path), error};
}

SystemFile::SystemFile(SystemFile&& other) noexcept
    : file_(std::exchange(other.file_, system_calls::kNoFile)) {}

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept {
    std::swap(file_, other.file_);
    return *this;
}

SystemFile::~SystemFile() {
    if (IsOpen()) system_calls::Close(file_);
}

std::size_t SystemFile::Read(char* buffer, std::size_t size, std::error_code& error) {
    std::size_t filled = 0;
    while (filled < size) {
        const std::ptrdiff_t count = system_calls::ReadSome(file_, buffer + filled, size - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) error = LastSystemError();
        if (count <= 0) break;
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

void SystemFile::Write(std::string_view bytes, std::error_code& error) {
    while (!bytes.empty()) {
        const std::ptrdiff_t count = system_calls::WriteSome(file_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) {
            error = LastSystemError();
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void SystemFile::Close(std::error_code& error) {
    const bool closed = system_calls::Close(std::exchange(file_, system_calls::kNoFile));
    // The file is closed even if the call was interrupted.
    if (!closed && errno != EINTR) error = LastSystemError();
}

} // namespace korvane
