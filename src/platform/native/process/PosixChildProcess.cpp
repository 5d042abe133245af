#include "platform/native/process/ChildProcess.h"

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace korvane {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr auto kBetweenLooks = std::chrono::milliseconds(20);
constexpr int kNotStarted = 127;
/// Files beyond these three are this program's.
constexpr unsigned kFirstOther = 3;

/// Texts as a program's arguments or environment, which end with nullptr.
class CStrings {
public:
    explicit CStrings(std::vector<std::string> texts) : texts_(std::move(texts)) {
        for (std::string& text : texts_)
            pointers_.push_back(text.data());
        pointers_.push_back(nullptr);
    }
    char* const* Get() { return pointers_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<char*> pointers_;
};

std::vector<std::string> ArgumentsOf(const ChildTask& task) {
    std::vector<std::string> all{task.program.string()};
    all.insert(all.end(), task.arguments.begin(), task.arguments.end());
    return all;
}

std::vector<std::string> EnvironmentOf(const ChildTask& task) {
    const std::string folder = task.folder.string();
    return {"PATH=/usr/bin:/bin", "HOME=" + folder, "TMPDIR=" + folder, "LC_ALL=C.UTF-8", "LANG=C.UTF-8"};
}

void Limit(decltype(RLIMIT_AS) what, std::size_t most) {
    const rlimit limit{most, most};
    // A limit that can't be set is as it was.
    [[maybe_unused]] const int result = setrlimit(what, &limit);
}

/// Nothing here may take memory: between the start of the new process and of its program, another thread of
/// this one may have the lock of the memory.
[[noreturn]] void BecomeProgram(const char* folder, const char* output, const ChildTask& task,
                                char* const* arguments, char* const* environment) {
    setpgid(0, 0);
    // Without a network of its own there is none. The system may refuse it, and the program still runs.
    if (unshare(CLONE_NEWNET) != 0) {
        [[maybe_unused]] const int result = unshare(CLONE_NEWUSER | CLONE_NEWNET);
    }
    Limit(RLIMIT_AS, task.memory);
    Limit(RLIMIT_FSIZE, task.fileSize);
    Limit(RLIMIT_CORE, 0);
    const int in = open("/dev/null", O_RDONLY);
    const int out = open(output, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int nowhere = open("/dev/null", O_WRONLY);
    if (in < 0 || out < 0 || chdir(folder) != 0) _exit(kNotStarted);
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    close_range(kFirstOther, ~0U, 0);
    execve(arguments[0], arguments, environment);
    _exit(kNotStarted);
}

/// Ends the program and what it started.
void End(pid_t child) {
    kill(-child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
}

ChildEnd WaitFor(pid_t child, const ChildTask& task, const std::function<bool()>& goOn) {
    const Clock::time_point end = Clock::now() + task.time;
    for (;;) {
        int status = 0;
        if (waitpid(child, &status, WNOHANG) == child) {
            // What it started and left running goes too.
            kill(-child, SIGKILL);
            return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? ChildEnd::Succeeded : ChildEnd::Failed;
        }
        const bool late = Clock::now() >= end;
        if (late || !goOn()) {
            End(child);
            return late ? ChildEnd::TimedOut : ChildEnd::Cancelled;
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
}

} // namespace

ChildEnd RunChild(const ChildTask& task, const std::function<bool()>& goOn) {
    CStrings arguments(ArgumentsOf(task));
    CStrings environment(EnvironmentOf(task));
    const std::string folder = task.folder.string();
    const std::string output = task.output.empty() ? "/dev/null" : task.output.string();
    const pid_t child = fork();
    if (child < 0) return ChildEnd::Failed;
    if (child == 0) BecomeProgram(folder.c_str(), output.c_str(), task, arguments.Get(), environment.Get());
    // Both set it, so that it is set whichever of them runs first.
    setpgid(child, child);
    return WaitFor(child, task, goOn);
}

fs::path FindProgram(const std::string& name) {
    const char* const path = std::getenv("PATH");
    std::string_view rest = path == nullptr ? "/usr/bin:/bin" : path;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        const fs::path file = fs::path(rest.substr(0, end)) / name;
        if (file.is_absolute() && access(file.c_str(), X_OK) == 0) return file;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return {};
}

} // namespace korvane
