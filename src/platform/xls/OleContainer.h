#pragma once

#include "common/text/Text.h"
#include "platform/xls/LittleEndian.h"

#include <cstddef>
#include <string>
#include <string_view>

// Public source: the format as Microsoft publishes it, [MS-CFB] "Compound File Binary File Format",
// version 3.

namespace korvane::xls {

/// A compound file that holds one stream. Everything around the stream depends on the stream's size alone, so
/// the file can be written from its beginning to its end: `Front()`, the stream, `Back()`.
class OleContainer {
public:
    /// The largest stream that such a file may have.
    static constexpr std::size_t kMaxStream = 0x7FFF'FFFF;

    /// `classId` has the 16 bytes that tell what kind of document the file is. The name has at most 31
    /// characters. A stream under 4,096 bytes counts as that long, with zeros at its end.
    OleContainer(std::string_view classId, TextView streamName, std::size_t streamSize);

    std::string Front() const;
    std::string Back() const;

private:
    void AppendDirectory(std::string& bytes) const;
    void AppendFat(std::string& bytes) const;
    void AppendDifat(std::string& bytes) const;
    U32 FirstFatSector() const { return streamSectors_ + kDirectorySectors; }

    static constexpr U32 kDirectorySectors = 1;

    std::string classId_;
    Text streamName_;
    std::size_t streamSize_;
    U32 streamSectors_;
    /// Sectors that hold the next sector for each sector.
    U32 fatSectors_ = 0;
    /// Sectors that list those that don't fit into the list in the file's first sector.
    U32 difatSectors_ = 0;
};

} // namespace korvane::xls
