#include "platform/native/ReadFile.h"

#include "platform/native/SystemFile.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>

namespace korvane {

namespace {

constexpr std::size_t kMostBytes = 0x7FFFFFFF;
constexpr std::size_t kFirstGuess = 65'536;

struct FreeBuffer {
    std::align_val_t alignment{};
    void operator()(char* buffer) const { ::operator delete[](buffer, alignment); }
};
using Buffer = std::unique_ptr<char[], FreeBuffer>;

/// An uninitialised buffer, or null when there is no memory. Filling it with zeros would take as long as the
/// reading.
Buffer FreshBuffer(std::size_t size) {
    const bool large = size >= system_calls::kLargePage;
    const std::align_val_t alignment{large ? system_calls::kLargePage : alignof(std::max_align_t)};
    Buffer buffer(static_cast<char*>(::operator new[](size, alignment, std::nothrow)), {alignment});
    if (buffer && large) system_calls::PreferLargePages(buffer.get(), size);
    return buffer;
}

struct Reading {
    Buffer buffer;
    std::size_t room;
    std::size_t filled = 0;

    bool Full() const { return filled == room; }
};

bool Grow(Reading& reading) {
    const std::size_t room = std::min(reading.room * 2, kMostBytes + 1);
    Buffer larger = FreshBuffer(room);
    if (!larger) return false;
    std::memcpy(larger.get(), reading.buffer.get(), reading.filled);
    reading.buffer = std::move(larger);
    reading.room = room;
    return true;
}

/// Reads to the end of the file. The end is reached when a read returns fewer bytes than there is room for.
std::error_code ReadToEnd(SystemFile& file, Reading& reading) {
    std::error_code error;
    for (;;) {
        reading.filled +=
            file.Read(reading.buffer.get() + reading.filled, reading.room - reading.filled, error);
        if (error || !reading.Full()) return error;
        if (reading.filled > kMostBytes) return std::make_error_code(std::errc::file_too_large);
        if (!Grow(reading)) return std::make_error_code(std::errc::not_enough_memory);
    }
}

} // namespace

std::optional<SharedBytes> ReadFile(const std::filesystem::path& path, std::error_code& error) {
    SystemFile file = SystemFile::OpenPlainToRead(path, error);
    if (error) return std::nullopt;
    const std::size_t size = file.Size();
    // There is room for one byte more than the file has, so that the first read shows that the end is
    // reached.
    const std::size_t room = size == 0 ? kFirstGuess : std::min(size, kMostBytes) + 1;
    Reading reading{FreshBuffer(room), room};
    error = reading.buffer ? ReadToEnd(file, reading) : std::make_error_code(std::errc::not_enough_memory);
    if (error) return std::nullopt;
    return SharedBytes{std::move(reading.buffer), reading.filled};
}

} // namespace korvane
