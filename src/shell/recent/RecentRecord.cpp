#include "shell/recent/RecentRecord.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "common/text/CodePage.h"
#include "common/text/Lines.h"
#include "context/App.h"
#include "context/WriteStateFile.h"
#include "context/exchange/StateFiles.h"
#include "platform/FileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr TextView kUntitled = u"Untitled";

Text RecordLine(TextView path, int offset, const DateTime& now) {
    return Text(path) + u" | " + NumberText(offset) + u"*" + FormatDate(now, u"yyyy.mm.dd") + u"   " +
           FormatDate(now, u"hh:mm");
}

} // namespace

TextView PathInRecord(TextView entry) {
    const std::size_t bar = InStrRev(entry, u"|");
    return bar == 0 ? TextView() : Trim(Left(entry, bar - 1));
}

void RecentRecord::Read(App& app) {
    const Text& path = app.Exchange<StateFiles>().RecFilePath;
    if (!app.Files().IsTrusted(path)) return;
    const auto bytes = app.Files().ReadAll(path);
    if (!bytes) return;
    LineReader lines(bytes->View(), LineEnds::CrLfOrCr);
    std::string_view line;
    while (RecentNext <= kEntries && lines.Next(line))
        Entry(RecentNext++) = app.Page().ToText(line);
}

void RecentRecord::Write(App& app) const {
    std::string bytes;
    for (std::size_t i = 1; i <= kEntries; ++i) {
        if (!RecentEntries[i].empty()) bytes += app.Page().ToBytes(RecentEntries[i]) + "\r\n";
    }
    WriteStateFile(app, app.Exchange<StateFiles>().RecFilePath, bytes);
}

void RecentRecord::AddToRecent(TextView path, int offset, const DateTime& now) {
    if (path.empty() || path.starts_with(kUntitled)) return;
    TrimWhenFull();
    const Text line = RecordLine(path, offset, now);
    if (Update(path, line)) return;
    MakeRoom();
    Entry(1) = line;
}

void RecentRecord::CutWhenFull() {
    constexpr std::size_t kKept = 16;
    if (EmptyWhenFull == 1 && !Trim(Entry(kEntries)).empty())
        std::fill(RecentEntries.begin() + kKept + 1, RecentEntries.end(), Text());
}

void RecentRecord::Forget(TextView path) {
    // Every entry contains an empty path, so a row without a path would take all entries out.
    if (path.empty()) return;
    for (int i = 1; i <= kEntries; ++i) {
        if (ContainsIgnoringCase(Entry(i), path)) Entry(i).clear();
    }
}

void RecentRecord::Empty() {
    std::fill(RecentEntries.begin() + 1, RecentEntries.begin() + kEntries + 1, Text());
}

void RecentRecord::TrimWhenFull() {
    if (RecentNext < kEntries) return;
    // The copy runs from the far end, so the oldest entries stay, in reverse order, and the next load of a
    // full record trims them again. Kept for compatibility: recent-list-cuts-itself.
    std::array<Text, 8> kept;
    for (int i = 0; i < 8; ++i)
        kept[static_cast<std::size_t>(i)] = Entry(RecentNext - i);
    std::copy(kept.begin(), kept.end(), RecentEntries.begin() + 1);
    std::fill(RecentEntries.begin() + 9, RecentEntries.begin() + RecentNext + 1, Text());
}

bool RecentRecord::Update(TextView path, const Text& line) {
    // A path that begins a longer one matches that one too; the first in the list is taken, and stays where
    // it is. Kept for compatibility: recent-entry-by-containment, recent-entry-keeps-place.
    const auto end = RecentEntries.begin() + kEntries + 1;
    const auto found = std::find_if(RecentEntries.begin() + 1, end,
                                    [path](const Text& entry) { return ContainsIgnoringCase(entry, path); });
    if (found == end) return false;
    *found = line;
    return true;
}

void RecentRecord::MakeRoom() {
    constexpr int kMargin = kEntries + 1;
    if (RecentNext >= kMargin) {
        RecentNext = 1;
        return;
    }
    ++RecentNext;
    for (int i = std::min(RecentNext + 1, kMargin); i >= 2; --i)
        Entry(i) = Entry(i - 1);
}

} // namespace korvane
