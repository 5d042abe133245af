#include "context/DiskQuestions.h"

#include "context/App.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"

#include <utility>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kSoon{1000};
constexpr std::chrono::milliseconds kUnseen{200};
constexpr std::chrono::milliseconds kStandstill{3000};

bool AskFor(std::chrono::milliseconds time, const App& app, const DiskQuestion& question) {
    const auto start = app.Clock().Uptime();
    return AskDisk(app, question, [&] { return app.Clock().Uptime() - start < time; });
}

} // namespace

bool AskDisk(const App& app, const DiskQuestion& question, const StillWaits& stillWaits) {
    if (auto* disk = app.Port<PatientDisk>()) return disk->Ask(question, stillWaits);
    question(app.Files(), stillWaits);
    return true;
}

bool AskDiskSoon(const App& app, const DiskQuestion& question) {
    return AskFor(kSoon, app, question);
}

bool AskDiskUnseen(const App& app, const DiskQuestion& question) {
    return AskFor(kUnseen, app, question);
}

std::optional<bool> HasFolderSoon(const App& app, const Text& folder) {
    return HasFoldersSoon(app, {folder}).front();
}

std::vector<std::optional<bool>> HasFoldersSoon(const App& app, const std::vector<Text>& folders) {
    return AnswersSoFar([&app](const DiskQuestion& question) { return AskDiskSoon(app, question); }, folders,
                        [](const FileSystem& files, const Text& path) { return files.DirExists(path); });
}

Standstill::Standstill(const App& app) : app_(app), since_(app.Clock().Uptime()) {}

bool Standstill::Lasts(int steps) {
    const auto now = app_.Clock().Uptime();
    if (std::exchange(steps_, steps) != steps) since_ = now;
    return now - since_ >= kStandstill;
}

} // namespace korvane
