// Takes any bytes as a CSV file. The reader must come to an end, and it must read the same records from what
// the writer makes of them.

#include "tbx/formats/CsvReader.h"
#include "tbx/formats/CsvRows.h"

#include <cstdint>
#include <cstdlib>

namespace korvane {
namespace {

using Record = std::vector<Text>;

struct Outcome {
    std::vector<Record> records;
    bool sound = false;
};

Outcome Read(std::string_view bytes, char delimiter) {
    CsvReader reader(bytes, delimiter);
    Outcome outcome;
    for (CsvReader::Record fields; reader.ReadRecord(fields);) {
        Record& record = outcome.records.emplace_back();
        for (const std::string_view field : fields)
            record.push_back(FromUtf8(field));
    }
    outcome.sound = !reader.Fault();
    return outcome;
}

std::string Write(const std::vector<Record>& records, char delimiter) {
    CsvRows format(delimiter);
    StringOutput out;
    for (const Record& record : records)
        format.AddRow(std::vector<CellText>(record.begin(), record.end()), out);
    out.Flush();
    return out.Bytes();
}

void ReadWriteRead(std::string_view bytes) {
    const char delimiter = bytes.size() % 2 == 0 ? ',' : ';';
    const Outcome first = Read(bytes, delimiter);
    const Outcome again = Read(Write(first.records, delimiter), delimiter);
    if (!again.sound || again.records != first.records) std::abort();
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::ReadWriteRead({reinterpret_cast<const char*>(data), size});
    return 0;
}
