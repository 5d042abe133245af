#include "tbx/base/Workbench.h"

#include "platform/FileSystem.h"
#include "table/model/TbxReader.h"
#include "table/model/TbxWriter.h"

namespace korvane {

namespace {

/// Only counts what is written.
class SizeWriter final : public FileWriter {
public:
    bool Write(std::string_view bytes) override {
        size_ += bytes.size();
        return true;
    }
    bool Close() override { return true; }

    std::size_t Size() const { return size_; }

private:
    std::size_t size_ = 0;
};

class StringWriter final : public FileWriter {
public:
    explicit StringWriter(std::size_t size) { written_.reserve(size); }

    bool Write(std::string_view bytes) override {
        written_ += bytes;
        return true;
    }
    bool Close() override { return true; }

    std::string Take() { return std::move(written_); }

private:
    std::string written_;
};

} // namespace

void Workbench::Load(TextView path, const SharedBytes& bytes) {
    table_.TxtDbFile = path;
    // No file holds the switch for sorting, so nothing that a command writes shows it.
    const bool sortOnHeaderClick = false;
    if (TbxReader(table_, tab_, sortOnHeaderClick, bytes).Read() == TbxReader::Outcome::TooManyColumns)
        messages_.push_back(TooManyColumnsMessage());
}

std::string Workbench::Save(TextView path) {
    table_.TxtDbFile = path;
    table_.TakeHeightOfCurrentRow();
    // The file is made in memory, and isn't made of these, which are very long in a strange table.
    table_.ColumnNames.Clear();
    table_.GridStore().SetGridFontName({});
    // A string that grows would need three times the memory.
    SizeWriter size;
    TbxWriter(table_, size).Write();
    StringWriter file(size.Size());
    TbxWriter(table_, file).Write();
    return file.Take();
}

} // namespace korvane
