// Measures the time from the program's start to the first painted table and compares it with an empty window.

#include "LimitTable.h"
#include "Moment.h"
#include "SourceTree.h"
#include "StartTurns.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace korvane::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultRounds = 13;

/// A handle that is closed at the end.
class Handle {
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle& operator=(Handle&&) = delete;
    ~Handle() {
        if (handle_ != nullptr) CloseHandle(handle_);
    }
    operator HANDLE() const { return handle_; }

private:
    HANDLE handle_;
};

struct Pipe {
    Handle read;
    Handle write;
};

Pipe MakePipe() {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    if (!CreatePipe(&read, &write, &inherited, 0)) Fail("no pipe");
    SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    return {Handle(read), Handle(write)};
}

std::string CommandLine(const std::vector<std::string>& command) {
    std::string line;
    for (const std::string& word : command)
        line += (line.empty() ? "\"" : " \"") + word + '"';
    return line;
}

/// Starts a program whose standard output goes to `output`. Only the program holds that open afterwards.
Handle Begin(const std::vector<std::string>& command, const Handle output) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process{};
    std::string line = CommandLine(command);
    if (!CreateProcessA(command[0].c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                        &process))
        Fail("a program didn't start");
    CloseHandle(process.hThread);
    return Handle(process.hProcess);
}

std::string ReadAll(HANDLE pipe) {
    std::string all;
    std::array<char, 64> part{};
    DWORD count = 0;
    while (ReadFile(pipe, part.data(), static_cast<DWORD>(part.size()), &count, nullptr) && count > 0)
        all.append(part.data(), count);
    return all;
}

void WaitForEndOf(HANDLE process) {
    WaitForSingleObject(process, INFINITE);
    DWORD status = 1;
    if (!GetExitCodeProcess(process, &status) || status != 0) Fail("a program failed");
}

/// Starts a program that ends at its first paint and prints the time of that. Wine doesn't know how much of
/// the processor's time another program has taken.
Seconds TimeToPaint(const std::vector<std::string>& command) {
    Pipe pipe = MakePipe();
    const std::int64_t start = NanosecondsNow();
    const Handle process = Begin(command, std::move(pipe.write));
    const std::string told = ReadAll(pipe.read);
    WaitForEndOf(process);
    const std::int64_t end = std::strtoll(told.c_str(), nullptr, 10);
    if (end == 0) Fail("a program didn't come up");
    return {.wall = static_cast<double>(end - start) * 1e-9};
}

fs::path OwnFolder() {
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
    return fs::path(path.data()).parent_path();
}

fs::path InSources(const char* name) {
    return fs::absolute(fs::path(KORVANE_SOURCE_DIR) / name).make_preferred();
}

/// A folder with the shipped settings and a copy of the program, which keeps its state in its own folder.
class Home {
public:
    Home() {
        fs::create_directories(folder_);
        fs::copy_file(OwnFolder() / "korvane_started_program.exe", folder_ / "korvane.exe");
        fs::copy_file(InSources("packaging/Korvane.ini"), folder_ / "Korvane.ini");
    }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;
    ~Home() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    std::string Program() const { return (folder_ / "korvane.exe").string(); }

private:
    fs::path folder_ = fs::temp_directory_path() / ("korvane-start-" + std::to_string(GetCurrentProcessId()));
};

void Measure(int rounds) {
    const Home home;
    const std::string emptyWindow = (OwnFolder() / "korvane_empty_window.exe").string();
    MeasureByTurns(
        {
            {"empty Qt window", {emptyWindow}, &TimeToPaint},
            {"Korvane with the sample of books",
             {home.Program(), InSources("samples/Books.tbx").string()},
             &TimeToPaint},
            {"Korvane with a table at the limit", {home.Program(), LimitTablePath()}, &TimeToPaint},
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
