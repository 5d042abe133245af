#include "platform/native/process/ChildProcess.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;

bool Always() {
    return true;
}

class ChildProcessTest : public testing::Test {
protected:
    /// A task that runs these lines.
    ChildTask Lines(const std::string& lines) {
        WriteBytes(dir / "program", "#!/bin/sh\n" + lines + "\n");
        fs::permissions(dir / "program", fs::perms::owner_all);
        ChildTask task;
        task.program = dir / "program";
        task.folder = dir.Path();
        task.output = dir / "output";
        return task;
    }

    TempDir dir;
};

TEST_F(ChildProcessTest, TheExitStatusTellsWhetherItSucceeded) {
    EXPECT_EQ(RunChild(Lines("exit 0"), Always), ChildEnd::Succeeded);
    EXPECT_EQ(RunChild(Lines("exit 3"), Always), ChildEnd::Failed);
    EXPECT_EQ(RunChild(Lines("kill -9 $$"), Always), ChildEnd::Failed);
}

TEST_F(ChildProcessTest, AProgramThatIsNotThereFails) {
    ChildTask task = Lines("");
    task.program = dir / "missing";
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
    task = Lines("");
    task.folder = dir / "missing";
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
}

TEST_F(ChildProcessTest, NoShellReadsTheArguments) {
    ChildTask task = Lines("printf '%s|' \"$@\"");
    task.arguments = {"a b", "$HOME", "`id`", "'\""};
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Succeeded);
    EXPECT_EQ(ReadBytes(dir / "output"), "a b|$HOME|`id`|'\"|");
}

TEST_F(ChildProcessTest, ItRunsInItsFolderWithAnEnvironmentOfItsOwn) {
    setenv("KORVANE_TEST_SECRET", "1", 1);
    EXPECT_EQ(RunChild(Lines("pwd; echo $HOME; echo $TMPDIR; echo [$KORVANE_TEST_SECRET]"), Always),
              ChildEnd::Succeeded);
    unsetenv("KORVANE_TEST_SECRET");
    const std::string folder = dir.Path().string();
    EXPECT_EQ(ReadBytes(dir / "output"), folder + "\n" + folder + "\n" + folder + "\n[]\n");
}

TEST_F(ChildProcessTest, ItHasNoInputAndNoOpenFiles) {
    WriteBytes(dir / "open", "");
    const std::ifstream open(dir / "open");
    EXPECT_EQ(RunChild(Lines("cat; ls -l /proc/self/fd | grep -c /open"), Always), ChildEnd::Failed);
    EXPECT_EQ(ReadBytes(dir / "output"), "0\n");
}

TEST_F(ChildProcessTest, OneThatTakesTooLongIsEnded) {
    ChildTask task = Lines("exec tail -f /dev/null");
    task.time = std::chrono::milliseconds(0);
    EXPECT_EQ(RunChild(task, Always), ChildEnd::TimedOut);
}

TEST_F(ChildProcessTest, TheCallerCanEndIt) {
    int asked = 0;
    EXPECT_EQ(RunChild(Lines("exec tail -f /dev/null"), [&asked] { return ++asked < 3; }),
              ChildEnd::Cancelled);
    EXPECT_EQ(asked, 3);
}

TEST_F(ChildProcessTest, AFileThatGrowsTooLargeEndsIt) {
    ChildTask task = Lines("exec head -c 200000 /dev/zero");
    task.fileSize = 100'000;
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
    EXPECT_EQ(fs::file_size(dir / "output"), 100'000U);
}

TEST_F(ChildProcessTest, OneThatTakesTooMuchMemoryFails) {
    // This program keeps all that it is given until the end of it.
    ChildTask task = Lines("head -c 200000000 /dev/zero | tail -c 200000000 | wc -c");
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Succeeded);
    EXPECT_EQ(ReadBytes(dir / "output"), "200000000\n");
    task.memory = 100'000'000;
    RunChild(task, Always);
    EXPECT_EQ(ReadBytes(dir / "output"), "0\n");
}

/// Whether the system gives a process a network of its own.
bool NetworkCanBeKeptAway() {
    const pid_t child = fork();
    if (child == 0) _exit(unshare(CLONE_NEWNET) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNET) == 0 ? 0 : 1);
    int status = 1;
    return waitpid(child, &status, 0) == child && status == 0;
}

TEST_F(ChildProcessTest, ItHasANetworkOfItsOwnInWhichThereIsNothing) {
    if (!NetworkCanBeKeptAway()) GTEST_SKIP() << "the system keeps no network away";
    EXPECT_EQ(RunChild(Lines("readlink /proc/self/ns/net"), Always), ChildEnd::Succeeded);
    EXPECT_NE(ReadBytes(dir / "output"), fs::read_symlink("/proc/self/ns/net").string() + "\n");
}

TEST_F(ChildProcessTest, ProgramsAreFoundByTheirNames) {
    EXPECT_EQ(FindProgram("sh").filename(), "sh");
    EXPECT_TRUE(FindProgram("korvane-has-no-such-program").empty());
}

} // namespace
} // namespace korvane
