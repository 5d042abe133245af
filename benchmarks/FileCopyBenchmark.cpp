// How long the copy job takes against the system's cp, each in a process of its own.

#include "context/App.h"
#include "controls/FormHost.h"
#include "files/jobs/CopyJob.h"
#include "grid/Grid.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "platform/native/NativePatientDisk.h"
#include "testing/MemoryClipboard.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryInstanceChannel.h"
#include "testing/MemoryScreen.h"
#include "testing/MemoryShell.h"
#include "testing/ScriptedMessageBoxes.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace korvane::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kDefaultRounds = 9;
/// As the copy window has it.
constexpr std::size_t kFilesInStep = 256;

struct Seconds {
    double wall = 0;
    double processor = 0;
};

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

double ToSeconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

/// Runs the work in a process of its own, which ends with the status 0.
Seconds TimeOf(const std::function<int()>& work) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t id = fork();
    if (id == 0) _exit(work());
    rusage used{};
    int status = 0;
    if (wait4(id, &status, 0, &used) != id || status != 0) Fail("a copy failed");
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    return {wall.count(), ToSeconds(used.ru_utime) + ToSeconds(used.ru_stime)};
}

/// A folder of files, and an empty one to copy them to.
struct Stage {
    fs::path from;
    fs::path to;
    std::vector<std::string> names;
};

int RunCp(const Stage& stage, const char* option) {
    std::vector<std::string> words{"cp", option, "-t", stage.to.native()};
    for (const std::string& name : stage.names)
        words.push_back((stage.from / name).native());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    execvp("cp", arguments.data());
    return 127;
}

class NoForms final : public FormHost {
public:
    void RunModal(Form&) override {}
    void Show(Form&) override {}
    void Hide(Form&) override {}
    void PopUp(Menu&) override {}
    void Raise(Form&) override {}
};

int RunJob(const Stage& stage) {
    MemoryClock clock;
    NativeFileSystem files(u"/nowhere");
    ScriptedMessageBoxes messages;
    MemoryClipboard clipboard;
    MemoryScreen screen;
    MemoryShell shell;
    MemoryInstanceChannel instance;
    NoForms forms;
    App app({files, messages, clipboard, clock, screen, shell, instance, forms, [] { return nullptr; }});
    NativePatientDisk patientDisk([] { return std::make_unique<NativeFileSystem>(u"/nowhere"); });
    app.SetPort<PatientDisk>(&patientDisk);
    std::vector<Text> items;
    for (const std::string& name : stage.names)
        items.push_back(FromUtf8(name));
    const CopyJob::Task task{.sourceFolder = FromNativePath(stage.from),
                             .items = std::move(items),
                             .targetFolder = FromNativePath(stage.to)};
    CopyMoveRun run;
    CopyJob job(app, task, run, {[&screen] { screen.ProcessMessages(); }, [] {}});
    while (job.Step(kFilesInStep)) {
    }
    return run.FilesCopied == static_cast<int>(stage.names.size()) ? 0 : 1;
}

/// The targets go, and what is still to be written to the disk is written, so that each copy finds the same.
void Clean(const Stage& stage) {
    fs::remove_all(stage.to);
    fs::create_directory(stage.to);
    sync();
}

double Median(std::vector<double> seconds) {
    std::ranges::sort(seconds);
    return seconds[seconds.size() / 2];
}

void Print(const char* name, const std::vector<Seconds>& rounds, const std::vector<Seconds>& floor) {
    const auto median = [](const std::vector<Seconds>& all, double Seconds::*part) {
        std::vector<double> parts;
        for (const Seconds& each : all)
            parts.push_back(each.*part);
        return Median(std::move(parts));
    };
    const double wall = median(rounds, &Seconds::wall);
    const double processor = median(rounds, &Seconds::processor);
    std::printf("  %-12s wall %8.1f ms  ratio %.2f   processor %8.1f ms  ratio %.2f\n", name, wall * 1000,
                wall / median(floor, &Seconds::wall), processor * 1000,
                processor / median(floor, &Seconds::processor));
}

struct Contender {
    const char* name;
    int (*copy)(const Stage& stage);
    std::vector<Seconds> rounds{};
};

void Measure(const char* what, const Stage& stage, int rounds) {
    std::array<Contender, 3> contenders{{
        {"cp", [](const Stage& each) { return RunCp(each, "--no-preserve=all"); }},
        {"cp -p", [](const Stage& each) { return RunCp(each, "--preserve=mode,timestamps"); }},
        {"the job", RunJob},
    }};
    const auto measure = [&stage](Contender& contender) {
        Clean(stage);
        contender.rounds.push_back(TimeOf([&] { return contender.copy(stage); }));
    };
    // Each begins a round in its turn, because the first copy after a rest of the disk differs from the
    // others.
    const std::size_t count = contenders.size();
    for (std::size_t round = 0; round < static_cast<std::size_t>(rounds); ++round) {
        for (std::size_t turn = 0; turn < count; ++turn)
            measure(contenders[(round + turn) % count]);
    }
    std::printf("%s\n", what);
    for (const Contender& contender : contenders)
        Print(contender.name, contender.rounds, contenders.front().rounds);
}

void MakeFile(const fs::path& path, std::size_t size) {
    std::ofstream file(path, std::ios::binary);
    std::string bytes(std::min(size, std::size_t{1} << 20), 'k');
    for (std::size_t made = 0; made < size; made += bytes.size()) {
        // No two blocks alike, in case that a disk looks for such.
        std::snprintf(bytes.data(), bytes.size(), "%s %zu", path.c_str(), made);
        file << bytes;
    }
}

Stage MakeStage(const fs::path& folder, int files, std::size_t size) {
    Stage stage{folder / "from", folder / "to", {}};
    fs::create_directories(stage.from);
    for (int number = 0; number < files; ++number) {
        stage.names.push_back("file" + std::to_string(number));
        MakeFile(stage.from / stage.names.back(), size);
    }
    return stage;
}

int Run(int rounds) {
    const fs::path folder = fs::temp_directory_path() / ("korvane-copy-bench-" + std::to_string(getpid()));
    Measure("one file of 1 GB", MakeStage(folder / "large", 1, std::size_t{1} << 30), rounds);
    fs::remove_all(folder / "large");
    Measure("5,000 files of 4 KB", MakeStage(folder / "small", 5000, 4096), rounds);
    fs::remove_all(folder);
    return 0;
}

} // namespace

} // namespace korvane::bench

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : korvane::bench::kDefaultRounds;
    if (rounds < 1) return 2;
    return korvane::bench::Run(rounds);
}
