#pragma once

#include "common/text/Text.h"

#include <array>
#include <cstdint>
#include <vector>

namespace korvane {

class App;
struct DateTime;

/// The path in a line of the record.
TextView PathInRecord(TextView entry);

/// The files that were loaded last, one line each, as they are written in Korvane.rec:
/// `<path> | <offset>*<yyyy.mm.dd>   <hh:mm>`.
class RecentRecord {
public:
    /// The entries are numbered from 1, the newest first. 0 is never used, and the last is spare room for a
    /// new entry.
    static constexpr int kEntries = 72;
    std::array<Text, kEntries + 2> RecentEntries;
    /// One more than the number of lines that were read and added. Forgotten entries stay counted, and a full
    /// record starts again at 1.
    std::int16_t RecentNext = 1;

    // What the list of recent files passes to the load.
    std::int16_t LoadFromRecent = 0;
    std::vector<Text> RecentPicks;
    int RecentOffset = 0;
    std::vector<int> RecentOffsets;

    /// 1 when a full record is cut to its first entries as soon as it is shown. Not saved.
    std::int16_t EmptyWhenFull = 0;

    /// Reads `RecFilePath`; a record that isn't there or can't be read is passed over silently.
    void Read(App& app);
    /// Writes the entries that aren't empty to `RecFilePath`; says so when it can't.
    void Write(App& app) const;

    /// Records a load. A path that is in the record already keeps its place.
    void AddToRecent(TextView path, int offset, const DateTime& now);

    /// Empties all entries but the first 16 when the record is full and is to be cut then.
    void CutWhenFull();
    /// Empties the entries that contain the path, case ignored; the others keep their places.
    void Forget(TextView path);
    void Empty();

private:
    void TrimWhenFull();
    bool Update(TextView path, const Text& line);
    void MakeRoom();
    Text& Entry(int number) { return RecentEntries[static_cast<std::size_t>(number)]; }
};

} // namespace korvane
