#include "platform/native/NativePatientDisk.h"

#include "platform/FileSystem.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <stdexcept>
#include <string>
#include <thread>

namespace korvane {
namespace {

/// What the disks of a test share with it, which lives as long as the last of them.
struct Network {
    std::promise<void> back;
    std::shared_future<void> isBack{back.get_future()};
    std::atomic<int> disks = 0;
};

/// A disk on which the folder "/silent" doesn't answer until its network is back.
class SilentDisk final : public FileSystem {
public:
    explicit SilentDisk(std::shared_ptr<Network> network) : network_(std::move(network)) {
        ++network_->disks;
    }
    bool DirExists(TextView path) const override {
        if (path == u"/silent") network_->isBack.wait();
        return true;
    }

    // The tests ask for nothing else.
    PathStyle Style() const override { return PathStyle::Posix; }
    bool FileExists(TextView) const override { return false; }
    Text CurrentDir() const override { return {}; }
    bool ChangeDir(TextView) override { return false; }
    Text FullPath(TextView path) const override { return Text(path); }
    std::optional<SharedBytes> ReadAll(TextView) override { return std::nullopt; }
    std::unique_ptr<FileWriter> OpenRaw(TextView) override { return nullptr; }
    bool Remove(TextView) override { return false; }
    std::optional<std::int64_t> Size(TextView) const override { return std::nullopt; }
    std::optional<DateTime> Modified(TextView) const override { return std::nullopt; }
    Text LastErrorText() const override { return {}; }
    Text ProgramDir() const override { return {}; }

private:
    std::shared_ptr<Network> network_;
};

class NativePatientDiskTest : public testing::Test {
protected:
    ~NativePatientDiskTest() override {
        if (!back_) network->back.set_value();
    }
    void Return() {
        network->back.set_value();
        back_ = true;
    }
    std::optional<bool> AskFor(const Text& folder, const StillWaits& stillWaits) {
        return AnswerTo<bool>(
            [&](const DiskQuestion& question) { return disk.Ask(question, stillWaits); },
            [folder](const FileSystem& files, const StillWaits&) { return files.DirExists(folder); });
    }

    std::shared_ptr<Network> network = std::make_shared<Network>();
    NativePatientDisk disk{[network = network] { return std::make_unique<SilentDisk>(network); }};

private:
    bool back_ = false;
};

TEST_F(NativePatientDiskTest, Answers) {
    EXPECT_EQ(AskFor(u"/here", [] { return true; }), true);
}

TEST_F(NativePatientDiskTest, AsksInAnotherThreadAndInOneForAll) {
    std::vector<std::thread::id> threads;
    for (int time = 0; time < 3; ++time) {
        const auto thread = AnswerTo<std::thread::id>(
            [&](const DiskQuestion& question) { return disk.Ask(question, [] { return true; }); },
            [](const FileSystem&, const StillWaits&) { return std::this_thread::get_id(); });
        ASSERT_TRUE(thread);
        threads.push_back(*thread);
    }
    EXPECT_NE(threads[0], std::this_thread::get_id());
    EXPECT_EQ(threads[0], threads[1]);
    EXPECT_EQ(threads[0], threads[2]);
    EXPECT_EQ(network->disks, 1);
}

TEST_F(NativePatientDiskTest, WaitsAsLongAsItIsWantedAndIsGivenUpThen) {
    int turns = 0;
    EXPECT_EQ(AskFor(u"/silent", [&turns] { return ++turns < 4; }), std::nullopt);
    EXPECT_EQ(turns, 4);
}

TEST_F(NativePatientDiskTest, ALateAnswerComes) {
    int turns = 0;
    const auto answer = AskFor(u"/silent", [&] {
        if (++turns == 2) Return();
        return true;
    });
    EXPECT_EQ(answer, true);
    EXPECT_GE(turns, 2);
}

TEST_F(NativePatientDiskTest, WhileOneQuestionHangsOthersAreAnswered) {
    std::optional<bool> other;
    EXPECT_EQ(AskFor(u"/silent",
                     [&] {
                         other = AskFor(u"/here", [] { return true; });
                         return false;
                     }),
              std::nullopt);
    EXPECT_EQ(other, true);
    EXPECT_EQ(AskFor(u"/here", [] { return true; }), true);
    EXPECT_EQ(network->disks, 2);
}

TEST_F(NativePatientDiskTest, AQuestionEndsBetweenItsStepsAndKeepsWhatItHas) {
    // However busy the machine is, the question gets its turn.
    NativePatientDisk patient([network = network] { return std::make_unique<SilentDisk>(network); },
                              std::chrono::hours(1));
    std::atomic<bool> steps = false;
    const auto answer = AnswerTo<int>(
        [&](const DiskQuestion& question) { return patient.Ask(question, [&] { return !steps; }); },
        [&steps](const FileSystem&, const StillWaits& stillWaits) {
            int count = 0;
            while (stillWaits())
                steps = ++count > 0;
            return count;
        });
    ASSERT_TRUE(answer);
    EXPECT_GT(*answer, 0);
}

TEST_F(NativePatientDiskTest, ThePartsThatCameBeforeTheDiskFellSilentAreThere) {
    const std::vector<Text> folders{u"/here", u"/there", u"/silent", u"/elsewhere"};
    const auto silent = std::make_shared<std::atomic<bool>>(false);
    const auto found = PartsSoFar<Text>(
        [&](const DiskQuestion& question) { return disk.Ask(question, [&] { return !*silent; }); },
        [folders, silent](const FileSystem& files, const auto& take) {
            for (const Text& folder : folders) {
                *silent = folder == u"/silent";
                if (files.DirExists(folder) && !take(folder)) return;
            }
        });
    EXPECT_THAT(found, testing::ElementsAre(u"/here", u"/there"));
}

TEST_F(NativePatientDiskTest, AQuestionThatFailsHasNoAnswer) {
    const DiskQuestion fails = [](const FileSystem&, const StillWaits&) {
        throw std::runtime_error("no memory");
    };
    EXPECT_FALSE(disk.Ask(fails, [] { return true; }));
    EXPECT_EQ(AskFor(u"/here", [] { return true; }), true);
}

} // namespace
} // namespace korvane
