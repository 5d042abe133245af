#pragma once

#include "common/text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace korvane {

class FileSystem;

/// By these two numbers a file is recognised as the one that was written.
struct FileSum {
    std::int64_t size = 0;
    std::uint64_t sum = 0;

    bool operator==(const FileSum&) const = default;
};

/// Sums up the bytes of a file while they pass by, however they are cut into pieces. It takes a fraction of
/// the time that writing them takes.
class RunningSum {
public:
    void Add(std::string_view bytes);
    FileSum Get() const;

private:
    static constexpr std::size_t kLanes = 8;
    static constexpr std::size_t kBlock = kLanes * sizeof(std::uint64_t);
    struct Lanes {
        std::array<std::uint64_t, kLanes> sums{};
        std::array<std::uint64_t, kLanes> sumsOfSums{};

        void Add(const char* block, std::size_t blocks);
    };

    Lanes lanes_;
    /// The bytes since the last whole block.
    std::array<char, kBlock> rest_{};
    std::size_t restSize_ = 0;
    std::int64_t size_ = 0;
};

FileSum SumOf(std::string_view bytes);
/// Nothing when the file can't be read.
std::optional<FileSum> SumOfFile(FileSystem& files, TextView path);

} // namespace korvane
