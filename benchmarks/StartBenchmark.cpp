// Measures the time from the program's start to the first painted table and compares it with an empty window.
// All programs run on a display of their own.

#include "LimitTable.h"
#include "Moment.h"
#include "SourceTree.h"
#include "StartTurns.h"
#include "Xvfb.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace korvane::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultRounds = 21;

double ToSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

std::vector<char*> Words(std::vector<std::string>& command) {
    std::vector<char*> words;
    for (std::string& word : command)
        words.push_back(word.data());
    words.push_back(nullptr);
    return words;
}

/// Starts a program whose standard output goes to `output`.
pid_t Begin(std::vector<std::string> command, int output) {
    const std::vector<char*> words = Words(command);
    const pid_t id = fork();
    if (id == 0) {
        dup2(output, STDOUT_FILENO);
        execv(words[0], words.data());
        _exit(127);
    }
    return id;
}

/// Waits until the program has ended, and returns the processor's time that it took.
double EndOf(pid_t id) {
    rusage used{};
    int status = 0;
    if (wait4(id, &status, 0, &used) != id || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        Fail("a program failed");
    return ToSeconds(used.ru_utime) + ToSeconds(used.ru_stime);
}

/// Starts a program that ends at its first paint and prints the time of that.
Seconds TimeToPaint(const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) Fail("no pipe");
    const std::int64_t start = NanosecondsNow();
    const pid_t id = Begin(command, ends[1]);
    close(ends[1]);
    long long end = 0;
    FILE* const output = fdopen(ends[0], "r");
    const bool told = output != nullptr && std::fscanf(output, "%lld", &end) == 1;
    std::fclose(output);
    if (!told) Fail("a program didn't come up");
    return {static_cast<double>(end - start) * 1e-9, EndOf(id)};
}

/// Starts a program that ends by itself.
Seconds TimeToEnd(const std::vector<std::string>& command) {
    const std::int64_t start = NanosecondsNow();
    const double processor = EndOf(Begin(command, STDOUT_FILENO));
    return {static_cast<double>(NanosecondsNow() - start) * 1e-9, processor};
}

/// A home folder with the shipped settings and a copy of the program, which keeps its state in its own
/// folder.
class Home {
public:
    Home() {
        fs::create_directories(folder_ / "run");
        fs::permissions(folder_ / "run", fs::perms::owner_all);
        fs::copy_file(KORVANE_STARTED_PROGRAM, Program());
        fs::copy_file(KORVANE_PROGRAM, folder_ / "second");
        fs::copy_file(KORVANE_SOURCE_DIR "/packaging/Korvane.ini", folder_ / "Korvane.ini");
        setenv("HOME", folder_.c_str(), 1);
        setenv("XDG_STATE_HOME", (folder_ / "state").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", (folder_ / "run").c_str(), 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
    }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;
    ~Home() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    std::string Program() const { return folder_ / "korvane"; }
    /// The program itself, for a copy that runs on, and those that find it.
    std::string RunningProgram() const { return folder_ / "second"; }
    /// Whether a copy of the program can be found by others.
    bool IsFound() const {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / "run")) {
            if (entry.path().extension() == ".socket") return true;
        }
        return false;
    }

private:
    fs::path folder_ = fs::temp_directory_path() / ("korvane-start-" + std::to_string(getpid()));
};

/// A copy of the program that runs while this object lives.
class RunningCopy {
public:
    explicit RunningCopy(const Home& home) : id_(Begin({home.RunningProgram()}, STDOUT_FILENO)) {
        while (!home.IsFound())
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    RunningCopy(const RunningCopy&) = delete;
    RunningCopy& operator=(const RunningCopy&) = delete;
    ~RunningCopy() {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }

private:
    pid_t id_;
};

void Measure(int rounds) {
    const Xvfb display;
    const Home home;
    MeasureByTurns(
        {
            {"empty Qt window", {KORVANE_EMPTY_WINDOW}, &TimeToPaint},
            {"Korvane with the sample of books",
             {home.Program(), KORVANE_SOURCE_DIR "/samples/Books.tbx"},
             &TimeToPaint},
            {"Korvane with a table at the limit", {home.Program(), LimitTablePath()}, &TimeToPaint},
        },
        rounds);
    const RunningCopy running(home);
    MeasureByTurns(
        {
            {"empty Qt program without a window", {KORVANE_EMPTY_PROGRAM}, &TimeToEnd},
            {"second start of Korvane", {home.RunningProgram()}, &TimeToEnd},
        },
        rounds);
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    using namespace korvane::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : kDefaultRounds;
    if (rounds < 1) return 2;
    Measure(rounds);
    return 0;
}
