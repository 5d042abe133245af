#pragma once

#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace korvane {

inline constexpr std::filesystem::perms kReadOnly = std::filesystem::perms::owner_read |
                                                    std::filesystem::perms::group_read |
                                                    std::filesystem::perms::others_read;

/// Provides the real disk with a folder for one test.
struct NativeFiles : testing::Test {
    Text At(const std::filesystem::path& name) const { return FromNativePath((dir / name).make_preferred()); }

    std::string Read(const std::filesystem::path& name) {
        const auto bytes = files.ReadAll(At(name));
        return bytes ? std::string(bytes->View()) : "(unreadable)";
    }

    bool Save(const std::filesystem::path& name, std::string_view bytes) {
        const auto writer = files.OpenRaw(At(name));
        return writer && writer->Write(bytes) && writer->Close();
    }

    bool SavePrivately(const std::filesystem::path& name, std::string_view bytes) {
        const auto writer = files.OpenPrivate(At(name));
        return writer && writer->Write(bytes) && writer->Close();
    }

    std::filesystem::perms RightsOf(const std::filesystem::path& name) const {
        return std::filesystem::status(dir / name).permissions();
    }

    TempDir dir;
    NativeFileSystem files{u"/opt/korvane"};
};

} // namespace korvane
