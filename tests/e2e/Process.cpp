#include "e2e/Process.h"

#include "e2e/Events.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>

namespace korvane::e2e {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> Settings(const Process::Environment& environment) {
    std::vector<std::string> settings;
    for (const auto& [name, value] : environment)
        settings.push_back(name + "=" + value);
    return settings;
}

} // namespace

Process::Process(const std::vector<std::string>& command, const Environment& environment, int inherited,
                 const std::string& folder) {
    std::vector<std::string> words = command;
    std::vector<std::string> settings = Settings(environment);
    const std::vector<char*> arguments = Pointers(words);
    const std::vector<char*> variables = Pointers(settings);
    id_ = fork();
    if (id_ != 0) return;
    if (inherited >= 0) fcntl(inherited, F_SETFD, 0);
    if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(127);
    execvpe(arguments[0], arguments.data(), variables.data());
    _exit(127);
}

Process::~Process() {
    if (!Running()) return;
    kill(id_, SIGKILL);
    Reap(0);
}

void Process::Reap(int options) {
    if (!ended_ && waitpid(id_, &status_, options) == id_) ended_ = true;
}

void Process::AwaitEnd() {
    if (!Running()) return;
    // The C library has no function for this call.
    const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, id_, 0));
    if (descriptor < 0) return;
    WaitToRead(descriptor);
    close(descriptor);
}

bool Process::Running() {
    Reap(WNOHANG);
    return !ended_;
}

void Process::Signal(int signal) const {
    kill(id_, signal);
}

bool Process::LimitMemory(std::uint64_t more) const {
    std::uint64_t pages = 0;
    std::ifstream("/proc/" + std::to_string(id_) + "/statm") >> pages;
    const std::uint64_t now = pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    const rlimit limit{now + more, now + more};
    return pages != 0 && prlimit(id_, RLIMIT_AS, &limit, nullptr) == 0;
}

std::optional<int> Process::ExitStatus() {
    AwaitEnd();
    if (Running() || !WIFEXITED(status_)) return std::nullopt;
    return WEXITSTATUS(status_);
}

std::optional<std::string> Output(const std::vector<std::string>& command,
                                  const Process::Environment& environment) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
    const std::string redirect = "exec \"$@\" >&" + std::to_string(ends[1]);
    std::vector<std::string> shell{"sh", "-c", redirect, "sh"};
    shell.insert(shell.end(), command.begin(), command.end());
    Process process(shell, environment, ends[1]);
    close(ends[1]);

    std::string printed;
    std::array<char, 4096> buffer{};
    for (ssize_t size = 0; (size = read(ends[0], buffer.data(), buffer.size())) > 0;) {
        printed.append(buffer.data(), static_cast<std::size_t>(size));
    }
    close(ends[0]);
    if (process.ExitStatus() != 0) return std::nullopt;
    while (printed.ends_with('\n'))
        printed.pop_back();
    return printed;
}

} // namespace korvane::e2e
