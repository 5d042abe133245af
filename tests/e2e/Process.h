#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A child process. The destructor kills it if it still runs.
class Process {
public:
    using Environment = std::map<std::string, std::string>;

    /// `inherited` is a file descriptor that stays open in the child, or -1 for none. The child starts in the
    /// folder, or where this process is when it is empty.
    Process(const std::vector<std::string>& command, const Environment& environment, int inherited = -1,
            const std::string& folder = "");
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    bool Running();
    void Signal(int signal) const;
    /// Lets the process have only so many bytes more than it has now. Returns false if that fails.
    bool LimitMemory(std::uint64_t more) const;
    /// Waits for the end of the process. The result is nothing when it doesn't end in time, or when a signal
    /// ended it.
    std::optional<int> ExitStatus();

private:
    void Reap(int options);
    void AwaitEnd();

    pid_t id_ = -1;
    bool ended_ = false;
    int status_ = 0;
};

/// What a command prints, without the line ends after it, or nothing when the command fails.
std::optional<std::string> Output(const std::vector<std::string>& command,
                                  const Process::Environment& environment);

} // namespace korvane::e2e
