// Takes any bytes as the record of recent files, and then loads a few files. The record must be read without
// a message and must never grow past its lines, and reading it after writing it must give the same entries.

#include "StateStage.h"
#include "common/number/DateTime.h"
#include "context/exchange/StateFiles.h"
#include "shell/recent/RecentRecord.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace korvane {
namespace {

constexpr DateTime kNow{2026, 11, 21, 10, 30, 0};
constexpr std::size_t kMostLoads = 8;

RecentRecord Read(std::string_view bytes, StateStage& stage) {
    stage.files.AddFile(stage.app.Exchange<StateFiles>().RecFilePath, bytes);
    RecentRecord record;
    record.Read(stage.app);
    return record;
}

std::string Write(const RecentRecord& record, StateStage& stage) {
    record.Write(stage.app);
    return stage.files.Contents(stage.app.Exchange<StateFiles>().RecFilePath).value_or("");
}

void RequireWithinBounds(const RecentRecord& record) {
    Require(record.RecentNext >= 1 && record.RecentNext <= RecentRecord::kEntries + 1,
            "the count stays within the record");
    Require(record.RecentEntries.front().empty(), "entry 0 is never used");
}

void RequireThatItComesBack(const RecentRecord& record, StateStage& stage) {
    std::vector<Text> kept;
    for (int i = 1; i <= RecentRecord::kEntries; ++i) {
        const Text& entry = record.RecentEntries[static_cast<std::size_t>(i)];
        if (!entry.empty()) kept.push_back(entry);
    }
    const RecentRecord again = Read(Write(record, stage), stage);
    const bool same = std::equal(kept.begin(), kept.end(), again.RecentEntries.begin() + 1);
    Require(same && again.RecentNext == static_cast<int>(kept.size()) + 1, "what is written comes back");
}

/// The first byte says how many loads there are. Their paths are the ends of the record itself, so that the
/// record sometimes contains them already.
void Check(std::string_view bytes) {
    const std::size_t loads = bytes.empty() ? 0 : static_cast<unsigned char>(bytes[0]) % kMostLoads;
    if (!bytes.empty()) bytes.remove_prefix(1);
    StateStage stage;
    RecentRecord record = Read(bytes, stage);
    RequireWithinBounds(record);
    RequireThatItComesBack(record, stage);
    for (std::size_t i = 1; i <= loads; ++i) {
        const std::string_view end = bytes.substr(bytes.size() - std::min(bytes.size(), 3 * i));
        Text path = stage.app.Page().ToText(end);
        std::erase(path, u'\r');
        record.AddToRecent(path, 0, kNow);
        RequireWithinBounds(record);
    }
    RequireThatItComesBack(record, stage);
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
