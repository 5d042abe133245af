#include "platform/native/FileAhead.h"

#include "unit/platform/native/NativeFiles.h"

#include <chrono>

namespace korvane {
namespace {

namespace fs = std::filesystem;
using std::chrono::hours;

const std::string kLarge(FileAhead::kSmallest, 'x');

std::optional<std::string> Taken(FileAhead& ahead, const fs::path& path) {
    const auto bytes = ahead.Take(path);
    return bytes ? std::optional(std::string(bytes->View())) : std::nullopt;
}

TEST_F(NativeFiles, AheadGivesTheBytesOnce) {
    WriteBytes(dir / "a", kLarge);
    FileAhead ahead(dir / "a");
    EXPECT_EQ(Taken(ahead, dir / "a"), kLarge);
    EXPECT_EQ(Taken(ahead, dir / "a"), std::nullopt);
}

TEST_F(NativeFiles, AheadHasNothingForAnotherPath) {
    WriteBytes(dir / "a", kLarge);
    WriteBytes(dir / "b", kLarge);
    FileAhead ahead(dir / "a");
    EXPECT_EQ(Taken(ahead, dir / "b"), std::nullopt);
    EXPECT_EQ(Taken(ahead, dir / "a"), kLarge);
}

TEST_F(NativeFiles, AheadHasNothingOfAFileThatChangedItsSize) {
    WriteBytes(dir / "a", kLarge);
    FileAhead ahead(dir / "a");
    WriteBytes(dir / "a", kLarge + "y");
    EXPECT_EQ(Taken(ahead, dir / "a"), std::nullopt);
}

TEST_F(NativeFiles, AheadHasNothingOfAFileThatWasWrittenSince) {
    WriteBytes(dir / "a", kLarge);
    FileAhead ahead(dir / "a");
    fs::last_write_time(dir / "a", fs::last_write_time(dir / "a") + hours(1));
    EXPECT_EQ(Taken(ahead, dir / "a"), std::nullopt);
}

TEST_F(NativeFiles, AheadHasNothingOfAFileThatIsGoneOrWasNeverThere) {
    WriteBytes(dir / "a", kLarge);
    FileAhead ahead(dir / "a");
    fs::remove(dir / "a");
    EXPECT_EQ(Taken(ahead, dir / "a"), std::nullopt);
    FileAhead missing(dir / "b");
    EXPECT_EQ(Taken(missing, dir / "b"), std::nullopt);
    fs::create_directory(dir / "c");
    FileAhead folder(dir / "c");
    EXPECT_EQ(Taken(folder, dir / "c"), std::nullopt);
}

TEST_F(NativeFiles, AheadLeavesASmallFileAlone) {
    WriteBytes(dir / "a", kLarge.substr(1));
    FileAhead ahead(dir / "a");
    EXPECT_EQ(Taken(ahead, dir / "a"), std::nullopt);
}

TEST_F(NativeFiles, AFileThatIsReadAheadIsReadUnderAnyWayToWriteItsPath) {
    WriteBytes(dir / "a", kLarge);
    fs::create_directory(dir / "sub");
    NativeFileSystem native(u"/opt/korvane");
    native.ReadAhead(At("sub/../a"));
    const auto bytes = native.ReadAll(At("a"));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->View(), kLarge);
}

TEST_F(NativeFiles, ReadsAFileAgainThatChangedAfterItWasReadAhead) {
    WriteBytes(dir / "a", kLarge);
    NativeFileSystem native(u"/opt/korvane");
    native.ReadAhead(At("a"));
    WriteBytes(dir / "a", "new");
    EXPECT_EQ(native.ReadAll(At("a"))->View(), "new");
    native.DropAhead();
    EXPECT_EQ(native.ReadAll(At("a"))->View(), "new");
}

} // namespace
} // namespace korvane
