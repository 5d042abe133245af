#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace korvane::bench {

/// A file's bytes in a fresh buffer: the least that any reading takes.
struct RawFile {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;

    std::string_view View() const { return {bytes.get(), size}; }
};

RawFile ReadRaw(const std::string& path);
/// Makes the file with one write.
void WriteRaw(const std::string& path, std::string_view bytes);

} // namespace korvane::bench
