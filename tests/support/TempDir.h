#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace korvane {

/// A private folder for one test. The destructor removes it with all its contents.
class TempDir {
public:
    TempDir() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("korvane-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace korvane
