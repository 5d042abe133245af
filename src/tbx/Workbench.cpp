#include "tbx/Workbench.h"

#include "platform/FileSystem.h"
#include "table/TbxReader.h"
#include "table/TbxWriter.h"

namespace korvane {

namespace {

class StringWriter final : public FileWriter {
public:
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
    StringWriter file;
    TbxWriter(table_, file).Write();
    return file.Take();
}

} // namespace korvane
