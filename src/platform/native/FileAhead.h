#pragma once

#include "common/text/SharedBytes.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <thread>

namespace korvane {

/// A file that is read in a thread of its own before anybody asks for it.
class FileAhead {
public:
    /// A file below this size is read faster than a thread begins.
    static constexpr std::uintmax_t kSmallest = std::uintmax_t{1} << 20;

    /// A small file, and one that can't be read, is left to the one who asks for it.
    explicit FileAhead(const std::filesystem::path& path);
    FileAhead(const FileAhead&) = delete;
    FileAhead& operator=(const FileAhead&) = delete;
    /// Waits until the reading has ended.
    ~FileAhead();

    /// Waits for the bytes and hands them out, once. There are none for another path, and none when the file
    /// may have changed since its reading began.
    std::optional<SharedBytes> Take(const std::filesystem::path& path);

private:
    struct Version {
        std::uintmax_t size = 0;
        std::filesystem::file_time_type written;
        bool operator==(const Version&) const = default;
    };

    static std::optional<Version> VersionOf(const std::filesystem::path& path);

    std::filesystem::path path_;
    std::optional<Version> version_;
    std::optional<SharedBytes> bytes_;
    std::thread reading_;
};

} // namespace korvane
