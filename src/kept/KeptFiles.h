#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"
#include "kept/KeptRecords.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

class FileSystem;
class FileWriter;

// What the folders of kept tables have in common: files with a number in their name, of which the highest is
// the newest.

/// A table that is kept under a number, "12-20261121.tbx".
struct KeptFile {
    int number = 0;
    /// The day on which it was kept.
    DateTime day;
    Text name;
    Text path;
    std::int64_t size = 0;
    DateTime modified;
};

Text KeptFileName(int number, const DateTime& day);
/// Nothing for a name that isn't such a one.
std::optional<std::pair<int, DateTime>> ReadKeptFileName(TextView name);

/// The kept tables in a folder, the oldest first.
std::vector<KeptFile> KeptFilesIn(const FileSystem& files, TextView folder);
/// The number for the next one.
int NextNumber(const std::vector<KeptFile>& kept);

/// Makes the folder and those above it that are missing. Only the user may enter what is made.
bool MakePrivateDirs(FileSystem& files, TextView folder);
/// Removes the folder with the files in it. Folders in it stay, and then it does too.
void RemoveWithFiles(FileSystem& files, TextView folder);
/// Writes a file; false when it didn't take all bytes.
using WriteFile = std::function<bool(FileWriter&)>;
/// Makes a private file of what `write` writes; false when it didn't take all of it.
bool WritePrivate(FileSystem& files, TextView path, const WriteFile& write);

/// The records of one kind in a folder, which are files like "name-3". A new one is written beside the old
/// one, so that there is a whole one at any moment.
class RecordFile {
public:
    RecordFile(FileSystem& files, TextView folder, TextView kind)
        : files_(files), folder_(folder), kind_(kind) {}

    /// Returns the number of the record; nothing when it couldn't be written.
    std::optional<int> Write(std::string_view bytes);
    /// The newest record that is whole.
    template <class RecordT>
    std::optional<RecordT> Read() const;
    /// Removes the records up to this number.
    void Remove(int last);
    void RemoveAll();

private:
    std::vector<int> Numbers() const;
    Text PathOf(int number) const;
    std::optional<std::string> BytesOf(int number) const;

    FileSystem& files_;
    Text folder_;
    Text kind_;
};

template <class RecordT>
std::optional<RecordT> RecordFile::Read() const {
    const std::vector<int> numbers = Numbers();
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        RecordT record;
        const auto bytes = BytesOf(*number);
        if (bytes && ReadRecord(*bytes, record)) return record;
    }
    return std::nullopt;
}

} // namespace korvane
