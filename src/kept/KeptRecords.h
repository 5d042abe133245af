#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane {

// The small files in which the program notes what it is doing with a table. One that isn't whole is passed
// over, so that a kill at any moment does no harm.

/// The path of a table, or its caption while it has no file.
struct NameRecord {
    Text name;
    bool operator==(const NameRecord&) const = default;
};

/// A save has begun, and the old file may be gone.
struct SaveRecord {
    /// Up to this number, drafts are older than the file that the save replaces.
    int olderDrafts = 0;
    /// The kept version of the old file, below the folder of versions; empty for none.
    Text version;
    Text path;
    bool operator==(const SaveRecord&) const = default;
};

/// The save has written the file, which may not be safe on the disk yet.
struct WrittenRecord {
    std::int64_t size = 0;
    /// Up to this number, drafts are older than the new file.
    int olderDrafts = 0;
    bool operator==(const WrittenRecord&) const = default;
};

std::string ToRecord(const NameRecord& record);
std::string ToRecord(const SaveRecord& record);
std::string ToRecord(const WrittenRecord& record);

/// These set the record and return true when the bytes are a whole record.
bool ReadRecord(std::string_view bytes, NameRecord& record);
bool ReadRecord(std::string_view bytes, SaveRecord& record);
bool ReadRecord(std::string_view bytes, WrittenRecord& record);

} // namespace korvane
