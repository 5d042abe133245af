// Takes any bytes as a table's file. The table must be the one that a plain reader gives, and reading it
// after writing it must give the same table.

#include "Require.h"
#include "common/text/CodePage.h"
#include "grid/GridStore.h"
#include "platform/FileSystem.h"
#include "support/PlainTbxReader.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"
#include "table/model/TbxReader.h"
#include "table/model/TbxWriter.h"

#include <cstdint>
#include <memory>
#include <string>

namespace korvane {
namespace {

/// The chunk is small, so that often something doesn't fit into one.
constexpr std::size_t kChunk = 64;

class NoHost final : public TableHost {
public:
    void ShowRowHeight(std::int16_t) override {}
    Text TabCaption() const override { return {}; }
    void SetTabCaption(TextView) override {}
    void ClearDirty() override {}
};

class StringWriter final : public FileWriter {
public:
    bool Write(std::string_view part) override {
        bytes += part;
        return true;
    }
    bool Close() override { return true; }

    std::string bytes;
};

struct Table {
    GridStore grid{CodePage::Windows1252()};
    TableModel model{grid};
};

/// A file of at least `large` bytes is read in two threads.
bool Load(std::string_view bytes, Table& table, std::size_t large = TbxReader::kLarge) {
    const std::shared_ptr<char[]> copy(new char[bytes.size()]);
    bytes.copy(copy.get(), bytes.size());
    NoHost host;
    TbxReader reader(table.model, host, false, {copy, bytes.size()}, large);
    return reader.Read() == TbxReader::Outcome::Done;
}

std::string Save(const Table& table) {
    StringWriter file;
    TbxWriter(table.model, file, kChunk).Write();
    return file.bytes;
}

/// Whether the table is the same after it is written and read: no row is marked, no text ends in a line
/// break, and there is at least one row, because without rows no columns are made.
bool Survives(const Grid& grid) {
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        if (grid.CellBytes(row, Col{1}) == "---") return false;
        for (Col col{1}; col <= grid.ColCount(); ++col)
            if (grid.CellBytes(row, col)->ends_with("\r\n")) return false;
    }
    return grid.RowCount() >= Row{1};
}

void Check(std::string_view bytes) {
    Table table;
    Table halves;
    Table plain;
    const bool done = ReadPlainly(bytes, plain.model);
    Require(Load(bytes, table) == done, "the outcome is that of the plain reader");
    Require(DifferenceBetween(table.model, plain.model).empty(), "the table is that of the plain reader");
    Require(Load(bytes, halves, 0) == done, "two threads have the outcome of the plain reader");
    Require(DifferenceBetween(halves.model, plain.model).empty(),
            "the table of two threads is that of the plain reader");
    Require(table.grid.RowCount() <= kMaxRows && table.grid.ColCount() <= MaxColumns, "the limits are kept");

    const std::string first = Save(table);
    Table again;
    Require(Load(first, again), "what is written can be read");
    const std::string second = Save(again);
    if (!Survives(again.grid)) return;
    Table third;
    Require(Load(second, third), "what is written can be read again");
    Require(Save(third) == second, "a rewritten file is rewritten the same");
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
