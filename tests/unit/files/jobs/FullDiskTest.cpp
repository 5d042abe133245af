// Jobs to a real disk of one megabyte.

#include "common/text/CaseFold.h"
#include "files/jobs/CopyJob.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "support/SmallDisk.h"
#include "support/TempDir.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kDiskSize = 1 << 20;

struct FullDiskTest : testing::Test {
    void On(const std::function<void(const fs::path&)>& test) {
        if (!RunOnSmallDisk(kDiskSize, test)) GTEST_SKIP() << "nobody may mount a disk here";
    }
    void RunFor(std::vector<Text> items, const fs::path& target, bool move = false) {
        CopyJob job(app,
                    {.move = move,
                     .sourceFolder = FromNativePath(source.Path()),
                     .items = std::move(items),
                     .targetFolder = FromNativePath(target)},
                    run, {[] {}, [this] { run.CopyThisFile = 1; }});
        while (job.Step()) {
        }
    }

    TempDir source;
    NativeFileSystem files{u""};
    TestApp t;
    App app{{files, t.user, t.clipboard, t.clock, t.screen, t.shell, t.instance, t.user, nullptr}};
    CopyMoveRun run;
};

TEST_F(FullDiskTest, IsReportedWithWhereItIsMountedAndWhatIsLeft) {
    WriteBytes(source / "a", std::string(600'000, 'a'));
    WriteBytes(source / "b", std::string(500'000, 'b'));
    WriteBytes(source / "c", "c");
    On([this](const fs::path& disk) {
        const Text mount = FromNativePath(disk);
        const Text from = ToUpper(FromNativePath(source / "b"));
        t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\t" + mount +
                           u"\r\nTotal space\t1,048,576\r\nFree space\t448,576\r\n\r\nHalted at\t" + from +
                           u"\r\nSize\t500,000",
                       MessageIcon::Exclamation},
                      Answer::Ok);
        RunFor({u"a", u"b", u"c"}, disk);
        EXPECT_EQ(run.FilesCopied, 1);
        EXPECT_EQ(ReadBytes(disk / "a"), std::string(600'000, 'a'));
        EXPECT_FALSE(fs::exists(disk / "b"));
        EXPECT_FALSE(fs::exists(disk / "c"));
    });
}

TEST_F(FullDiskTest, IsReportedWhenManySmallFilesFillItBeforeTheEstimateSays) {
    std::vector<Text> names;
    for (int number = 0; number < 400; ++number) {
        const std::string name = "f" + std::to_string(number);
        WriteBytes(source / name, "small");
        names.push_back(FromAscii(name));
    }
    On([&](const fs::path& disk) {
        t.user.Answer(Answer::Ok);
        RunFor(names, disk);
        ASSERT_EQ(t.user.Messages().size(), 1u);
        EXPECT_TRUE(t.user.Messages()[0].text.starts_with(u"Target drive full !"));
        EXPECT_GT(run.FilesCopied, 200);
        EXPECT_LT(run.FilesCopied, 400);
        const auto copies = std::distance(fs::directory_iterator(disk), fs::directory_iterator());
        EXPECT_EQ(copies, run.FilesCopied);
    });
}

TEST_F(FullDiskTest, AMoveThereLeavesWhatDoesNotFit) {
    WriteBytes(source / "a", std::string(600'000, 'a'));
    WriteBytes(source / "b", std::string(500'000, 'b'));
    On([this](const fs::path& disk) {
        t.user.Answer(Answer::Ok);
        RunFor({u"a", u"b"}, disk, true);
        EXPECT_FALSE(fs::exists(source / "a"));
        EXPECT_EQ(ReadBytes(disk / "a"), std::string(600'000, 'a'));
        EXPECT_EQ(ReadBytes(source / "b"), std::string(500'000, 'b'));
        EXPECT_FALSE(fs::exists(disk / "b"));
    });
}

TEST_F(FullDiskTest, ReplacingNeedsTheDifferenceOnly) {
    WriteBytes(source / "a", std::string(700'000, 'a'));
    On([this](const fs::path& disk) {
        WriteBytes(disk / "a", std::string(700'000, 'o'));
        RunFor({u"a"}, disk);
        EXPECT_EQ(run.FilesCopied, 1);
        EXPECT_EQ(ReadBytes(disk / "a"), std::string(700'000, 'a'));
    });
}

} // namespace
} // namespace korvane
