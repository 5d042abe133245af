#pragma once

#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "support/TempDir.h"
#include "support/UnderWine.h"

#include <chrono>
#include <ctime>

namespace korvane {

/// Provides the real disk for the tests that every disk must pass.
class NativeStage {
public:
    static constexpr std::size_t kLongFile = std::size_t{12} << 20;
    static bool CopiesInSteps() { return !UnderWine(); }

    FileSystem& Files() { return files_; }
    Text At(TextView name) const { return FromNativePath(Path(name)); }
    void AddFile(TextView name, const std::string& bytes) { WriteBytes(Path(name), bytes); }
    std::string Contents(TextView name) const {
        return std::filesystem::is_regular_file(Path(name)) ? ReadBytes(Path(name)) : "(none)";
    }
    void SetReadOnly(TextView name) {
        using std::filesystem::perms;
        std::filesystem::permissions(Path(name), perms::owner_read | perms::group_read | perms::others_read);
    }
    void SetModified(TextView name, const DateTime& time) {
        std::tm local{};
        local.tm_year = time.year - 1900;
        local.tm_mon = time.month - 1;
        local.tm_mday = time.day;
        local.tm_hour = time.hour;
        local.tm_min = time.minute;
        local.tm_sec = time.second;
        local.tm_isdst = -1;
        const auto moment = std::chrono::system_clock::from_time_t(std::mktime(&local));
        std::filesystem::last_write_time(Path(name), std::chrono::file_clock::from_sys(moment));
    }
    std::filesystem::path Path(TextView name) const { return dir_ / ToNativePath(name); }

private:
    TempDir dir_;
    NativeFileSystem files_{u"/opt/korvane"};
};

} // namespace korvane
