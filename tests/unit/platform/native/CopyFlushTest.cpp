// Takes the place of the system's call that flushes a file, to see when the copies are flushed.

#include "unit/platform/native/NativeFiles.h"

#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <functional>

namespace korvane {
namespace {

namespace fs = std::filesystem;

std::function<void(const fs::path&)> onFlush;

} // namespace
} // namespace korvane

extern "C" int fsync(int file) {
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), error);
    if (korvane::onFlush) korvane::onFlush(path);
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace korvane {
namespace {

struct CopyFlushTest : NativeFiles {
    CopyFlushTest() {
        WriteBytes(dir / "a", "whole");
        onFlush = [this](const fs::path& path) {
            const bool ofTheFolder = path == fs::canonical(dir.Path());
            flushed.push_back((ofTheFolder ? "folder " : "file ") +
                              (fs::exists(dir / "b") ? ReadBytes(dir / "b") : "before it has its name"));
        };
    }
    ~CopyFlushTest() override { onFlush = nullptr; }

    std::vector<std::string> flushed;
};

TEST_F(CopyFlushTest, ACopyOfAFileThatGoesNextIsSafeBeforeAndAfterItTakesItsName) {
    EXPECT_EQ(files.Copy(At("a"), At("b"), {.flush = true}), CopyOutcome::Copied);
    EXPECT_THAT(flushed, testing::ElementsAre("file before it has its name", "folder whole"));
}

TEST_F(CopyFlushTest, ACopyIsSafeBeforeItReplacesAnOldFile) {
    WriteBytes(dir / "b", "old");
    EXPECT_EQ(files.Copy(At("a"), At("b")), CopyOutcome::Copied);
    EXPECT_THAT(flushed, testing::ElementsAre("file old"));
    EXPECT_EQ(Read("b"), "whole");
}

TEST_F(CopyFlushTest, AnyOtherCopyWaitsForNoFlush) {
    EXPECT_EQ(files.Copy(At("a"), At("b")), CopyOutcome::Copied);
    EXPECT_THAT(flushed, testing::IsEmpty());
}

} // namespace
} // namespace korvane
