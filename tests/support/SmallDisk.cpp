#include "support/SmallDisk.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace korvane {

namespace {

constexpr int kPassed = 0;
constexpr int kFailed = 1;
constexpr int kNotAllowed = 2;

/// A user who isn't the administrator may mount a disk only in a namespace in which he is.
bool EnterOwnWorld() {
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    if (geteuid() == 0) return unshare(CLONE_NEWNS) == 0;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    WriteBytes("/proc/self/uid_map", "0 " + user + " 1");
    // A process may name its group only after it has given up changing it. Without a group it can make no
    // files.
    WriteBytes("/proc/self/setgroups", "deny");
    WriteBytes("/proc/self/gid_map", "0 " + group + " 1");
    return true;
}

bool Mount(const std::filesystem::path& folder, std::int64_t bytes) {
    const std::string size = "size=" + std::to_string(bytes);
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", folder.c_str(), "tmpfs", 0, size.c_str()) == 0;
}

int RunInChild(const std::filesystem::path& folder, std::int64_t bytes,
               const std::function<void(const std::filesystem::path&)>& test) {
    if (!EnterOwnWorld() || !Mount(folder, bytes)) return kNotAllowed;
    test(folder);
    return testing::Test::HasFailure() ? kFailed : kPassed;
}

} // namespace

bool RunOnSmallDisk(std::int64_t bytes, const std::function<void(const std::filesystem::path&)>& test) {
    const TempDir folder;
    const pid_t child = fork();
    if (child == 0) _exit(RunInChild(folder.Path(), bytes, test));
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(child > 0 && WIFEXITED(status)) << "the process on the small disk didn't end by itself";
    if (WIFEXITED(status) && WEXITSTATUS(status) == kNotAllowed) return false;
    EXPECT_EQ(status, 0) << "the test on the small disk failed; its words stand above";
    return true;
}

} // namespace korvane
