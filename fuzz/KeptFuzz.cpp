// Takes any bytes as each record of what is kept of tables, and as the name of a kept table. A record that is
// read must be written and read again as the same one. A folder with any records in it must be settled
// without touching a file outside of the folder for kept tables.

#include "Require.h"
#include "kept/KeptFiles.h"
#include "kept/KeptRecords.h"
#include "kept/UnsavedWork.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <cstdint>
#include <string_view>

namespace korvane {
namespace {

template <class RecordT>
void RequireThatItComesBack(std::string_view bytes) {
    RecordT record;
    if (!ReadRecord(bytes, record)) return;
    RecordT again;
    Require(ReadRecord(ToRecord(record), again) && again == record, "what is written comes back");
}

void RequireThatTheNameComesBack(std::string_view bytes) {
    const auto read = ReadKeptFileName(FromUtf8(bytes));
    if (!read) return;
    const auto again = ReadKeptFileName(KeptFileName(read->first, read->second));
    Require(again == read, "what a name says comes back");
}

/// The bytes are cut into the records at zeros.
void RequireThatOthersAreLeft(std::string_view bytes) {
    const MemoryClock clock;
    MemoryFileSystem files(PathStyle::Posix, clock);
    files.AddFile(u"/home/books.tbx", "kept");
    for (const TextView name : {u"/kept/runs/1/1/name-1", u"/kept/runs/1/1/saving-1",
                                u"/kept/runs/1/1/written-1", u"/kept/runs/1/1/1-20261121.tbx"}) {
        const std::size_t end = bytes.find('\0');
        files.AddFile(name, bytes.substr(0, end));
        bytes = end == bytes.npos ? std::string_view() : bytes.substr(end + 1);
    }
    TableFolder(files, u"/kept", u"/kept/runs/1/1").Settle();
    Require(files.Contents(u"/home/books.tbx") == "kept", "a table's own file is left");
    Require(files.FileNames(u"/home", u"*").size() == 1, "nothing appears beside it");
}

void Check(std::string_view bytes) {
    RequireThatItComesBack<NameRecord>(bytes);
    RequireThatItComesBack<SaveRecord>(bytes);
    RequireThatItComesBack<WrittenRecord>(bytes);
    RequireThatTheNameComesBack(bytes);
    RequireThatOthersAreLeft(bytes);
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
