#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace korvane::bench {

/// The bytes of a file in a new buffer. No way of reading a file can do less.
struct RawFile {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;

    std::string_view View() const { return {bytes.get(), size}; }
};

RawFile ReadRaw(const std::string& path);
/// Creates the file with one write.
void WriteRaw(const std::string& path, std::string_view bytes);

} // namespace korvane::bench
