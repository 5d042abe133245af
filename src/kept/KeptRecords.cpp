#include "kept/KeptRecords.h"

#include <charconv>
#include <optional>

namespace korvane {

namespace {

/// Takes the part before the mark off the front of the bytes; nothing when there is no mark.
std::optional<std::string_view> TakeUpTo(char mark, std::string_view& bytes) {
    const std::size_t end = bytes.find(mark);
    if (end == bytes.npos) return std::nullopt;
    const std::string_view part = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return part;
}

template <class Int>
bool TakeNumber(char mark, std::string_view& bytes, Int& number) {
    const auto part = TakeUpTo(mark, bytes);
    if (!part) return false;
    const char* const end = part->data() + part->size();
    const auto result = std::from_chars(part->data(), end, number);
    return result.ec == std::errc() && result.ptr == end && number >= 0;
}

/// The rest of the record without its line end. A path may itself contain line ends.
bool TakePath(std::string_view bytes, Text& path) {
    if (!bytes.ends_with('\n')) return false;
    bytes.remove_suffix(1);
    if (!IsUtf8(bytes)) return false;
    path = FromUtf8(bytes);
    return true;
}

} // namespace

std::string ToRecord(const NameRecord& record) {
    return ToUtf8(record.name) + "\n";
}

std::string ToRecord(const SaveRecord& record) {
    return std::to_string(record.olderDrafts) + "\n" + ToUtf8(record.version) + "\n" + ToUtf8(record.path) +
           "\n";
}

std::string ToRecord(const WrittenRecord& record) {
    return std::to_string(record.size) + " " + std::to_string(record.olderDrafts) + "\n";
}

bool ReadRecord(std::string_view bytes, NameRecord& record) {
    return TakePath(bytes, record.name);
}

bool ReadRecord(std::string_view bytes, SaveRecord& record) {
    SaveRecord read;
    if (!TakeNumber('\n', bytes, read.olderDrafts)) return false;
    const auto version = TakeUpTo('\n', bytes);
    if (!version || !IsUtf8(*version) || !TakePath(bytes, read.path)) return false;
    read.version = FromUtf8(*version);
    record = read;
    return true;
}

bool ReadRecord(std::string_view bytes, WrittenRecord& record) {
    WrittenRecord read;
    const bool whole =
        TakeNumber(' ', bytes, read.size) && TakeNumber('\n', bytes, read.olderDrafts) && bytes.empty();
    if (whole) record = read;
    return whole;
}

} // namespace korvane
